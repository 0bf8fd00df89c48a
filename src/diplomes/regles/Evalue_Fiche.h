#pragma once

#include "diplomes/Fiche_Diplome.h"

#include <span>

/// What a sheet shows for its counts, one entry a rule.
Etat_Fiche Evalue_Fiche(const Fiche_Diplome &fiche, std::span<const Comptes> comptes, const Etat_Commun &etat);
