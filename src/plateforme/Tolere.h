#pragma once

#include "plateforme/Erreur_Execution.h"

#include <utility>

/// Runs one step whose failure is passed over: the next statement of the caller runs regardless.
/// Gives false if the step failed.
template <typename Etape>
bool Tolere(Etape &&etape)
{
    try {
        std::forward<Etape>(etape)();
        return true;
    } catch (const Erreur_Execution &) {
        return false;
    }
}
