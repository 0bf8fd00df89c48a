#pragma once

struct Poste;
class Saisie;

// The option menus and the clock.

/// Real-time entry or deferred entry, stored as `Date Auto`.
void Choisit_Saisie(Poste &poste, Saisie &saisie, bool differee);
/// "/" and ":" by themselves in date and time, stored as `Separateur Auto`.
void Choisit_Separateur(Poste &poste, Saisie &saisie, bool automatique);
void Reprend_Separateur(const Poste &poste, Saisie &saisie);

/// One tick of the clock, each second: shows UTC time and date and the local time. The date and time of a QSO are those
/// of the last tick.
void Tique(const Poste &poste, Saisie &saisie);

/// The about box and the history of the versions.
void Affiche_A_Propos(Poste &poste);
void Affiche_Historique(Poste &poste);
