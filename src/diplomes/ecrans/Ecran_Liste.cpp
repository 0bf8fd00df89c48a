#include "diplomes/ecrans/Ecran_Liste.h"

#include "diplomes/ADIF_Ouvrages.h"
#include "diplomes/Charge_Liste.h"
#include "diplomes/Sorties_Liste.h"
#include "diplomes/ecrans/Etiquettes.h"
#include "ecrans/Couleurs.h"
#include "ecrans/Liste_Fixe.h"
#include "ecrans/Nomme.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace diplomes {

namespace {

constexpr int lignes_visibles = 25;

Liste_Fixe *Rangs(const QString &nom, QLabel *colonnes)
{
    auto *rangs = Nomme(new Liste_Fixe, nom);
    QFont police = Liste_Fixe::Police();
    police.setPointSize(9);
    rangs->setFont(police);
    Colore(rangs, couleur_finie);
    rangs->Pose_Entete(colonnes);
    return rangs;
}

/// Room for the header and for every row, and a column to spare, so that no bar is needed sideways.
int Largeur(const Etat_Liste &etat)
{
    qsizetype largeur = etat.colonnes.size();
    for (const QString &rang : etat.rangs)
        largeur = std::max(largeur, rang.size());
    return static_cast<int>(largeur + 1);
}

} // namespace

Ecran_Liste::Ecran_Liste(Poste &poste, const Liste_Diplome &liste)
    : Ecran(liste.ecran.toString(), QString()),
      poste_(poste),
      liste_(liste),
      etat_(Charge_Liste(poste, liste)),
      entete_(Grand_Titre(u"Label4"_s, QString())),
      colonnes_(Nomme(new QLabel, u"Label2"_s)),
      compte_(Nomme(new QLabel, u"Label3"_s)),
      rangs_(Rangs(liste.nom.toString(), colonnes_))
{
    Montre_Etat();
    rangs_->Remplit(etat_.rangs);
    rangs_->Reserve(Largeur(etat_), lignes_visibles);
    auto *colonne = new QVBoxLayout(this);
    colonne->addWidget(entete_);
    colonne->addWidget(rangs_, 1);
    colonne->addWidget(compte_);
    colonne->addLayout(Boutons());
}

void Ecran_Liste::Montre_Etat()
{
    setWindowTitle(etat_.titre);
    entete_->setText(etat_.entete);
    colonnes_->setText(etat_.colonnes);
    compte_->setText(etat_.compte);
}

QBoxLayout *Ecran_Liste::Boutons()
{
    auto *boutons = new QHBoxLayout;
    Ajoute_Bouton(boutons, u"Imprimer"_s, u"Imprimer"_s, [this] { Imprime_Liste(poste_, liste_, etat_); });
    Ajoute_Bouton(boutons, u"Enregistrer"_s, u"Enregistrer"_s, [this] { Enregistre_Liste(poste_, liste_, etat_); });
    if (liste_.adif)
        Ajoute_Bouton(boutons, u"ADIF"_s, u"Fichier ADIF"_s, [this] {
            const QPointer<Ecran_Liste> ici(this);
            ADIF_Ouvrages(poste_, liste_, etat_);
            if (ici)
                Montre_Etat();
        });
    boutons->addStretch();
    Ajoute_Bouton(boutons, u"Command1"_s, u"Quitter"_s, [this] { close(); });
    return boutons;
}

void Ecran_Liste::Ajoute_Bouton(QBoxLayout *boutons, const QString &nom, const QString &texte,
                                const std::function<void()> &presse)
{
    auto *bouton = Nomme(new QPushButton, nom, texte);
    bouton->setAutoDefault(true);
    connect(bouton, &QPushButton::clicked, this, presse);
    boutons->addWidget(bouton);
}

} // namespace diplomes
