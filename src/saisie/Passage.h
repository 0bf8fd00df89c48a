#pragma once

#include "saisie/Refus.h"
#include "saisie/Saisie.h"

struct Poste;

/// Shows the message of a refusal; true if there was none.
bool Passe(Poste &poste, const Refus &refus);

/// Enables the next control of the chain and gives it the focus.
void Avance(Saisie &saisie, Controle suivant);
