#pragma once

#include "listes/Reference_Trouvee.h"

#include <QString>

class Boites;
class Dossier;

// The look-ups of one reference in the list of its award, as it is on the disk. The first match wins. Names stand as in
// the list: the caller turns them to upper case. Each throws Erreur_Execution for a list that is absent and for a line
// on the way to the match that has too few separators; an empty list is one without records.
// An operation with many look-ups takes an Index_Liste on the same row of Table_Recherches.h.

/// "C." and the castle's name, cut to 30 characters; "C." alone for an unknown reference.
QString Cherche_DFCF(const Dossier &dossier, QStringView ref);
/// Name and town behind "B. " or "C. ", or the short form "B. de " or "C. de " and the town, when that is over 30
/// characters. Nothing for an unknown reference.
Reference_Trouvee Cherche_DCF(const Dossier &dossier, QStringView ref);
/// The name for four digits. Nothing for an unknown reference.
Reference_Trouvee Cherche_FFF(const Dossier &dossier, QStringView ref);
/// By the number in the last three characters: "P. " and the name; the department with two characters.
Reference_Trouvee Cherche_DPLF(const Dossier &dossier, QStringView ref);
/// An unknown reference is told in a message box and gives the last tower of the list.
Reference_Trouvee Cherche_TDC(const Dossier &dossier, Boites &boites, QStringView ref);
/// The name of a tower's telegraph line, for a reference with the unpadded post ("11-8"). An unknown reference gives
/// the line of the last tower of the list; a list without towers an empty text.
QString Ligne_TDC(const Dossier &dossier, QStringView ref);
/// An unknown work has its category letters for a name and its first two characters for a department.
Reference_Trouvee Cherche_Ouvrage(const Dossier &dossier, QStringView ref);
/// Nothing for an unknown reference.
Reference_Trouvee Cherche_PC(const Dossier &dossier, QStringView ref);

/// Name and second output are both the name; empty and two blanks for an unknown reference.
Reference_Trouvee Nom_Ouvrage(const Dossier &dossier, QStringView ref);
/// "C." and the name, uncut; empty for an unknown reference.
QString Nom_DFCF(const Dossier &dossier, QStringView ref);
/// As Cherche_DPLF, by the number behind the first two characters. Nothing for an unknown reference.
Reference_Trouvee Nom_DPLF(const Dossier &dossier, QStringView ref);
/// The name; 30 blanks for an unknown reference.
QString Nom_FFF(const Dossier &dossier, QStringView ref);
