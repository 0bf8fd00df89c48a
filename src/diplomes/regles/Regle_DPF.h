#pragma once

#include "diplomes/modele/Fiche_Diplome.h"
#include "plateforme/Lignes_Texte.h"

namespace diplomes {

/// The kind of the award, in Code_Categorie, that asks for five bands; the other is "Simple".
inline constexpr QStringView cinq_bandes_dpf = u"5 Bandes";

/// How many provinces are confirmed in a mode: over the class of bands that Bande_Liste names, or for the five-band
/// kind on the one band `bande`.
int Compte_Provinces(const Lignes_Texte &lignes, const Etat_Commun &etat, QStringView mode, QStringView bande);

/// What the sheet counts in CW and in phone, in that order: provinces, and for the five-band kind their sum over the
/// bands and in `d` the bands with all of them.
std::array<Comptes, 2> Compte_DPF(const Lignes_Texte &lignes, const Etat_Commun &etat);

} // namespace diplomes
