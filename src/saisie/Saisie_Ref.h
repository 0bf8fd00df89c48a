#pragma once

struct Poste;
class Saisie;

/// Enter in Ref_A: checks the reference by the rule of the current award, refuses a repeat in a new real-time entry,
/// looks it up in the award's list and fills department and name. Throws Erreur_Execution if the log or the list is
/// absent.
void Entree_Ref(Poste &poste, Saisie &saisie);
