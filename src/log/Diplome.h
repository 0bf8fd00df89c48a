#pragma once

#include <QStringView>

#include <array>
#include <cstddef>
#include <optional>

/// The awards, in the order of Dip_A. The settings store the place of one: a new award goes to the end, before `Fin`,
/// and none is ever taken out.
enum class Diplome {
    Ch_DFCF,
    Ch_DMF,
    DAF,
    DCF,
    DCPF,
    DDFM,
    DFCF,
    DFF,
    DIFI,
    DIFM,
    DLF,
    DMF,
    DOHF,
    DPF,
    DPLF,
    DVFF,
    DYLF,
    FFF,
    PC,
    TDC,
    WLF,
    Fin, ///< no award: how many there are
};

inline constexpr std::size_t nombre_diplomes = static_cast<std::size_t>(Diplome::Fin);

/// Every award, for loops over the logs of a station.
inline constexpr std::array<Diplome, nombre_diplomes> tous_les_diplomes = [] {
    std::array<Diplome, nombre_diplomes> tous{};
    for (std::size_t rang = 0; rang < nombre_diplomes; ++rang)
        tous[rang] = static_cast<Diplome>(rang);
    return tous;
}();

/// The code of an award as Dip_A, the file names and the ADIF references have it; empty for none.
QStringView Code(Diplome diplome);
QStringView Code(std::optional<Diplome> diplome);

/// The award whose code a text spells, in whatever case; nullopt for any other text.
std::optional<Diplome> Diplome_De(QStringView code);
