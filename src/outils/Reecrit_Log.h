#pragma once

#include "log/Copies.h"
#include "plateforme/Lignes_Texte.h"

#include <QString>

#include <initializer_list>

struct Poste;

/// The new text of a log from its lines.
using Regle_De_Log = QString (*)(const Lignes_Texte &lignes);

/// A log of the current award as it is to be written.
struct Log_Compose {
    QString texte;
    /// References of earlier forms were carried over on the way.
    bool mis_a_jour = false;
};

/// The text of a log after the rules, one behind the other; each finds the references in their present forms.
Log_Compose Compose_Log(const Poste &poste, QString texte, std::initializer_list<Regle_De_Log> regles);

/// Reloads Liste_QSO from a log that was composed and written.
void Montre_Log(Poste &poste, const Log_Compose &log);

/// Rewrites the log of the current award, as it is on the disk, by the rules; then reloads Liste_QSO and selects its
/// last entry. The log is written once: it is the old one or the new one, never absent. The old one is kept under the
/// name of `outil`; where it cannot be and the operator gives up, nothing is written.
void Reecrit_Log(Poste &poste, Outil outil, std::initializer_list<Regle_De_Log> regles);
