#pragma once

#include "diplomes/modele/Fiche_Diplome.h"

#include <vector>

namespace diplomes {

/// The confirmed contacts with towers of a telegraph line, by the list of towers that was read. A reference that the
/// list does not know is passed over. Throws Erreur_Execution as the look-up.
std::vector<QStringView> Lignes_TDC(const Lectures &lues, QStringView ligne_de_tours);

/// Reached with exactly as many contacts as the line has towers: one more, and it is not.
Verdict Juge_TDC(const Niveau_Diplome &niveau, Comptes comptes);

} // namespace diplomes
