#pragma once

#include "diplomes/modele/Etat_Challenge.h"

struct Poste;

namespace diplomes {

/// The ADIF record of a log line of a canal challenge, without its line end. Its columns are those of an earlier layout
/// of the log, four less from the date on: on lines of today most values are pieces of two fields.
QString Ligne_ADIF_Canal(QStringView ligne_log);

/// Writes the ADIF file of a step: for each row the first line of the log whose reference begins as its own. Tells the
/// name of the file. Throws Erreur_Execution if the log is absent, or for a name that the disk refuses.
void ADIF_Challenge(Poste &poste, const Etat_Challenge &etat, QStringView palier);

} // namespace diplomes
