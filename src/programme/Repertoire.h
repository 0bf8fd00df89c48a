#pragma once

#include "plateforme/disque/Verrou.h"

#include <QString>

/// Repertoire_Appli: the folder in VORLAIN_REPERTOIRE, else the platform's application data folder.
QString Repertoire_Appli();

/// Makes the folder if it is absent and takes it for this program alone, as long as the lock lives. A folder that
/// cannot be locked is opened all the same: the caller tells so. What a killed program left there is removed. Throws
/// Erreur_Execution if the folder cannot be made or written.
Verrou Prend_Repertoire(const QString &repertoire);

/// What to tell of a folder that was not taken; empty if it was.
QString Message_Verrou(const Verrou &verrou, const QString &repertoire);
