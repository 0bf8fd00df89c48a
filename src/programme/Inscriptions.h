#pragma once

struct Poste;
class Registre;
class Vue_Saisie;

/// Registers every screen and every command of the program.
void Inscrit(Registre &registre, Poste &poste, Vue_Saisie &vue);
