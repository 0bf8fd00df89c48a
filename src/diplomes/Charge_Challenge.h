#pragma once

#include "diplomes/modele/Etat_Challenge.h"

struct Poste;

namespace diplomes {

/// The board of the canal in the common state. Throws Erreur_Execution if the log or the list of works is absent, and
/// as Evalue_Challenge.
Etat_Challenge Charge_Challenge(const Poste &poste);

} // namespace diplomes
