#pragma once

#include "saisie/Saisie.h"

struct Poste;

// The walk through the entry fields. Each field checks itself on Enter; a refused text stays where it is, with the
// focus.

/// Enter in `champ`, Dip_A to QSL_A.
void Entree(Poste &poste, Saisie &saisie, Controle champ);

/// Before any key of `champ`; false drops the key: there is no call sign yet, or behind Dip_A no log to write to, and
/// the operator was told.
bool Accepte_Touche(Poste &poste, Saisie &saisie, Controle champ);
/// Before a key that types or erases a character: the separators of date and time come by themselves.
void Avant_Touche(Saisie &saisie, Controle champ, bool retour_arriere);
/// After `champ` took a key other than Enter.
void Apres_Touche(Poste &poste, Saisie &saisie, Controle champ);
