#pragma once

#include "log/Copies.h"
#include "log/Difference_Logs.h"
#include "plateforme/Lignes_Texte.h"

class Horloge;

// What the screen of the copies shows. Times are those of the operator's clock.

inline constexpr QStringView entete_copies =
    u"Date       Heure     Avant                         Nombre de QSO   Différence";

/// "15/11/2026 15:48:30"
QString Moment_Local(const Copie &copie, const Horloge &horloge);

/// One copy under `entete_copies`; `difference` is empty where it was not worked out.
QString Ligne_Copie(const Copie &copie, const Horloge &horloge, std::size_t qsos, const QString &difference);

/// "+12 -3": QSOs that would come back, and that would go.
QString Texte_Difference(const Difference_Logs &difference);
