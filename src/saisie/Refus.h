#pragma once

#include <QString>

#include <optional>

// The checks of the entry fields: the message, or nothing if the text passes.

using Refus = std::optional<QString>;

Refus Refus_Bande(QStringView texte);
Refus Refus_Ind(QStringView texte);
/// Not for FFF, which takes any department and none.
Refus Refus_Dpt(QStringView texte);
Refus Refus_Date(QStringView texte);
Refus Refus_Heure(QStringView texte);
Refus Refus_Mode(QStringView texte);
/// A report: at most 3 characters, the first a digit from 0 to 5.
Refus Refus_Report(QStringView texte);
Refus Refus_Nom(QStringView texte);

/// JJ/MM/AA with a day of at most 31 and a month of at most 12. No lower bound and no calendar check, on purpose:
/// 00/00/00 and 31/02/15 pass.
bool Verifie_Date(QStringView texte);
/// HH:MM up to 23:59.
bool Verifie_Heure(QStringView texte);

/// What a first installation answers to any key of Dip_A and of Ind_A; the two texts differ by their quotes.
QString Message_Premiere_Installation();
QString Message_Premiere_Installation_Ind();
