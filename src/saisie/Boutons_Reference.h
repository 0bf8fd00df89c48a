#pragma once

struct Poste;
class Commandes;

// The two buttons beside the reference. They answer by the current award.

/// Detail: asks for a selected QSO, except in Ch_DFCF, then opens the award's screen or runs its command.
void Presse_Detail(Poste &poste, Commandes &commandes);
/// Detail_1: only the challenges have an answer.
void Presse_Detail_1(Poste &poste, Commandes &commandes);
