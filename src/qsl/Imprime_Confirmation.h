#pragma once

#include <QString>

#include <vector>

struct Poste;

/// The lines of the sheets on which a correspondent confirms QSOs, 24 a sheet; the sheets follow one another without a
/// page break.
std::vector<QString> Lignes_Confirmation(const std::vector<QString> &lignes_log, QStringView indicatif);

/// Prints the sheets of the ticked lines. With an empty list, told by `liste_vide`, a box says so and nothing is
/// printed.
void Imprime_Confirmation(Poste &poste, bool liste_vide, const std::vector<QString> &cochees, QStringView indicatif);
