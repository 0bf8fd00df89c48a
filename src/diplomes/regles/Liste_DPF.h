#pragma once

#include "plateforme/Lignes_Texte.h"

#include <QString>

#include <vector>

struct Etat_Commun;

namespace diplomes {

// The three passes of the list of provinces. Each gives its rows sorted by their text without regard to case.

/// One row a confirmed line of the variant: department, call sign, date, time, band, mode.
std::vector<QString> Rangs_Des_Lignes(const Lignes_Texte &lignes, const Etat_Commun &etat);
/// The first row of each department and band, with the province behind it. A department in no province shows the one
/// found last.
std::vector<QString> Avec_Province(const std::vector<QString> &rangs);
/// With the province in front, one row a province.
std::vector<QString> Par_Province(const std::vector<QString> &rangs);
/// With province and band in front, one row a province and band.
std::vector<QString> Par_Province_Et_Bande(const std::vector<QString> &rangs);

/// The provinces with enough bands, as the five-band list counts them over its rows: the first row counts once more,
/// and the last province is never looked at.
int Provinces_Sur_Cinq_Bandes(const std::vector<QString> &rangs);

} // namespace diplomes
