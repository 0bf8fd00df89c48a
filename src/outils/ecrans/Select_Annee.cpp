#include "outils/ecrans/Select_Annee.h"

#include "ecrans/Chaine_Entree.h"
#include "ecrans/Champ_Saisie.h"
#include "ecrans/Couleurs.h"
#include "ecrans/Nomme.h"
#include "log/Etat_Commun.h"
#include "log/Poste.h"
#include "outils/Choisit_Annee.h"

#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

Select_Annee::Select_Annee(Poste &poste)
    : Ecran(u"Select_Annee"_s, u"Année du Challenge"_s),
      poste_(poste),
      new_annee_(Nomme(new Champ_Saisie(8, this), u"New_Annee"_s, Annee_Challenge(poste))),
      validation_(Nomme(new QPushButton(this), u"Validation"_s, u"Valider"_s))
{
    auto *titre = Nomme(new QLabel(this), u"Label7"_s, u"Année du Challenge"_s);
    auto *genre = Nomme(new QLabel(this), u"L_Activ"_s, Genre_Challenge(poste).toString());
    auto *annee = Nomme(new QLabel(this), u"Label3"_s, u"Année"_s);
    annee->setBuddy(new_annee_);
    new_annee_->setAccessibleName(annee->text());
    validation_->setAutoDefault(true);

    auto *formulaire = new QFormLayout(this);
    formulaire->addRow(titre, genre);
    formulaire->addRow(annee, new_annee_);
    formulaire->addRow(validation_);

    new Chaine_Entree(new_annee_, {.entree = [this] { Annee_Entree(); }});
    connect(validation_, &QPushButton::clicked, this, &Select_Annee::Valide);
    new_annee_->setFocus();
    new_annee_->selectAll();
    Centre(*this);
}

void Select_Annee::Annee_Entree()
{
    Colore(new_annee_, couleur_finie);
    Colore(validation_, couleur_courante);
    new_annee_->setEnabled(true);
    validation_->setEnabled(true);
    validation_->setFocus();
}

void Select_Annee::Valide()
{
    if (Choisit_Annee(poste_, new_annee_->text()))
        close();
}
