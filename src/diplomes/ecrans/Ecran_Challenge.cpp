#include "diplomes/ecrans/Ecran_Challenge.h"

#include "diplomes/ADIF_Canal.h"
#include "diplomes/Charge_Challenge.h"
#include "diplomes/ecrans/Etiquettes.h"
#include "ecrans/Couleurs.h"
#include "ecrans/Liste_Fixe.h"
#include "ecrans/Nomme.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace diplomes {

namespace {

constexpr int lignes_visibles = 20;

QLabel *Etiquette_De_Palier(const Palier &palier)
{
    QLabel *label = Montre_Etiquette(
        {palier.etiquette.toString(), palier.texte.toString(), palier.atteint ? Teinte::Atteint : Teinte::Ordinaire});
    QFont police = label->font();
    police.setBold(palier.atteint);
    label->setFont(police);
    return label;
}

} // namespace

Ecran_Challenge::Ecran_Challenge(Poste &poste)
    : Ecran(u"Challenge"_s, QString()),
      poste_(poste),
      etat_(Charge_Challenge(poste))
{
    setWindowTitle(etat_.entete);
    auto *colonne = new QVBoxLayout(this);
    colonne->addWidget(Grand_Titre(u"Label2"_s, etat_.entete), 0, Qt::AlignHCenter);
    colonne->addWidget(Rangs(), 1);
    auto *grille = new QGridLayout;
    grille->setHorizontalSpacing(fontMetrics().height());
    for (const Palier &palier : etat_.paliers)
        Montre_Palier(palier, grille);
    grille->setColumnStretch(4, 1);
    colonne->addLayout(grille);
}

QWidget *Ecran_Challenge::Rangs()
{
    auto *colonnes = Nomme(new QLabel(this), u"Label3"_s, colonnes_challenge.toString());
    auto *rangs = Nomme(new Liste_Fixe, u"Liste_Contactes"_s);
    Colore(rangs, couleur_finie);
    rangs->Pose_Entete(colonnes);
    rangs->Remplit(etat_.rangs);
    rangs->Reserve(static_cast<int>(colonnes_challenge.size() + 1), lignes_visibles);
    return rangs;
}

void Ecran_Challenge::Montre_Palier(const Palier &palier, QGridLayout *grille)
{
    const int rang = grille->rowCount();
    grille->addWidget(Etiquette_De_Palier(palier), rang, 0);
    grille->addWidget(new QLabel(u"Manque"_s), rang, 1);
    grille->addWidget(Montre_Etiquette({palier.etiquette_manque.toString(), QString::number(palier.manque)}), rang, 2);
    auto *bouton = Nomme(new QPushButton, palier.bouton.toString(), u"Fichier ADIF"_s);
    bouton->setAutoDefault(true);
    bouton->setEnabled(palier.atteint);
    bouton->setAccessibleDescription(palier.texte.toString());
    connect(bouton, &QPushButton::clicked, this,
            [this, texte = palier.texte] { ADIF_Challenge(poste_, etat_, texte); });
    grille->addWidget(bouton, rang, 3);
}

} // namespace diplomes
