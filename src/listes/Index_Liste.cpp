#include "listes/Index_Liste.h"

#include "plateforme/Dossier.h"

Index_Liste::Index_Liste(const Recherche &recherche, const Dossier &dossier) : recherche_(recherche), dossier_(&dossier)
{
}

Index_Liste::Index_Liste(const Recherche &recherche, Lignes_Texte lignes)
    : recherche_(recherche),
      lecteur_(std::in_place, recherche.lecture, std::move(lignes))
{
}

Issue_Recherche Index_Liste::Cherche(QStringView ref)
{
    if (!lecteur_)
        lecteur_.emplace(recherche_.lecture, dossier_->Lit_Lignes(recherche_.lecture.fichier.toString()));
    const std::optional<QString> cle = recherche_.cle_cherchee(ref);
    // A reference without a key still walks the list to its end: a faulty line there is its failure too.
    const std::optional<Fiche_Liste> fiche = Trouve(cle);
    if (fiche)
        return {.trouvee = true, .sorties = recherche_.presente(*fiche, ref)};
    return {.trouvee = false, .sorties = recherche_.absente(derniere_, ref)};
}

std::optional<Fiche_Liste> Index_Liste::Trouve(const std::optional<QString> &cherchee)
{
    if (const auto place = cherchee ? fiches_.find(*cherchee) : fiches_.end(); place != fiches_.end())
        return place->second;
    while (const std::optional<Fiche_Liste> fiche = lecteur_->Suivante()) {
        derniere_ = fiche;
        const std::optional<QString> cle = recherche_.cle(*fiche);
        if (!cle)
            continue;
        fiches_.try_emplace(*cle, *fiche);
        if (cle == cherchee)
            return fiche;
    }
    return std::nullopt;
}
