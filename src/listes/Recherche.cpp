#include "listes/Recherche.h"

Issue_Recherche Balaie(const Recherche &recherche, const Lignes_Texte &lignes, QStringView ref)
{
    const std::optional<QString> cherchee = recherche.cle_cherchee(ref);
    Lecteur_Liste lecteur(recherche.lecture, lignes);
    std::optional<Fiche_Liste> derniere;
    while (const std::optional<Fiche_Liste> fiche = lecteur.Suivante()) {
        if (cherchee && recherche.cle(*fiche) == cherchee)
            return {.trouvee = true, .sorties = recherche.presente(*fiche, ref)};
        derniere = fiche;
    }
    return {.trouvee = false, .sorties = recherche.absente(derniere, ref)};
}
