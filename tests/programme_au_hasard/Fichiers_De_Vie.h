#pragma once

#include "programme_au_hasard/Hasard.h"

#include <QString>

// What lies on the disk of the operator before his first gesture, and the ADIF files that he is sent.

/// Two stations with logs of all awards, records in references of earlier times among them, and the settings of both.
void Pose_Les_Stations(const QString &dossier, Hasard &hasard);

/// A new ADIF file of a few records, mostly for `code`; gives its path.
QString Pose_Un_ADIF(const QString &dossier, const QString &code, Hasard &hasard);
