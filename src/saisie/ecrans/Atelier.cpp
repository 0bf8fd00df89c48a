#include "saisie/ecrans/Atelier.h"

#include "ecrans/Champ_Saisie.h"
#include "ecrans/Combo.h"
#include "ecrans/Nomme.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

QLabel *Atelier::Etiquette(Controle controle)
{
    auto *etiquette = Nomme(new QLabel(parent_), Nom(controle));
    controles_.Pose(controle,
                    {.widget = etiquette, .ecrit = [etiquette](const QString &texte) { etiquette->setText(texte); }});
    return etiquette;
}

QLabel *Atelier::Legende(const QString &nom, const QString &texte)
{
    return Nomme(new QLabel(parent_), nom, texte);
}

QLineEdit *Atelier::Champ(Controle controle, int caracteres)
{
    auto *champ = Nomme(new Champ_Saisie(caracteres, parent_), Nom(controle));
    controles_.Pose(controle, {.widget = champ, .ligne = champ, .ecrit = [champ](const QString &texte) {
                                   champ->setText(texte);
                                   champ->setCursorPosition(0);
                               }});
    return champ;
}

Combo *Atelier::Liste(Controle controle)
{
    Combo *combo = Nomme(Combo_Libre(parent_), Nom(controle));
    for (const QStringView entree : Entrees(controle))
        combo->addItem(entree.toString());
    controles_.Pose(controle,
                    {.widget = combo, .ligne = combo->lineEdit(), .ecrit = [combo](const QString &texte) {
                         combo->setCurrentIndex(combo->findText(texte, Qt::MatchExactly | Qt::MatchCaseSensitive));
                         combo->setEditText(texte);
                     }});
    return combo;
}

QCheckBox *Atelier::Case(Controle controle, const QString &texte)
{
    auto *case_ = Nomme(new QCheckBox, Nom(controle), texte);
    controles_.Pose(controle, {.widget = case_, .coche = [case_](bool coche) { case_->setChecked(coche); }});
    QObject::connect(case_, &QCheckBox::toggled, case_, [&controles = controles_, controle](bool coche) {
        controles.La_Saisie().Recoit_Coche(controle, coche);
    });
    return case_;
}

QPushButton *Atelier::Bouton(Controle controle, const QString &texte)
{
    auto *bouton = Nomme(new QPushButton(parent_), Nom(controle), texte);
    // Enter presses the button that has the focus.
    bouton->setAutoDefault(true);
    controles_.Pose(controle, {.widget = bouton});
    return bouton;
}

QPushButton *Atelier::Bouton_Variable(Controle controle)
{
    QPushButton *bouton = Bouton(controle, {});
    controles_.Pose(controle, {.widget = bouton, .ecrit = [bouton](const QString &texte) { bouton->setText(texte); }});
    return bouton;
}
