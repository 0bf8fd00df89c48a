#include "diplomes/regles/Points_DYLF.h"

#include "log/Ligne_Log.h"

#include <algorithm>

namespace diplomes {

namespace {

namespace col = colonnes_log;

// clang-format off
constexpr std::array<QStringView, 9> bandes_hf = {
    u"1.8 Mhz", u"3.5 Mhz", u"7.0 Mhz", u"10 Mhz", u"14 Mhz", u"18 Mhz", u"21 Mhz", u"24 Mhz", u"28 Mhz",
};

struct Points {
    QStringView classe; ///< of bands, or the band itself
    QStringView mode;
    int fiche;
    int scores;
    std::size_t rang; ///< in the score table
};

// 50 MHz brings nothing on the sheet, and 432 MHz in FM more than in the score table. Both stand so on purpose.
constexpr std::array<Points, 9> points = {{
    {u"HF", u"SSB", 30, 30, 0},
    {u"HF", u"CW", 100, 100, 1},
    {u"HF", u"PSK", 50, 50, 2},
    {u"HF", u"TTY", 50, 50, 2},
    {u"144 Mhz", u"SSB", 150, 150, 3},
    {u"50 Mhz", u"SSB", 0, 150, 3},
    {u"144 Mhz", u"FM", 100, 100, 4},
    {u"432 Mhz", u"SSB", 150, 150, 5},
    {u"432 Mhz", u"FM", 150, 100, 6},
}};
// clang-format on

QStringView Classe(QStringView bande)
{
    const bool hf = std::find(bandes_hf.begin(), bandes_hf.end(), bande) != bandes_hf.end();
    return hf ? QStringView(u"HF") : bande;
}

/// nullptr for a line that brings nothing anywhere.
const Points *Points_De(QStringView ligne)
{
    const QStringView classe = Classe(Lit_Rogne(ligne, col::Bande));
    const QStringView mode = Lit_Rogne(ligne, col::Mode);
    const auto *place = std::find_if(points.begin(), points.end(), [&](const Points &possible) {
        return possible.classe == classe && possible.mode == mode;
    });
    return place == points.end() ? nullptr : place;
}

} // namespace

// clang-format off
const std::array<QStringView, nombre_scores> libelles_des_scores = {
    u"Bande HF en SSB",
    u"Bande HF en CW",
    u"Bande HF en PSK",
    u"Bande VHF SSB",
    u"Bande VHF FM",
    u"Bande UHF SSB",
    u"Bande UHF FM",
};
// clang-format on

int Points_De_Fiche(const Lignes_Texte &lignes)
{
    int total = 0;
    for (const QStringView ligne : lignes)
        if (const Points *siens = Points_De(ligne))
            total += siens->fiche;
    return total;
}

std::array<Score, nombre_scores> Compte_Scores(const Lignes_Texte &lignes)
{
    std::array<Score, nombre_scores> scores;
    for (const QStringView ligne : lignes)
        if (const Points *siens = Points_De(ligne)) {
            ++scores[siens->rang].nombre;
            scores[siens->rang].points += siens->scores;
        }
    return scores;
}

Score Total(const std::array<Score, nombre_scores> &scores)
{
    Score total;
    for (const Score &score : scores) {
        total.nombre += score.nombre;
        total.points += score.points;
    }
    return total;
}

} // namespace diplomes
