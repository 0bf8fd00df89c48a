#pragma once

#include "log/Diplome.h"
#include "plateforme/Lignes_Texte.h"

#include <QString>

struct Poste;

// The rules: the new text of a log, CR LF behind each line, from its lines.

/// True if a line has the fields of `ligne`, whatever stands between and behind its columns.
bool Est_Dans_Le_Log(const Lignes_Texte &lignes, QStringView ligne);
/// `nouvelle` takes the place of the first line with the fields of `ancienne`; if none has, it goes to the end. All
/// other lines stay as they are.
QString Texte_Remplace(const Lignes_Texte &lignes, QStringView nouvelle, QStringView ancienne);
/// Without the first line that has the fields of `ligne`; unchanged if none has.
QString Texte_Supprime(const Lignes_Texte &lignes, QStringView ligne);
/// `nouvelle` goes before the first line whose moment is at or after its own, else to the end. A line without a
/// readable date and time is passed over; a `nouvelle` without one goes to the end.
QString Texte_Insere(const Lignes_Texte &lignes, QStringView nouvelle);

// The operations. A line is a whole Ligne_Log. Each ends by reloading Liste_QSO and selecting its last entry, and
// throws Erreur_Execution with the log as it was if the disk refuses. Before the first change of a day a copy of the
// log is kept; false if that failed and the operator gave up, with nothing changed.

/// Appends to the log of `diplome`.
bool Ajoute_Ligne(Poste &poste, QStringView ligne, Diplome diplome);
/// In the log of the current award: a QSO whose old line is gone is stored all the same, and the operator is told.
bool Remplace_Ligne(Poste &poste, QStringView nouvelle, QStringView ancienne);
/// Removes from the log of `diplome`; the operator is told of a line that is gone.
bool Supprime_Ligne(Poste &poste, QStringView ligne, Diplome diplome);
/// In the log of the current award, which is taken to be in order of time.
bool Insere_Ligne(Poste &poste, QStringView ligne);
