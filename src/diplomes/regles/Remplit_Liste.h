#pragma once

#include "diplomes/modele/Liste_Diplome.h"
#include "plateforme/Lignes_Texte.h"

namespace diplomes {

/// The rows of the tier that the shared texts name, sorted by their text without regard to case, with the texts around
/// them. Throws Erreur_Execution for a department that the list cannot take.
Etat_Liste Remplit_Liste(const Liste_Diplome &liste, const Lignes_Texte &lignes, const Etat_Commun &etat);

/// The row of a log line, with `dpt` in the place of its department.
QString Compose_Rang(const Forme_Rang &forme, QStringView ligne_log, QStringView dpt);
QString Compose_Rang(const Forme_Rang &forme, QStringView ligne_log);

/// The values that the texts of a list may name.
Valeurs Valeurs_De_Liste(const Liste_Diplome &liste, const Etat_Commun &etat);

/// The title, the heading and the header of a list before its rows are known.
Etat_Liste Textes_De_Liste(const Liste_Diplome &liste, const Etat_Commun &etat);

/// The count text, with the number in it.
QString Compte_De_Liste(const Liste_Diplome &liste, std::size_t nombre, const Etat_Commun &etat);

} // namespace diplomes
