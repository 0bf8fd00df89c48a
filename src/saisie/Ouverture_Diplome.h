#pragma once

struct Poste;
class Saisie;

/// True if the current award has a log that opens. If not, the operator is asked for an award, in Dip_A: a new station
/// has no challenge log, and a change of station may leave the award without one.
bool A_Un_Log_Ouvert(Poste &poste, Saisie &saisie);

/// The same for the entry of a QSO, which goes on where the log vanished while its QSOs are shown: the commit asks
/// then.
bool Montre_Un_Log(Poste &poste, Saisie &saisie);

/// A key of Dip_A before the operator has a call sign: tells so and gives false; the key is dropped.
bool Accepte_Touche_Dip(Poste &poste);

/// Enter in Dip_A: the code becomes the current award, the screen is dressed for it, its log is shown and the focus
/// goes to Bande_A. A text that spells none of the 21 codes opens nothing, and a challenge whose year is not chosen
/// leaves Dip_A on the award that is open. Throws Erreur_Execution if the log is absent.
void Ouvre_Diplome(Poste &poste, Saisie &saisie);

/// The frame of a challenge names its year, which may have been chosen anew, or be that of another station now.
void Suit_L_Annee(const Poste &poste, Saisie &saisie);

/// Any other key of Dip_A: the code is remembered and the entry starts afresh; the current award stays.
void Touche_Dip(Poste &poste, Saisie &saisie);
