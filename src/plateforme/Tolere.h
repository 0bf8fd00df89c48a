#pragma once

#include "plateforme/Erreur_Execution.h"

#include <QString>

#include <optional>
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

/// The same, where the caller decides by the failure what comes next.
template <typename Etape>
std::optional<Erreur_Execution> Echec_De(Etape &&etape)
{
    try {
        std::forward<Etape>(etape)();
        return std::nullopt;
    } catch (const Erreur_Execution &erreur) {
        return erreur;
    }
}

/// The same, where the user is to be told in the words of the operation: gives the text of the failure.
template <typename Etape>
std::optional<QString> Empechement(Etape &&etape)
{
    const std::optional<Erreur_Execution> echec = Echec_De(std::forward<Etape>(etape));
    return echec ? std::optional(echec->Texte()) : std::nullopt;
}
