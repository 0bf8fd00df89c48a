#pragma once

#include "diplomes/Choix_Diplome.h"
#include "diplomes/Fiche_Diplome.h"
#include "diplomes/Liste_Diplome.h"

#include <span>

// The awards as data, each in its own Table_<code>.cpp.

extern const Fiche_Diplome fiche_dfcf;

extern const Liste_Diplome liste_dfcf;

/// Every sheet, every list and every choice screen that the frames show.
std::span<const Fiche_Diplome *const> Fiches();
std::span<const Liste_Diplome *const> Listes();
std::span<const Choix_Diplome *const> Choix_De_Diplomes();
