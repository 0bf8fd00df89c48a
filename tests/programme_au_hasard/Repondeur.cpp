#include "programme_au_hasard/Repondeur.h"

#include "faux/Conduite.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintDialog>

#include <utility>

using namespace Qt::StringLiterals;

Repondeur::Repondeur(Hasard &hasard, std::function<QString()> fichier, std::function<void(const QString &)> fin)
    : hasard_(hasard),
      fichier_(std::move(fichier)),
      fin_(std::move(fin))
{
    Guette();
}

void Repondeur::Oublie()
{
    vus_.clear();
    annees_.clear();
    stations_.clear();
    essais_ = 0;
}

/// A timer of its own for each turn: one that is answering does not fire again in the loop of the next box.
void Repondeur::Guette()
{
    QTimer::singleShot(1, &guet_, [this] {
        Guette();
        Regarde();
    });
}

void Repondeur::Regarde()
{
    QWidget *devant = QApplication::activeModalWidget();
    if (!devant || !devant->isVisible())
        return;
    if (auto *boite = qobject_cast<QMessageBox *>(devant))
        return Repond(*boite);
    if (std::exchange(occupe_, true))
        return;
    ++essais_;
    if (auto *fichiers = qobject_cast<QFileDialog *>(devant))
        Choisit(*fichiers);
    else if (devant->objectName() == u"Station")
        Ecrit_La_Station(*devant);
    else if (devant->objectName() == u"Select_Annee")
        Ecrit_L_Annee(*devant);
    else
        QTest::keyClick(devant, hasard_.Sur_Cent(30) && essais_ < 3 ? Qt::Key_Return : Qt::Key_Escape);
    occupe_ = false;
}

void Repondeur::Repond(QMessageBox &boite)
{
    if (boite.property("repondue").toBool())
        return;
    boite.setProperty("repondue", true);
    vus_ += boite.text();
    if (boite.text().startsWith(u"Erreur d'exécution"))
        fin_(boite.text());
    const QList<QAbstractButton *> boutons = boite.buttons();
    // "Oui" stands first: an operator who asked for something mostly wants it.
    const bool premier = boutons.size() == 1 || hasard_.Sur_Cent(75);
    QAbstractButton *bouton = premier ? boutons.constFirst() : boutons.constLast();
    QTest::mouseClick(bouton, Qt::LeftButton);
}

void Repondeur::Choisit(QFileDialog &dialogue)
{
    const QString chemin = essais_ < 3 ? fichier_() : QString();
    if (chemin.isEmpty())
        return QTest::keyClick(&dialogue, Qt::Key_Escape);
    auto *nom = dialogue.findChild<QLineEdit *>(u"fileNameEdit"_s);
    nom->setText(chemin);
    QTest::keyClick(nom, Qt::Key_Return);
}

void Repondeur::Ecrit_La_Station(QWidget &ecran)
{
    static const std::vector<QString> indicatifs = {u"f9zzy"_s,   u"F9ZZY"_s, u"f2old"_s,  u"F2OLD"_s,
                                                    u"f5new/p"_s, u""_s,      u"F9-ZZY"_s, u"F1TOOLONGCALL"_s};
    const QString &indicatif = hasard_.Un_De(indicatifs);
    stations_ += QString(indicatif).toUpper().replace(u'/', u'_');
    Valide(ecran, u"New_Indicatif"_s, indicatif);
}

void Repondeur::Ecrit_L_Annee(QWidget &ecran)
{
    static const std::vector<QString> annees = {u"2024"_s, u"2025"_s, u"2026"_s, u"20/26"_s};
    const QString &annee = hasard_.Un_De(annees);
    annees_ += annee;
    Valide(ecran, u"New_Annee"_s, annee);
}

void Repondeur::Valide(QWidget &ecran, const QString &champ, const QString &texte)
{
    if (essais_ > 3 || hasard_.Sur_Cent(15)) {
        ecran.close();
        return;
    }
    auto *zone = conduite::Trouve<QLineEdit>(ecran, champ);
    zone->selectAll();
    QTest::keyClick(zone, Qt::Key_Backspace);
    conduite::Tape(*zone, texte);
    conduite::Entree(*zone);
    QTest::keyClick(conduite::Trouve(ecran, u"Validation"_s), Qt::Key_Return);
}
