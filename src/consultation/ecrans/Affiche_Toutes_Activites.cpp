#include "consultation/ecrans/Affiche_Toutes_Activites.h"

#include "consultation/Toutes_Activites.h"
#include "ecrans/Chaine_Entree.h"
#include "ecrans/Champ_Saisie.h"
#include "ecrans/Liste_Fixe.h"
#include "ecrans/Nomme.h"
#include "log/Poste.h"
#include "plateforme/Boites.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

Affiche_Toutes_Activites::Affiche_Toutes_Activites(Poste &poste)
    : Ecran(u"Affiche_Toutes_Activites"_s, u"Liste des ativations contactées d'un activeur"_s),
      poste_(poste),
      indicatif_(Nomme(new Champ_Saisie(14, this), u"Indicatif"_s)),
      liste_(Nomme(new Liste_Fixe(this), u"Liste_All_Acti"_s)),
      affiche_(Nomme(new QPushButton(this), u"Affiche"_s, u"Afficher"_s)),
      quitter_(Nomme(new QPushButton(this), u"Quitter"_s, u"Quitter"_s))
{
    Dispose();
    affiche_->setAutoDefault(true);
    affiche_->setEnabled(false);
    quitter_->setAutoDefault(true);
    new Chaine_Entree(indicatif_, {.entree = [this] { Indicatif_Entre(); }});
    connect(affiche_, &QPushButton::clicked, this, &Affiche_Toutes_Activites::Affiche);
    connect(quitter_, &QPushButton::clicked, this, &QWidget::close);
    indicatif_->setFocus();
    Centre(*this);
}

void Affiche_Toutes_Activites::Dispose()
{
    auto *legende = Nomme(new QLabel(this), u"Label1"_s, u"Liste des ativations contactées de :"_s);
    legende->setBuddy(indicatif_);
    indicatif_->setAccessibleName(legende->text());
    liste_->setAccessibleName(windowTitle());
    liste_->Pose_Entete(Nomme(new QLabel, u"Label2"_s, entete_toutes_activites.toString()));
    liste_->Reserve(static_cast<int>(entete_toutes_activites.size()), 24);

    auto *rangee = new QHBoxLayout;
    for (QWidget *controle : std::initializer_list<QWidget *>{legende, indicatif_, affiche_})
        rangee->addWidget(controle);
    rangee->addStretch();
    rangee->addWidget(quitter_);
    auto *colonne = new QVBoxLayout(this);
    colonne->addLayout(rangee);
    colonne->addWidget(liste_, 1);
}

void Affiche_Toutes_Activites::Indicatif_Entre()
{
    if (const auto refus = Refus_Activateur(indicatif_->text())) {
        poste_.boites.Message(*refus);
        return;
    }
    affiche_->setEnabled(true);
    affiche_->setFocus();
}

void Affiche_Toutes_Activites::Affiche()
{
    liste_->Remplit({});
    liste_->Remplit(Toutes_Activites(poste_, indicatif_->text()));
}
