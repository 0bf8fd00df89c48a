#include "consultation/ecrans/Affichage.h"

#include "log/Etat_Commun.h"
#include "log/Poste.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

Affichage::Affichage(Poste &poste) : Ecran_Web(poste, u"Affichage"_s, poste.etat.titre_page)
{
    auto *colonne = new QVBoxLayout(this);
    colonne->addWidget(Controle_Web());
    Centre(*this);
    Montre_Page();
}
