#pragma once

#include "diplomes/modele/Liste_Diplome.h"

namespace diplomes {

/// The list of an award from the log lines that stand in it, in the order of the log: their rows, sorted by their text
/// without regard to case, with their number and the texts around them.
Etat_Liste Liste_Des_Lignes(const Liste_Diplome &liste, std::span<const QStringView> lignes, const Etat_Commun &etat);

} // namespace diplomes
