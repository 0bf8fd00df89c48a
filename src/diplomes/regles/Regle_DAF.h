#pragma once

#include "diplomes/modele/Fiche_Diplome.h"

namespace diplomes {

/// Confirmed, in the mode of the category chosen: "Mixte" takes any, "Phone" takes SSB alone, "CW" takes CW.
bool Confirme_Mode_Choisi(QStringView ligne_log, const Etat_Commun &etat);

/// Reached with more than three departments, missed with fewer than three: at exactly three, with enough abbeys, the
/// sheet says neither.
Verdict Juge_DAF(const Niveau_Diplome &niveau, Comptes comptes);

} // namespace diplomes
