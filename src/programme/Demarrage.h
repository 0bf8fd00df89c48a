#pragma once

#include <QString>

struct Poste;
class Vue_Saisie;

/// The station of the settings; the mark of a first installation if none was ever set.
QString Station_Retenue(const Poste &poste);

/// Opens the program on the station of the settings: fixed lists, choices, backup, log, and the entry at rest.
/// No failure of a step stops it or is shown: the next step runs regardless.
void Demarre(Poste &poste, Vue_Saisie &vue);
