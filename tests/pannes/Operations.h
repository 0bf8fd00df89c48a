#pragma once

#include "Seance.h"

#include <span>
#include <vector>

using Geste = void (*)(Seance &);

/// A thing that the program does to its files.
struct Operation {
    const char *nom;
    void (*prepare)(const Terrain &); ///< the files before, those of a used station aside
    Geste agit;
    std::vector<Geste> etapes = {}; ///< what the files may also be when it was cut off: as these leave them
    bool passe_outre = false;       ///< its failures are passed over, as the program is told to
    bool a_neuf = false;            ///< begins without a station; the next start must end what it began
};

std::span<const Operation> Operations();

/// Starts the program as main does.
void Demarre_Le_Programme(Seance &seance);
