#include "diplomes/ecrans/Ecran_Fiche.h"

#include "diplomes/Charge_Fiche.h"
#include "diplomes/ecrans/Etiquettes.h"
#include "ecrans/Nomme.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace diplomes {

namespace {

QLayout *Detail(const Etat_Niveau &niveau)
{
    auto *detail = new QHBoxLayout;
    for (const Etiquette &etiquette : niveau.detail) {
        QLabel *label = Montre_Etiquette(etiquette);
        // The labels of one sentence stand a blank apart.
        detail->setSpacing(label->fontMetrics().horizontalAdvance(u' '));
        detail->addWidget(label);
    }
    detail->addStretch();
    return detail;
}

/// A thin bar without a text, so that the sheet is read at a glance.
QWidget *Barre(double avancement)
{
    auto *barre = new QProgressBar;
    barre->setRange(0, 1000);
    barre->setValue(static_cast<int>(avancement * 1000));
    barre->setTextVisible(false);
    barre->setFixedHeight(barre->fontMetrics().height() / 3);
    return barre;
}

} // namespace

Ecran_Fiche::Ecran_Fiche(Poste &poste, const Fiche_Diplome &fiche)
    : Ecran(fiche.ecran.toString(), QString()),
      poste_(poste),
      fiche_(fiche)
{
    const Etat_Fiche etat = Charge_Fiche(poste, fiche);
    setWindowTitle(etat.titre);
    auto *colonne = new QVBoxLayout(this);
    colonne->addWidget(Grand_Titre(u"Label2"_s, etat.entete), 0, Qt::AlignHCenter);
    auto *grille = new QGridLayout;
    grille->setColumnStretch(0, 1);
    grille->setHorizontalSpacing(2 * fontMetrics().height());
    for (const Etat_Niveau &niveau : etat.niveaux)
        Montre_Niveau(niveau, grille);
    colonne->addLayout(grille);
    colonne->addStretch();
}

void Ecran_Fiche::Montre_Niveau(const Etat_Niveau &niveau, QGridLayout *grille)
{
    const int rang = grille->rowCount();
    auto *textes = new QVBoxLayout;
    textes->setSpacing(fontMetrics().height() / 4);
    textes->addWidget(Montre_Etiquette(niveau.etat));
    textes->addLayout(Detail(niveau));
    if (niveau.avancement)
        textes->addWidget(Barre(*niveau.avancement));
    grille->addLayout(textes, rang, 0);
    if (!niveau.bouton.nom.isEmpty())
        grille->addWidget(Bouton(niveau), rang, 1, Qt::AlignVCenter);
    grille->setRowMinimumHeight(rang + 1, fontMetrics().height() / 2);
}

QWidget *Ecran_Fiche::Bouton(const Etat_Niveau &niveau)
{
    const QString nom = niveau.bouton.nom;
    auto *bouton = Nomme(new QPushButton, nom, u"Voir la liste"_s);
    bouton->setAutoDefault(true);
    bouton->setEnabled(niveau.bouton.actif);
    bouton->setAccessibleDescription(niveau.etat.texte);
    connect(bouton, &QPushButton::clicked, this, [this, nom] { Presse_Bouton(poste_, fiche_, nom); });
    return bouton;
}

} // namespace diplomes
