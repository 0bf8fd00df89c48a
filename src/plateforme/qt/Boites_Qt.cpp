#include "plateforme/qt/Boites_Qt.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

/// On the heap: a box goes with its screen if that is closed while it stands open.
QPointer<QMessageBox> Nouvelle(QMessageBox::Icon icone, const QString &texte)
{
    const QPointer<QMessageBox> boite = new QMessageBox(QApplication::activeWindow());
    boite->setWindowTitle(u"Vorlain"_s);
    boite->setIcon(icone);
    boite->setTextFormat(Qt::PlainText);
    boite->setText(texte);
    return boite;
}

} // namespace

void Boites_Qt::Message(const QString &texte)
{
    const QPointer<QMessageBox> boite = Nouvelle(QMessageBox::Information, texte);
    boite->setDefaultButton(boite->addButton(u"OK"_s, QMessageBox::AcceptRole));
    boite->exec();
    delete boite;
}

bool Boites_Qt::Question(const QString &texte)
{
    const QPointer<QMessageBox> boite = Nouvelle(QMessageBox::Question, texte);
    const QPushButton *oui = boite->addButton(u"Oui"_s, QMessageBox::YesRole);
    QPushButton *non = boite->addButton(u"Non"_s, QMessageBox::NoRole);
    boite->setDefaultButton(qobject_cast<QPushButton *>(boite->buttons().constFirst()));
    boite->setEscapeButton(non);
    boite->exec();
    const bool accepte = boite && boite->clickedButton() == oui;
    delete boite;
    return accepte;
}
