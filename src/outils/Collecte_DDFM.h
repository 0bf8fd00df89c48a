#pragma once

#include "plateforme/Lignes_Texte.h"

#include <QString>

#include <span>
#include <vector>

struct Poste;

/// The lines of the DDFM log from all logs of a station: of the confirmed QSOs one for each department, mode and band,
/// in that order. A blank department and one above 95 stay out; a text without a number at its start is taken.
std::vector<QString> Lignes_DDFM(std::span<const Lignes_Texte> logs);

/// Makes the DDFM log anew from the 21 logs of the station, also itself and the challenges, all by their names without
/// a year. Throws Erreur_Execution, with nothing written, if one of them is missing.
void Collecte_DDFM(Poste &poste);
