#pragma once

#include "diplomes/regles/Points_DYLF.h"

struct Poste;

namespace diplomes {

/// The rows of the score table of the current station. Throws Erreur_Execution for an absent log.
std::array<Score, nombre_scores> Charge_Scores_DYLF(const Poste &poste);

} // namespace diplomes
