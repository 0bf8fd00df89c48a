#pragma once

#include "plateforme/Erreur_Execution.h"

#include <optional>

/// The failure that `etape` ends with; nullopt if it succeeds.
template <typename Etape>
std::optional<Erreur_Execution> Echec(Etape &&etape)
{
    try {
        etape();
        return std::nullopt;
    } catch (const Erreur_Execution &erreur) {
        return erreur;
    }
}
