#pragma once

#include "plateforme/Lignes_Texte.h"

#include <QString>

struct Poste;

/// The text of the log with each reference once, in the old order of the lines, each composed anew from its fields. Of
/// the lines of one reference the one with the lowest day stays, then the lowest month, then the lowest year: the date
/// is compared as the text JJ/MM/AA. All lines without a reference are doubles of each other.
QString Texte_Sans_Doubles(const Lignes_Texte &lignes);

/// Does so to the log of the current award.
void Supprime_Doubles(Poste &poste);
