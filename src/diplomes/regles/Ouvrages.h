#pragma once

#include <QStringView>

struct Etat_Commun;

namespace diplomes {

// The hydraulic works of one log, by the letters of their references: "45EC102" is a lock of the Loiret. The sheet and
// the list go by different rules.

/// True if the sheet of Code_Categorie counts the line, confirmed or not. Every letter in the first five columns of the
/// reference belongs to the code, so that a work of 2A or 2B counts for "MI" alone, which takes every line.
bool Compte_Ouvrages(QStringView ligne_log, const Etat_Commun &etat);

/// True if the line stands in the list of Categorie_Liste, confirmed or not.
bool Dans_Liste_DOHF(QStringView ligne_log, const Etat_Commun &etat);

/// True if the department is Code_Categorie, as the ADIF file asks: with well-formed references it never is.
bool Departement_Est_Categorie(QStringView ligne_log, const Etat_Commun &etat);

/// What a button of the sheet does besides its level: Categorie_Liste takes Code_Categorie.
void Copie_Categorie(Etat_Commun &etat);

} // namespace diplomes
