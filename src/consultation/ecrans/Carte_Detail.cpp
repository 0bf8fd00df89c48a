#include "consultation/ecrans/Carte_Detail.h"

#include "consultation/ecrans/Carte.h"
#include "ecrans/Nomme.h"
#include "log/Etat_Commun.h"
#include "log/Poste.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

Carte_Detail::Carte_Detail(Poste &poste) : Ecran(u"Carte_Detail"_s, u"Position de l'ouvrage hydraulique"_s)
{
    auto *carte = Nomme(new Carte(this), u"Picture1"_s);
    carte->Colore_Boites(Marque_Departement(poste.etat.departement_carte));
    auto *colonne = new QVBoxLayout(this);
    colonne->addWidget(carte, 1);
    colonne->addWidget(Legende_Carte({{Couleur_Dep::Confirme, u"département de l'ouvrage"_s}}, this));
    Centre(*this);
}
