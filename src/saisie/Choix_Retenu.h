#pragma once

#include "saisie/Saisie.h"

#include <QStringView>

struct Poste;

// The station remembers the last place of Bande_A, Mode_A and Dip_A among their entries.

/// Stores the place of a combo under `cle`, unless a QSO is on display or under edit: what an edit passes through is
/// not the choice for the next QSO. A free text is stored as -1.
void Retient_Choix(Poste &poste, const Saisie &saisie, Controle combo, QStringView cle);
/// Selects the entry stored under `cle`; a stored text that is no place of the combo leaves the selection as it is.
void Reprend_Choix(const Poste &poste, Saisie &saisie, Controle combo, QStringView cle);

/// Band and mode of the station, as a commit and a change of station take them up again.
void Reprend_Bande_Et_Mode(const Poste &poste, Saisie &saisie);
