#pragma once

#include "saisie/Refus.h"

struct Poste;
class Saisie;

/// The check of a station's call sign, in capitals and with `_` for `/`: 1 to 12 digits, capital letters and `_`.
Refus Refus_Indicatif_Station(QStringView indicatif);

/// The two refusals that concern the characters empty the field.
bool Est_Refus_De_Caractere(QStringView indicatif);

/// Makes an empty log for each of the 21 codes that has none, the challenges under a name without year.
void Cree_Logs(Poste &poste, QStringView indicatif);

/// Switches to a station whose call sign passed its check; one without a DFCF log is new and gets its logs and
/// settings. A failure of a file is passed over, so that a log that is missing leaves the list empty; but where the
/// disk does not say whether the station is known, Erreur_Execution is thrown and nothing changed.
void Change_Station(Poste &poste, Saisie &saisie, const QString &indicatif);
