#pragma once

#include <QStringView>

struct Poste;

/// Reloads Liste_QSO from the log of `code` and enables Ind_A. References of earlier forms are carried over on the way
/// and the log is rewritten then. Throws Erreur_Execution if the log cannot be opened; the list is then empty.
void Charge_Log(Poste &poste, QStringView code);
