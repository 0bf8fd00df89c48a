#pragma once

#include <QString>

#include <functional>

struct Poste;
class Saisie;

/// The station of the settings; the mark of a first installation if none was ever set.
QString Station_Retenue(const Poste &poste);

/// Opens the program on the station of the settings: fixed lists, choices, backup, log, and the entry at rest.
/// No failure of a step stops it or is shown: the next step runs regardless.
/// `montre` makes the main screen visible, before the log is loaded.
void Demarre(Poste &poste, Saisie &saisie, const std::function<void()> &montre);
