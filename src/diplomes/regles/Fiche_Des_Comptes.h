#pragma once

#include "diplomes/modele/Fiche_Diplome.h"

#include <span>

namespace diplomes {

/// What a sheet shows for its counts, one entry a rule.
Etat_Fiche Fiche_Des_Comptes(const Fiche_Diplome &fiche, std::span<const Comptes> comptes, const Etat_Commun &etat);

} // namespace diplomes
