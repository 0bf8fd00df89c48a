#pragma once

#include "log/Diplome.h"

#include <QString>

class Dossier;
struct Poste;

// A log that an import is about to replace stands aside as `<call>_<code>.bak`, without a year for every award. A .bak
// that has no log beside it is the only copy: the import that left it was cut off.

QString Bak_Du_Log(QStringView indicatif, std::optional<Diplome> diplome);

/// `source` takes the name `cible`; after a crash one of them is there, whole. Throws Erreur_Execution.
void Change_De_Nom(Dossier &dossier, const QString &source, const QString &cible);

/// A .bak without its log becomes the log again, and the user is told. Throws Erreur_Execution if it cannot.
void Retablit_Log(Poste &poste, QStringView indicatif, std::optional<Diplome> diplome);
/// The same for a log that is about to be shown: that it cannot come back is told, and passed over.
void Retablit_Ou_Dit(Poste &poste, QStringView indicatif, std::optional<Diplome> diplome);
/// The same for every log of a station.
void Retablit_Station(Poste &poste, QStringView indicatif);

/// True for a log that is there or stands aside.
bool Connait_Log(const Dossier &dossier, QStringView indicatif, Diplome diplome);
/// An empty log where there is none. A log that stands aside is not covered by an empty one: it would never come back.
void Cree_Log_Absent(Dossier &dossier, QStringView indicatif, Diplome diplome);
