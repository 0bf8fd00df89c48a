#pragma once

#include "diplomes/Fiche_Diplome.h"
#include "plateforme/Lignes_Texte.h"

#include <vector>

class Index_Liste;

/// The confirmed contacts with towers of a telegraph line; `tours` looks a reference up in the list of towers. A
/// reference that the list does not know is passed over. Throws Erreur_Execution as the look-up.
std::vector<QStringView> Lignes_TDC(const Lignes_Texte &lignes, QStringView ligne_de_tours, Index_Liste &tours);

/// Reached with exactly as many contacts as the line has towers: one more, and it is not.
Verdict Juge_TDC(const Niveau_Diplome &niveau, Comptes comptes);
