#pragma once

#include <QAbstractButton>
#include <QAbstractItemView>
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
    // Accented letters have keys of their own on a French keyboard, which QTest::keyClicks() does not know.
    for (const QChar caractere : texte)
        QTest::sendKeyEvent(QTest::Click, &widget, static_cast<Qt::Key>(caractere.toUpper().unicode()),
                            QString(caractere), Qt::NoModifier);
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

/// Runs `action`, which blocks on the modal screen `nom`; as soon as that is open, `etapes` drives it.
inline void Pendant_Modal(const QString &nom, const std::function<void()> &action,
                          const std::function<void(QWidget &)> &etapes)
{
    QTimer guetteur;
    guetteur.setInterval(5);
    QObject::connect(&guetteur, &QTimer::timeout, [&] {
        QWidget *ecran = Fenetre(nom);
        if (!ecran || !ecran->isVisible())
            return;
        guetteur.stop();
        etapes(*ecran);
    });
    guetteur.start();
    action();
}

/// The rows of a list, one text each.
inline std::vector<QString> Rangees(const QAbstractItemView &liste)
{
    std::vector<QString> textes;
    for (int rang = 0; rang < liste.model()->rowCount(); ++rang)
        textes.push_back(liste.model()->index(rang, 0).data().toString());
    return textes;
}

/// A real click on a row, and a real double click (whose first click is one).
inline void Clique(QAbstractItemView &liste, int rang)
{
    const QModelIndex index = liste.model()->index(rang, 0);
    liste.scrollTo(index);
    QTest::mouseClick(liste.viewport(), Qt::LeftButton, {}, liste.visualRect(index).center());
}
inline void Double_Clique(QAbstractItemView &liste, int rang)
{
    Clique(liste, rang);
    const QModelIndex index = liste.model()->index(rang, 0);
    QTest::mouseDClick(liste.viewport(), Qt::LeftButton, {}, liste.visualRect(index).center());
}

} // namespace conduite
