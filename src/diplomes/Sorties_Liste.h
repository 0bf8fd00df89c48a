#pragma once

#include "diplomes/modele/Liste_Diplome.h"

struct Poste;

namespace diplomes {

// The rules: the lines of the file and of the page, from first to last.

/// Title, column line, the rows with their numbers, and the signature. Without a `sortie` both lines stay empty.
std::vector<QString> Lignes_De_Fichier(const Sortie_De_Liste *sortie, const Etat_Liste &etat, const Valeurs &valeurs);
std::vector<QString> Lignes_De_Page(const Liste_Diplome &liste, const Sortie_De_Liste *sortie, const Etat_Liste &etat,
                                    const Valeurs &valeurs);
/// The row of the table for the present value of the selector; nullptr if there is none.
const Sortie_De_Liste *Sortie_Choisie(const Liste_Diplome &liste, std::span<const Sortie_De_Liste> sorties,
                                      const Valeurs &valeurs);
/// `nombre` in 5 columns on the right; a longer number is whole.
QString Numero_De_Rang(std::size_t nombre);

// The operations. Both work from the rows that the list shows.

/// Writes the list to its file in Repertoire_Appli, over a file of that name, and tells the name. Throws
/// Erreur_Execution for a name that the disk refuses, the empty one of a selector without a row among them.
void Enregistre_Liste(Poste &poste, const Liste_Diplome &liste, const Etat_Liste &etat);
/// Prints the list; what kept it from paper is told.
void Imprime_Liste(Poste &poste, const Liste_Diplome &liste, const Etat_Liste &etat);

} // namespace diplomes
