#pragma once

#include "diplomes/modele/Etat_Challenge.h"
#include "diplomes/modele/Lectures.h"

struct Etat_Commun;

namespace diplomes {

/// What the board of a canal is worked out from: the log of the works, and their list.
extern const Sources sources_du_canal;

/// The steps for `contactes` works of a canal that has `ouvrages`.
std::array<Palier, 4> Paliers(int contactes, int ouvrages);

/// The board of the canal in the common state: every line of the log with a work on it, confirmed or not. Throws
/// Erreur_Execution for a line of the list with fewer than ten separators.
Etat_Challenge Evalue_Challenge(const Lectures &lues, const Etat_Commun &etat);

} // namespace diplomes
