#pragma once

#include <QString>

struct Etat_Commun;

/// The name of the log of `code` for the current station, in Repertoire_Appli: `<call>_<code>.log`, and for the two
/// challenges `<call>_<code>_<year>.log` with the current year of that challenge.
QString Chemin_Log(const Etat_Commun &etat, QStringView code);

/// `<call>_<code>.log` for every code, also the challenges.
QString Chemin_Log_Sans_Annee(QStringView indicatif, QStringView code);
