#pragma once

struct Poste;
class Registre;
class Saisie;

/// Registers every screen and every command of the program.
void Inscrit(Registre &registre, Poste &poste, Saisie &saisie);
