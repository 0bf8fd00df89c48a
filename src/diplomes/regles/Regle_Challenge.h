#pragma once

#include "plateforme/Lignes_Texte.h"

#include <QString>

#include <array>
#include <optional>
#include <vector>

namespace diplomes {

/// What a yearly challenge gives for the last letter of a reference.
struct Lettre_Challenge {
    QChar lettre;
    int points;
};

inline constexpr std::array<Lettre_Challenge, 4> lettres_challenge = {{{u'R', 1}, {u'A', 2}, {u'B', 3}, {u'C', 6}}};

/// The points of a log line; nullopt for another last character. Small letters are others.
std::optional<int> Points_Challenge(QStringView ligne_log);

/// How many lines end in each letter, in the order of the table. A QSL card is not asked for.
std::array<int, 4> Compte_Challenge(const Lignes_Texte &lignes);

/// The list of a yearly challenge.
struct Rangs_Challenge {
    std::vector<QString> rangs; ///< sorted by their text without regard to case
    /// Of the rows: a line without points of its own has those of the line before it.
    int total = 0;
    /// Of the four letters alone.
    int points_des_lettres = 0;
};

Rangs_Challenge Liste_Challenge(const Lignes_Texte &lignes);

} // namespace diplomes
