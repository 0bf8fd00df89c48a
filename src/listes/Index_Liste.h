#pragma once

#include "listes/Recherche.h"

#include <QHashFunctions>

#include <unordered_map>

class Dossier;

/// A list for an operation that looks up many references: what a search has passed over is remembered by its key, so
/// that each line is read once. Results and failures are those of a scan from the first line. The file is read at the
/// first search, as it is then.
class Index_Liste {
public:
    Index_Liste(const Recherche &recherche, const Dossier &dossier);
    /// Over a list that was read before.
    Index_Liste(const Recherche &recherche, Lignes_Texte lignes);

    Issue_Recherche Cherche(QStringView ref);

private:
    std::optional<Fiche_Liste> Trouve(const std::optional<QString> &cherchee);

    Recherche recherche_;
    const Dossier *dossier_ = nullptr; ///< where the list is still to be read
    std::optional<Lecteur_Liste> lecteur_;
    std::unordered_map<QString, Fiche_Liste> fiches_;
    std::optional<Fiche_Liste> derniere_;
};
