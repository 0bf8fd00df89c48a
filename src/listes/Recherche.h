#pragma once

#include "listes/Lecteur_Liste.h"
#include "listes/Reference_Trouvee.h"

/// One look-up as data: what it reads, what it compares, what it gives.
struct Recherche {
    Lecture lecture;
    /// The key of a record; nullopt for one that no reference matches.
    std::optional<QString> (*cle)(const Fiche_Liste &fiche);
    /// The key that a reference asks for; nullopt for one that matches nothing.
    std::optional<QString> (*cle_cherchee)(QStringView ref);
    Reference_Trouvee (*presente)(const Fiche_Liste &fiche, QStringView ref);
    /// `derniere` is the last record of the list, if it has one.
    Reference_Trouvee (*absente)(const std::optional<Fiche_Liste> &derniere, QStringView ref);
};

struct Issue_Recherche {
    bool trouvee = false;
    Reference_Trouvee sorties;
};

/// One look-up by a scan from the first line; the first match wins. Throws Erreur_Execution if the scan reaches a line
/// with too few separators.
Issue_Recherche Balaie(const Recherche &recherche, const Lignes_Texte &lignes, QStringView ref);
