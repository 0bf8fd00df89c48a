#pragma once

#include <QStringView>

#include <optional>

namespace diplomes {

/// The classes of bands that sheets and lists tell apart; which bands are in one differs by award.
enum class Classe_Bande {
    Aucune, ///< before the first line with a band in a class
    HF,
    VHF,
    UHF,
    THF
};

/// The class that a shared text names, no text being none; nullopt for any other text.
std::optional<Classe_Bande> Classe_Nommee(QStringView texte);

} // namespace diplomes
