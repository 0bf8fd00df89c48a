#pragma once

#include "plateforme/Lignes_Texte.h"

#include <QString>

#include <functional>

struct Poste;

/// Rewrites the log of the current award as the rule gives it from its lines, which are those on the disk after their
/// migrations; then reloads Liste_QSO and selects its last entry. The log is the old one or the new one, never absent.
void Reecrit_Log(Poste &poste, const std::function<QString(const Lignes_Texte &)> &regle);
