#pragma once

#include "diplomes/modele/Liste_Diplome.h"

namespace diplomes {

// What a sheet and a list show, worked out from what was read and from the shared texts.

/// Throws Erreur_Execution for a department that is no number from 0 to 97 where departments are counted, and for a
/// list of references that a look-up cannot read.
Etat_Fiche Evalue_Fiche(const Fiche_Diplome &fiche, const Lectures &lues, const Etat_Commun &etat);

/// Throws Erreur_Execution for a line of the tier with a department that the award's list cannot take, and for a list
/// of references that a look-up cannot read.
Etat_Liste Evalue_Liste(const Liste_Diplome &liste, const Lectures &lues, const Etat_Commun &etat);

} // namespace diplomes
