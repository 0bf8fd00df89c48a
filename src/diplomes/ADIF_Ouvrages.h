#pragma once

#include "diplomes/modele/Liste_Diplome.h"

struct Poste;

namespace diplomes {

/// The lines of an award's ADIF file down to its "<eoh>", each with its line end.
QString Entete_De_Diplome(const Etat_Commun &etat, Diplome diplome);

/// The button ADIF of a list that has one. The heading loses its "/", on the screen as well, and names the file in
/// Repertoire_Appli; the log is read again, and the rows play no part. The name is told at the end. Throws
/// Erreur_Execution for an absent log or a name that the disk refuses.
void ADIF_Ouvrages(Poste &poste, const Liste_Diplome &liste, Etat_Liste &etat);

} // namespace diplomes
