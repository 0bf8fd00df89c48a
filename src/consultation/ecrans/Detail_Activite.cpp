#include "consultation/ecrans/Detail_Activite.h"

#include "consultation/Detail_Ouvrage.h"
#include "consultation/ecrans/Champ_Lu.h"
#include "ecrans/Chaine_Entree.h"
#include "ecrans/Champ_Saisie.h"
#include "ecrans/Nomme.h"
#include "log/Etat_Commun.h"
#include "log/Poste.h"
#include "plateforme/Boites.h"
#include "plateforme/Ecrans.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

Detail_Activite::Detail_Activite(Poste &poste)
    : Ecran(u"Detail_Activite"_s, u"Detail d'une référence"_s),
      poste_(poste),
      reference_(Nomme(new Champ_Saisie(9, this), u"Reference_I"_s)),
      ouvre_lien_(Bouton(u"Ouvre_Lien"_s, u"Ouvrir le lien"_s))
{
    auto *colonne = new QVBoxLayout(this);
    auto *fiche = new QWidget(this);
    auto *formulaire = new QFormLayout(fiche);
    formulaire->setContentsMargins({});
    for (const Champ_Detail &champ : champs_detail_activite)
        Ajoute_Champ_Lu(*formulaire, champ, 60);
    colonne->addWidget(fiche);
    colonne->addLayout(Lien());
    colonne->addLayout(Demande());

    new Chaine_Entree(reference_, {.entree = [this] { Reference_Entree(); }});
    reference_->setText(Reference_Ouvrage(poste));
    Charge();
    reference_->setFocus();
    Centre(*this);
}

QPushButton *Detail_Activite::Bouton(const QString &nom, const QString &texte)
{
    auto *bouton = Nomme(new QPushButton(this), nom, texte);
    bouton->setAutoDefault(true);
    return bouton;
}

QHBoxLayout *Detail_Activite::Lien()
{
    auto *rangee = new QHBoxLayout;
    rangee->addStretch();
    rangee->addWidget(ouvre_lien_);
    connect(Champ(u"Internet_I"_s), &QLineEdit::textChanged, ouvre_lien_,
            [this](const QString &lien) { ouvre_lien_->setEnabled(!lien.isEmpty()); });
    connect(ouvre_lien_, &QPushButton::clicked, this, &Detail_Activite::Ouvre_Lien);
    ouvre_lien_->setEnabled(false);
    return rangee;
}

QHBoxLayout *Detail_Activite::Demande()
{
    auto *legende = Nomme(new QLabel(this), u"L_Reference_I"_s, u"Ou nouvelle Référence :"_s);
    legende->setBuddy(reference_);
    reference_->setAccessibleName(legende->text());
    auto *afficher = Bouton(u"Afficher"_s, u"Afficher"_s);
    auto *situer = Bouton(u"Situer"_s, u"Situer sur la carte"_s);
    auto *rangee = new QHBoxLayout;
    for (QWidget *controle : std::initializer_list<QWidget *>{legende, reference_, afficher})
        rangee->addWidget(controle);
    rangee->addStretch();
    rangee->addWidget(situer);
    connect(afficher, &QPushButton::clicked, this, &Detail_Activite::Charge);
    connect(situer, &QPushButton::clicked, this, &Detail_Activite::Situe);
    return rangee;
}

QLineEdit *Detail_Activite::Champ(const QString &nom) const
{
    return findChild<QLineEdit *>(nom);
}

void Detail_Activite::Reference_Entree()
{
    if (const auto refus = Refus_Ouvrage(reference_->text()))
        poste_.boites.Message(*refus);
    else
        Charge();
}

void Detail_Activite::Charge()
{
    for (const auto &[nom, texte] : Charge_Detail(poste_, reference_->text()))
        Montre_Debut(*Champ(nom), texte);
}

void Detail_Activite::Situe()
{
    poste_.etat.departement_carte = Champ(u"Dpt_I"_s)->text();
    poste_.ecrans.Montre(u"Carte_Detail"_s);
}

void Detail_Activite::Ouvre_Lien()
{
    poste_.etat.adresse_page = Champ(u"Internet_I"_s)->text();
    poste_.etat.titre_page = u"Lien internet"_s;
    poste_.ecrans.Montre(u"Affichage"_s);
}
