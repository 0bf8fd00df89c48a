#include "consultation/ecrans/Reglements.h"

#include "consultation/Pages_Web.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

Reglements::Reglements(Poste &poste) : Ecran_Web(poste, u"Reglements"_s, u"Règlements"_s)
{
    auto *colonne = new QVBoxLayout(this);
    colonne->addWidget(Controle_Web());
    Centre(*this);
    Choisit_Reglement(poste);
    Montre_Page();
}
