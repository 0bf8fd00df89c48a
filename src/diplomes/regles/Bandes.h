#pragma once

#include "diplomes/modele/Classe_Bande.h"

#include <QStringView>

#include <array>

namespace diplomes {

/// The bands that the awards of castles, mills, wash-houses and fountains call HF.
/// "18 Mh" stands so in the awards' list, and "10 Mhz" is not in it: no QSO on 18 or 10 MHz counts.
inline constexpr std::array<QStringView, 9> liste_hf = {
    u"1.8 Mhz", u"3.5 Mhz", u"7.0 Mhz", u"14 Mhz", u"18 Mh", u"21 Mhz", u"24 Mhz", u"28 Mhz", u"50 Mhz",
};

/// `bande` is the trimmed field.
bool Est_Bande_HF(QStringView bande);

// The band class of a line: a band in no class keeps the class of the line before it, so a list can hold rows that the
// sheet does not count.

/// HF or VHF, else `avant`.
Classe_Bande Classe_HF_VHF(QStringView bande, Classe_Bande avant);
/// HF, VHF or UHF, else `avant`.
Classe_Bande Classe_HF_VHF_UHF(QStringView bande, Classe_Bande avant);

} // namespace diplomes
