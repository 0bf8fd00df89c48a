#pragma once

#include "listes/Recherche.h"

/// The look-ups. Those named Cherche_ serve entry, those named Nom_ the refresh of names; they read the same lists and
/// differ in what they pass over and compare.
namespace recherches {

extern const Recherche Cherche_DFCF;
extern const Recherche Cherche_DCF;
extern const Recherche Cherche_FFF;
extern const Recherche Cherche_DPLF;
extern const Recherche Cherche_TDC;
extern const Recherche Ligne_TDC;
extern const Recherche Cherche_Ouvrage;
extern const Recherche Cherche_PC;

extern const Recherche Nom_Ouvrage;
extern const Recherche Nom_DFCF;
extern const Recherche Nom_DPLF;
extern const Recherche Nom_FFF;

} // namespace recherches
