#pragma once

#include "diplomes/modele/Fiche_Diplome.h"

namespace diplomes {

/// Confirmed, on the HF list where Code_Categorie is "HF", else on "144 Mhz".
bool Confirme_Bande_Choisie(QStringView ligne_log, const Etat_Commun &etat);

/// The sheet with the thresholds of the band chosen: those of the table are for "HF".
Etat_Fiche Evalue_DFF(const Fiche_Diplome &fiche, const Lectures &lues, const Etat_Commun &etat);

} // namespace diplomes
