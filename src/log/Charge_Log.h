#pragma once

#include "log/Diplome.h"

struct Poste;

/// Reloads Liste_QSO from the log of an award and enables Ind_A. References of earlier forms are carried over on the
/// way and the log is rewritten then. Throws Erreur_Execution if the log cannot be opened; the list is then empty.
void Charge_Log(Poste &poste, std::optional<Diplome> diplome);
