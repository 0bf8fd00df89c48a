#pragma once

#include <QString>

struct Etat_Commun;

/// The log that ADIF export reads and import writes, without ending: with its year for Ch_DFCF alone. Ch_DMF goes by a
/// name without a year, unlike the log that the program shows.
QString Nom_Log_ADIF(const Etat_Commun &etat);
