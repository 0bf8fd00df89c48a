#pragma once

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <functional>
#include <stdexcept>
#include <vector>

/// Drives the real screens by name, by key and by mouse.
namespace conduite {

inline QWidget *Fenetre(const QString &nom)
{
    for (QWidget *fenetre : QApplication::topLevelWidgets())
        if (fenetre->objectName() == nom)
            return fenetre;
    return nullptr;
}

template <typename Widget = QWidget>
Widget *Trouve(const QWidget &ecran, const QString &nom)
{
    auto *widget = ecran.findChild<Widget *>(nom);
    if (!widget)
        throw std::runtime_error("no control " + nom.toStdString());
    return widget;
}

inline void Tape(QWidget &widget, const QString &texte)
{
    QTest::keyClicks(&widget, texte);
}

inline void Entree(QWidget &widget)
{
    QTest::keyClick(&widget, Qt::Key_Return);
}

/// Answers the message boxes that open while `action` runs, in their order, with the buttons of these texts; gives the
/// texts of the boxes. A box beyond the list is answered with its first button.
inline std::vector<QString> Repond(const std::vector<QString> &reponses, const std::function<void()> &action)
{
    std::vector<QString> textes;
    QTimer guetteur;
    guetteur.setInterval(5);
    QObject::connect(&guetteur, &QTimer::timeout, [&] {
        auto *boite = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!boite || boite->property("repondue").toBool())
            return;
        boite->setProperty("repondue", true);
        const QString voulu = textes.size() < reponses.size() ? reponses[textes.size()] : QString();
        textes.push_back(boite->text());
        QAbstractButton *bouton = boite->buttons().constFirst();
        for (QAbstractButton *possible : boite->buttons())
            if (possible->text() == voulu)
                bouton = possible;
        bouton->click();
    });
    guetteur.start();
    action();
    return textes;
}

} // namespace conduite
