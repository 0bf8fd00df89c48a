#pragma once

#include "log/Diplome.h"
#include "plateforme/Lignes_Texte.h"

struct Recherche;

namespace diplomes {

/// The files that a sheet or a list is worked out from.
struct Sources {
    Diplome diplome;                   ///< whose log it is
    std::optional<Diplome> autre = {}; ///< an award with the same sheet: its log, when it is the award in hand
    /// The look-up that takes its references up in their list, if there is one.
    const Recherche *references = nullptr;
};

/// What was read of them.
struct Lectures {
    Lignes_Texte log;
    Lignes_Texte references = {};
};

} // namespace diplomes
