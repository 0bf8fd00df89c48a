#pragma once

#include "plateforme/Lignes_Texte.h"

#include <QStringView>

#include <array>

namespace diplomes {

// The award of the female operators is scored in points, a line by its band class and its mode. The sheet and the score
// table differ on 50 MHz in SSB and on 432 MHz in FM. QSL cards and repeats play no part.

/// The points of all lines, as the sheet counts them.
int Points_De_Fiche(const Lignes_Texte &lignes);

/// How many lines a row of the score table counts, and their points.
struct Score {
    int nombre = 0;
    int points = 0;
};

inline constexpr std::size_t nombre_scores = 7;

/// The captions of the rows of the score table.
extern const std::array<QStringView, nombre_scores> libelles_des_scores;

/// The rows of the score table. A line in none of them is not counted.
std::array<Score, nombre_scores> Compte_Scores(const Lignes_Texte &lignes);
/// All rows together.
Score Total(const std::array<Score, nombre_scores> &scores);

} // namespace diplomes
