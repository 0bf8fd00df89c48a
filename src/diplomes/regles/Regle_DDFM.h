#pragma once

#include "diplomes/modele/Fiche_Diplome.h"
#include "plateforme/Lignes_Texte.h"

#include <vector>

namespace diplomes {

/// The Bande_Liste of the award over five bands.
inline constexpr QStringView cinq_bandes_ddfm = u"5_bandes";

/// What the sheet counts in CW and in phone, in that order: the confirmed lines on the band. For the award over five
/// bands `n` is the sum over the bands of more than 10, and `d` the number of bands in use, 5 at most.
std::array<Comptes, 2> Compte_DDFM(const Lignes_Texte &lignes, QStringView bande);

/// The lines that stand in the list of a band, or of the five-band award, in a mode.
std::vector<QStringView> Lignes_DDFM(const Lignes_Texte &lignes, QStringView bande, QStringView mode);

} // namespace diplomes
