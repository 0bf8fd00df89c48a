#pragma once

#include "log/Champ.h"

#include <QString>

#include <array>

/// One QSO as it is stored: 111 columns, the same for all awards, without line end. Ref runs straight into Date.
namespace colonnes_log {
inline constexpr Champ Ind{1, 12};
inline constexpr Champ Dpt{14, 2};
inline constexpr Champ Prenom{19, 15};
inline constexpr Champ Ref{35, 10};
inline constexpr Champ Date{45, 8};  ///< JJ/MM/AA
inline constexpr Champ Heure{54, 5}; ///< HH:MM, UTC
inline constexpr Champ Mode{60, 3};
inline constexpr Champ Bande{64, 7};
inline constexpr Champ RSTR{72, 3};
inline constexpr Champ RSTE{76, 3};
inline constexpr Champ Nom{80, 30};
inline constexpr Champ QSL{111, 1};
inline constexpr qsizetype longueur = 111;
inline constexpr std::array<Champ, 12> champs{Ind, Dpt, Prenom, Ref, Date, Heure, Mode, Bande, RSTR, RSTE, Nom, QSL};
} // namespace colonnes_log

/// The mark of a QSL card held.
inline constexpr QStringView qsl_tenue = u"*";

/// The fields of a QSO. As read by Champs_Log they keep their blanks.
struct Champs_QSO {
    QString ind = {};
    QString dpt = {};
    QString prenom = {};
    QString ref = {};
    QString date = {};
    QString heure = {};
    QString mode = {};
    QString bande = {};
    QString rstr = {};
    QString rste = {};
    QString nom = {};
    QString qsl = {};
};

Champs_QSO Champs_Log(QStringView ligne_log);

/// The line of 111 columns. Each field is padded to its width but not cut: the caller has checked the lengths.
/// `date` and `heure` must have their 8 and 5 characters.
QString Compose_Ligne_Log(const Champs_QSO &champs);

/// The 111 columns anew from the twelve fields of a line: what stands between them or behind the last one goes, and the
/// blanks that a short line has lost come back.
QString Recompose(QStringView ligne_log);

/// True if the twelve fields of two lines are equal, each without the blanks around it.
bool Memes_Champs(QStringView ligne_log, QStringView autre);

/// Column 111 is exactly `*`.
bool Est_Confirme(QStringView ligne_log);
