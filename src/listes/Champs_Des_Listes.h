#pragma once

#include <cstddef>

// The fields of the list files, counted from 1. A field that no reader names is not here.

/// Liste_DFCF.csv: castles. Five separators; Dpt runs to the end of the line.
namespace champs_dfcf {
inline constexpr std::size_t Ref = 1; ///< with or without dashes
inline constexpr std::size_t Nom = 2;
inline constexpr std::size_t Date = 3;
inline constexpr std::size_t Activateur = 4;
inline constexpr std::size_t Commune = 5;
inline constexpr std::size_t Dpt = 6;
} // namespace champs_dfcf

/// Liste_DCF.csv: cathedrals, basilicas ("B" behind the number), collegiate churches ("C").
namespace champs_dcf {
inline constexpr std::size_t Ref = 1; ///< "DCF-" and the number
inline constexpr std::size_t Ville = 2;
inline constexpr std::size_t Dpt = 3;
inline constexpr std::size_t Nom = 4;
} // namespace champs_dcf

/// Liste_FFF.csv. Three heading lines that carry the separators too.
namespace champs_fff {
inline constexpr std::size_t Pays = 2;
inline constexpr std::size_t Ref = 4; ///< "FFF-" and four digits, or another prefix
inline constexpr std::size_t Nom = 5;
} // namespace champs_fff

/// Liste_TDC.csv: Chappe telegraph towers.
namespace champs_tdc {
inline constexpr std::size_t Poste = 1; ///< without leading zeros
inline constexpr std::size_t Dpt = 2;
inline constexpr std::size_t Numero = 3;
inline constexpr std::size_t Nom = 4;
inline constexpr std::size_t Ligne = 5;
inline constexpr std::size_t Pays = 6;
inline constexpr std::size_t Ancienne_Ref = 7;
} // namespace champs_tdc

/// Liste_Ouvrages.csv: hydraulic works; nineteen fields in all.
namespace champs_ouvrages {
inline constexpr std::size_t Ref = 1; ///< with or without dashes
inline constexpr std::size_t Nom = 2;
inline constexpr std::size_t Type = 3;
inline constexpr std::size_t Dpt = 4;
} // namespace champs_ouvrages

/// Liste_PC.csv: cultural heritage.
namespace champs_pc {
inline constexpr std::size_t Ref = 1; ///< with or without dashes; its last five characters count
inline constexpr std::size_t Nom = 2;
inline constexpr std::size_t Numero = 4;
inline constexpr std::size_t Dpt = 6;
inline constexpr std::size_t Ville = 7;
} // namespace champs_pc

/// Liste_DPLF.txt: lighthouses, the lines of a record.
namespace lignes_dplf {
inline constexpr std::size_t Nom = 1; ///< "*" at the end of the file
inline constexpr std::size_t Numero = 2;
inline constexpr std::size_t Dpt = 4;
inline constexpr std::size_t Fin = 5;
} // namespace lignes_dplf
