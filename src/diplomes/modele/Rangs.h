#pragma once

#include "diplomes/modele/Liste_Diplome.h"
#include "log/Ligne_Log.h"

#include <array>

namespace diplomes {

// The layouts of the rows that several lists share.

namespace rangs {

inline constexpr Champ ref_de_8{colonnes_log::Ref.colonne, 8};

inline constexpr std::array<Colonne, 6> commun = {{
    {ref_de_8},
    {colonnes_log::Dpt},
    {colonnes_log::Nom},
    {colonnes_log::Date},
    {colonnes_log::Heure},
    {colonnes_log::Ind, 0},
}};

inline constexpr std::array<Colonne, 6> commun_ref_10 = {{
    {colonnes_log::Ref},
    {colonnes_log::Dpt},
    {colonnes_log::Nom},
    {colonnes_log::Date},
    {colonnes_log::Heure},
    {colonnes_log::Ind, 0},
}};

inline constexpr std::array<Colonne, 8> excellence = {{
    {colonnes_log::Dpt},
    {colonnes_log::Ref},
    {colonnes_log::Ind, 1},
    {colonnes_log::Prenom, 1},
    {colonnes_log::Date},
    {colonnes_log::Heure},
    {colonnes_log::Bande},
    {colonnes_log::Mode},
}};

inline constexpr std::array<Colonne, 8> excellence_ref_8 = {{
    {colonnes_log::Dpt},
    {ref_de_8},
    {colonnes_log::Ind, 1},
    {colonnes_log::Prenom, 1},
    {colonnes_log::Date},
    {colonnes_log::Heure},
    {colonnes_log::Bande},
    {colonnes_log::Mode},
}};

} // namespace rangs

/// One QSO a row: reference of 8 columns, department, name, date, time, call sign.
inline constexpr Forme_Rang rang_commun = {1, rangs::commun};
/// The same with the whole reference.
inline constexpr Forme_Rang rang_commun_ref_10 = {1, rangs::commun_ref_10};
/// One department a row.
inline constexpr Forme_Rang rang_excellence = {0, rangs::excellence};
/// The same behind a blank, with the reference of 8 columns.
inline constexpr Forme_Rang rang_excellence_dmf = {1, rangs::excellence_ref_8};

} // namespace diplomes
