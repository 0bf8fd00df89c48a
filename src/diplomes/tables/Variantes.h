#pragma once

#include "diplomes/modele/Choix_Diplome.h"
#include "diplomes/modele/Fiche_Diplome.h"

#include <vector>

struct Etat_Commun;

namespace diplomes {

/// A sheet of an award as it can be opened: by itself, or through an option of its choice screen.
struct Variante {
    Diplome diplome;
    const Fiche_Diplome *fiche;
    const Option_Diplome *option = nullptr; ///< nullptr for a sheet without a choice
    QStringView bande = {};                 ///< of the option's selector, if it has one
};

/// Every way to open the sheet of an award, in the order of its choice screen, each band of a selector by itself. An
/// option that leads to another screen is none.
std::vector<Variante> Variantes_De(Diplome diplome);

/// Makes the award the one in hand and sets what the choice gives, so that Evalue_Fiche shows this sheet.
void Applique(const Variante &variante, Etat_Commun &etat);

} // namespace diplomes
