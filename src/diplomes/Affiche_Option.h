#pragma once

#include "diplomes/modele/Choix_Diplome.h"

struct Poste;

namespace diplomes {

/// Afficher with this option on: sets its texts and shows its screen. `bande` is the text of its selector, if it has
/// one.
void Affiche_Option(Poste &poste, const Option_Diplome &option, const QString &bande = {});

} // namespace diplomes
