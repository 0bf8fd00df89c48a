#pragma once

#include "log/Copies.h"

#include <functional>

class Dossier;
struct Poste;

// A copy is kept before a file is changed. Where that cannot be done the operator is asked whether to go on without;
// false is his no, and nothing is to be changed then. A file that is absent needs no copy, nor does the second change
// of a day for the tools that are Est_Quotidien().

/// Before a file is changed in place.
bool Garde_Copie(Poste &poste, Outil outil, const QString &nom);

/// Keeps a copy of `nom`, then runs `remplacement`, which puts another file in its place. A failure of that is passed
/// on, and leaves no copy that shares its bytes with the file. These are taken from `source` where they stand under
/// another name, which is then not written to in place either.
bool Remplace_En_Gardant(Poste &poste, Outil outil, const QString &nom, const std::function<void()> &remplacement,
                         const QString &source = {});

/// The copies of a file, newest first. Throws Erreur_Execution if their folder cannot be read.
std::vector<Copie> Copies_De(const Dossier &dossier, const QString &nom);

/// Puts the log of the current award back as `copie` has it, byte for byte, with a copy of what it is now; reloads
/// Liste_QSO, which carries references of earlier forms over again, and selects its last entry.
bool Revient_A_La_Copie(Poste &poste, const Copie &copie);
