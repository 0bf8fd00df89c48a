#pragma once

#include "log/Diplome.h"

#include <QString>

/// The name of a log in Repertoire_Appli: `<call>_<code>.log`, and with a year, which the two challenges have,
/// `<call>_<code>_<year>.log`. Without an award the code is empty, and no such log exists.
QString Chemin_Log(QStringView indicatif, std::optional<Diplome> diplome, std::optional<QStringView> annee = {});
