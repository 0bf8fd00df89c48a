#pragma once

#include "diplomes/modele/Fiche_Diplome.h"

struct Poste;

namespace diplomes {

/// What the sheet shows now. Throws Erreur_Execution for an absent log, and for a department that is no number from 0
/// to 97 where departments are counted.
Etat_Fiche Charge_Fiche(const Poste &poste, const Fiche_Diplome &fiche);

/// The button of a tier: sets its shared texts and shows the list. A button without an action does nothing.
void Presse_Bouton(Poste &poste, const Fiche_Diplome &fiche, QStringView bouton);

} // namespace diplomes
