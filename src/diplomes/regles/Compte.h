#pragma once

#include "diplomes/modele/Fiche_Diplome.h"
#include "plateforme/Lignes_Texte.h"

#include <span>
#include <vector>

namespace diplomes {

/// The counts of each rule over the lines of a log, in one pass. Doubles are not told apart: only departments are
/// counted once. Throws Erreur_Execution for a line that counts and whose department is no number from 0 to 97.
std::vector<Comptes> Compte(std::span<const Regle_Compte> regles, const Lignes_Texte &lignes, const Etat_Commun &etat);

} // namespace diplomes
