#pragma once

#include <QStringView>

struct Etat_Commun;

// Which lines of a log count for an award, and stand in its list. A line too short for its QSL column is not confirmed.

bool Toute_Ligne(QStringView ligne_log, const Etat_Commun &etat);
bool Confirme(QStringView ligne_log, const Etat_Commun &etat);
/// Confirmed, on a band of the HF list.
bool Confirme_HF(QStringView ligne_log, const Etat_Commun &etat);
