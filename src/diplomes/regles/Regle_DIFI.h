#pragma once

#include "diplomes/modele/Etat_Fiche.h"

namespace diplomes {

/// Where Mixte waits for departments alone, its number of QSOs shows nothing instead of 0.
void Vide_Nombre_Mixte(Etat_Fiche &etat);

} // namespace diplomes
