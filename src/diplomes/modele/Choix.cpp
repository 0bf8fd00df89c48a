#include "diplomes/modele/Choix.h"

#include "log/Etat_Commun.h"

namespace diplomes {

void Applique(const Choix &choix, Etat_Commun &etat)
{
    const auto pose = [](QString &texte, std::optional<QStringView> valeur) {
        if (valeur)
            texte = valeur->toString();
    };
    pose(etat.bande_liste, choix.bande_liste);
    pose(etat.mode_liste, choix.mode_liste);
    pose(etat.code_categorie, choix.code_categorie);
    pose(etat.libelle_categorie, choix.libelle_categorie);
    pose(etat.categorie_liste, choix.categorie_liste);
    pose(etat.niveau_liste, choix.niveau_liste);
}

} // namespace diplomes
