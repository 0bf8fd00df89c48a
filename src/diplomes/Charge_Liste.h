#pragma once

#include "diplomes/modele/Liste_Diplome.h"

struct Poste;

namespace diplomes {

/// What the list shows now. Throws Erreur_Execution for an absent log, and for a line of the tier with a department
/// that the award's list cannot take.
Etat_Liste Charge_Liste(const Poste &poste, const Liste_Diplome &liste);

} // namespace diplomes
