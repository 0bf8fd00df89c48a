#pragma once

class Saisie;

// Saisie_Differee and Ligne_Selectionnee stay as they are in both.

/// Clears the entry back to rest, an edit included; the focus goes to Dip_A.
void Efface_Tout(Saisie &saisie);
/// The same when an award is chosen: Bande_A is enabled and takes the focus, and an edit stays one.
void Efface_Champs(Saisie &saisie);

/// The reports that go with the mode: "599" for CW, else "59".
void Reports_Selon_Mode(Saisie &saisie);
