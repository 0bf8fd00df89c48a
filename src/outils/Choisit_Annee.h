#pragma once

#include <QString>

struct Poste;

/// "DFCF" or "DMF", the award of the challenge that `challenge` names; empty before the first.
QStringView Genre_Challenge(const Poste &poste);

/// The stored year of the challenge that `challenge` names.
QString Annee_Challenge(const Poste &poste);

/// Makes `annee` the year of the challenge that `challenge` names, creates its log if there is none, and reloads
/// the current award. False, with a message and nothing changed, for a year that cannot be part of a file name; any
/// other text is a year.
bool Choisit_Annee(Poste &poste, const QString &annee);
