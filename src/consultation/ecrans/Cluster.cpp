#include "consultation/ecrans/Cluster.h"

#include "consultation/Pages_Web.h"
#include "ecrans/Combo.h"
#include "ecrans/Nomme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

Cluster::Cluster(Poste &poste)
    : Ecran_Web(poste, u"Cluster"_s, u"Cluster"_s),
      bande_(Nomme(new Combo(this), u"Bande_CL"_s))
{
    const auto texte = [this](const QString &nom, const QString &contenu) {
        return Nomme(new QLabel(this), nom, contenu);
    };
    for (const Bande_Cluster &bande : bandes_cluster)
        bande_->addItem(bande.entree.toString());
    bande_->setCurrentIndex(Place_Cluster(poste));
    auto *legende = texte(u"Label3"_s, u"Bande"_s);
    legende->setBuddy(bande_);
    bande_->setAccessibleName(legende->text());
    auto *afficher = Nomme(new QPushButton(this), u"Afficher"_s, u"Afficher"_s);
    afficher->setAutoDefault(true);
    connect(afficher, &QPushButton::clicked, this, &Cluster::Affiche);

    auto *rangee = new QHBoxLayout;
    rangee->addWidget(texte(u"Label2"_s, u"Cluster (DxCluster)"_s));
    rangee->addStretch();
    for (QWidget *controle : std::initializer_list<QWidget *>{legende, bande_, afficher})
        rangee->addWidget(controle);
    rangee->addStretch();
    rangee->addWidget(texte(u"Label1"_s, u"Cluster remis a jour toutes les minutes"_s));
    auto *colonne = new QVBoxLayout(this);
    colonne->addLayout(rangee);
    colonne->addWidget(Controle_Web(), 1);
    Centre(*this);
    Affiche();
}

void Cluster::Affiche()
{
    Choisit_Cluster(Le_Poste(), bande_->currentIndex());
    Montre_Page();
}
