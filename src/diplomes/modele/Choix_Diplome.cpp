#include "diplomes/modele/Choix_Diplome.h"

#include "log/Etat_Commun.h"

namespace diplomes {

void Applique(const Option_Diplome &option, const QString &bande, Etat_Commun &etat)
{
    if (!option.garde_libelle)
        etat.libelle_categorie = option.texte.toString();
    Applique(option.choix, etat);
    if (option.selecteur)
        etat.bande_liste = bande;
    if (option.regle)
        option.regle(etat, option.indice);
}

} // namespace diplomes
