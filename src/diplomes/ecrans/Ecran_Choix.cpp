#include "diplomes/ecrans/Ecran_Choix.h"

#include "diplomes/Affiche_Option.h"
#include "diplomes/ecrans/Etiquettes.h"
#include "ecrans/Combo.h"
#include "ecrans/Nomme.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace diplomes {

Ecran_Choix::Ecran_Choix(Poste &poste, const Choix_Diplome &choix)
    : Ecran(choix.ecran.toString(), choix.titre.toString()),
      poste_(poste),
      choix_(choix)
{
    auto *colonne = new QVBoxLayout(this);
    colonne->addWidget(Grand_Titre(u"Label2"_s, choix.entete.toString()), 0, Qt::AlignHCenter);
    // One group over all frames: at most one option is on, none at first.
    auto *options = new QButtonGroup(this);
    auto *cadres = new QHBoxLayout;
    for (const Groupe_Options &groupe : choix.groupes)
        cadres->addWidget(Cadre(groupe, options));
    colonne->addLayout(cadres);
    colonne->addWidget(Bouton_Afficher(options), 0, Qt::AlignHCenter);
    connect(options, &QButtonGroup::idToggled, this, [this](int indice, bool choisie) {
        if (choisie)
            Montre_Selecteur(indice);
    });
    if (!selecteurs_.empty())
        Montre_Selecteur(selecteurs_.begin()->first);
}

QWidget *Ecran_Choix::Cadre(const Groupe_Options &groupe, QButtonGroup *options)
{
    auto *cadre = new QGroupBox(groupe.etiquette.toString());
    auto *colonne = new QVBoxLayout(cadre);
    for (const Option_Diplome &option : groupe.options) {
        auto *bouton = Nomme(new QRadioButton, u"Diplome_%1"_s.arg(option.indice), option.texte.toString());
        options->addButton(bouton, option.indice);
        colonne->addWidget(bouton);
        if (option.selecteur)
            colonne->addWidget(Selecteur(option));
    }
    colonne->addStretch();
    return cadre;
}

QWidget *Ecran_Choix::Selecteur(const Option_Diplome &option)
{
    auto *bandes = Nomme(new Combo, option.selecteur->nom.toString());
    for (const QStringView bande : option.selecteur->bandes)
        bandes->addItem(bande.toString());
    bandes->setAccessibleName(option.texte.toString());
    QSizePolicy place = bandes->sizePolicy();
    place.setRetainSizeWhenHidden(true);
    bandes->setSizePolicy(place);
    selecteurs_.emplace(option.indice, bandes);
    return bandes;
}

/// An option without a list of bands leaves them as they are.
void Ecran_Choix::Montre_Selecteur(int indice)
{
    if (!selecteurs_.contains(indice))
        return;
    for (const auto &[sien, bandes] : selecteurs_)
        bandes->setVisible(sien == indice);
}

QWidget *Ecran_Choix::Bouton_Afficher(const QButtonGroup *options)
{
    auto *afficher = Nomme(new QPushButton, u"Afficher"_s, u"Afficher"_s);
    afficher->setAutoDefault(true);
    connect(afficher, &QPushButton::clicked, this, [this, options] { Affiche(options->checkedId()); });
    return afficher;
}

void Ecran_Choix::Affiche(int indice)
{
    for (const Groupe_Options &groupe : choix_.groupes)
        for (const Option_Diplome &option : groupe.options)
            if (option.indice == indice)
                Affiche_Option(poste_, option, option.selecteur ? selecteurs_.at(indice)->currentText() : QString());
}

} // namespace diplomes
