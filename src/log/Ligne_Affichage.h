#pragma once

#include "log/Champ.h"
#include "log/Ligne_Log.h"

#include <QString>

/// One QSO as Liste_QSO shows it: its number, then the fields, 126 columns.
namespace colonnes_affichage {
inline constexpr Champ Ind{10, 12};
inline constexpr Champ Dpt{24, 2};
inline constexpr Champ Prenom{27, 15};
inline constexpr Champ Ref{43, 10};
inline constexpr Champ Date{54, 8};
inline constexpr Champ Heure{64, 5};
inline constexpr Champ Mode{71, 3};
inline constexpr Champ Bande{76, 7};
inline constexpr Champ RSTR{85, 3};
inline constexpr Champ RSTE{90, 3};
inline constexpr Champ Nom{94, 30};
inline constexpr Champ QSL{126, 1};
inline constexpr qsizetype longueur = 126;
} // namespace colonnes_affichage

/// The header above Liste_QSO, over all awards.
inline constexpr QStringView entete_liste_qso =
    u"   N°   Indicatif     Dpt Prénom         Réference    Date     QTR   Mode   QRG   RstR RstE   Mom Activité / "
    u"Ville         QSL";

/// `numero` is the 1-based place of the line in its file. The fields of a line that is too short stand as they are.
QString Ligne_Affichage(std::size_t numero, QStringView ligne_log);

/// The stored form of an entry: the way back to the line in the file.
QString Ligne_Log_Affichee(QStringView ligne_affichage);
