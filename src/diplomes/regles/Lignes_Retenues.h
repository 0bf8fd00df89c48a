#pragma once

#include <QStringView>

struct Etat_Commun;

namespace diplomes {

// Which lines of a log count for an award, and stand in its list. A line too short for its QSL column is not confirmed.

bool Toute_Ligne(QStringView ligne_log, const Etat_Commun &etat);
bool Confirme(QStringView ligne_log, const Etat_Commun &etat);
/// Confirmed, on a band of the HF list.
bool Confirme_HF(QStringView ligne_log, const Etat_Commun &etat);
/// Confirmed, on "144 Mhz" alone.
bool Confirme_144(QStringView ligne_log, const Etat_Commun &etat);
/// The QSL column holds `*` or a blank: a contact counts as well as a confirmed one.
bool Contacte(QStringView ligne_log, const Etat_Commun &etat);

bool Confirme_SSB(QStringView ligne_log, const Etat_Commun &etat);
bool Confirme_CW(QStringView ligne_log, const Etat_Commun &etat);
bool Confirme_SSB_Ou_CW(QStringView ligne_log, const Etat_Commun &etat);
/// Never: the text looked for has four letters and the column of the mode has three.
bool Confirme_DIGI(QStringView ligne_log, const Etat_Commun &etat);
/// Confirmed, in the mode of Mode_Liste; "MIX" takes any mode.
bool Confirme_Mode_Liste(QStringView ligne_log, const Etat_Commun &etat);

/// Confirmed, and the letters at the places 3 and 4 of the reference are Code_Categorie; "MI" takes any letters.
bool Confirme_Categorie(QStringView ligne_log, const Etat_Commun &etat);

} // namespace diplomes
