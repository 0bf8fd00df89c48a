#pragma once

#include "outils/Lignes_ADIF.h"

#include <QString>

#include <cstddef>
#include <optional>

struct Poste;

/// What the import asks of the screen it was started from.
class Ecran_Import {
public:
    virtual ~Ecran_Import() = default;
    /// The full path of the file to read; empty if none was chosen, nullopt if the screen was closed meanwhile.
    virtual std::optional<QString> Choisit_Fichier() = 0;
    /// So many lines of the file are done.
    virtual void Avance(std::size_t faites, std::size_t total) = 0;
    virtual void Ferme() = 0;
};

/// The question of the menu entry; a yes opens the screen ADIF.
void Demande_Import(Poste &poste);

/// The button of the screen: puts the log aside as .bak unless the file is added to it, then imports. A .bak without
/// its log, left by an import that was cut off, is put back first.
void Importe(Poste &poste, const Choix_Import &choix, Ecran_Import &ecran);

/// Writes the log of the current award once, with the records of a chosen file, without doubles and sorted. A file
/// that cannot be taken is refused in words and the .bak put back, which fails if there is none. Throws
/// Erreur_Execution at a record that cannot become a line; the lines before it are in the log then, and the .bak stays.
void Import_ADIF(Poste &poste, const Choix_Import &choix, Ecran_Import &ecran);
