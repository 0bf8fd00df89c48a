#include "plateforme/qt/Boites_Qt.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

void Prepare(QMessageBox &boite, QMessageBox::Icon icone, const QString &texte)
{
    boite.setWindowTitle(u"Vorlain"_s);
    boite.setIcon(icone);
    boite.setTextFormat(Qt::PlainText);
    boite.setText(texte);
}

} // namespace

void Boites_Qt::Message(const QString &texte)
{
    QMessageBox boite(QApplication::activeWindow());
    Prepare(boite, QMessageBox::Information, texte);
    boite.setDefaultButton(boite.addButton(u"OK"_s, QMessageBox::AcceptRole));
    boite.exec();
}

bool Boites_Qt::Question(const QString &texte)
{
    QMessageBox boite(QApplication::activeWindow());
    Prepare(boite, QMessageBox::Question, texte);
    const QPushButton *oui = boite.addButton(u"Oui"_s, QMessageBox::YesRole);
    QPushButton *non = boite.addButton(u"Non"_s, QMessageBox::NoRole);
    boite.setDefaultButton(qobject_cast<QPushButton *>(boite.buttons().constFirst()));
    boite.setEscapeButton(non);
    boite.exec();
    return boite.clickedButton() == oui;
}
