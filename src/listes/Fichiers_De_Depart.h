#pragma once

class Dossier;

/// Lays the files that a first QSO needs before any list was fetched: an empty Liste_Prenom.txt and the seven lists
/// with their heading alone, in which every look-up finds nothing. A file with content is left as it is; an empty list
/// counts as missing. Throws Erreur_Execution if the disk refuses.
void Depose_Fichiers_De_Depart(Dossier &dossier);
