#include "diplomes/Choix_Diplome.h"

#include "log/Etat_Commun.h"
#include "log/Poste.h"
#include "plateforme/Ecrans.h"

void Affiche_Option(Poste &poste, const Option_Diplome &option, const QString &bande)
{
    if (!option.garde_libelle)
        poste.etat.libelle_categorie = option.texte.toString();
    Applique(option.choix, poste.etat);
    if (option.selecteur)
        poste.etat.bande_liste = bande;
    if (option.regle)
        option.regle(poste.etat, option.indice);
    poste.ecrans.Montre(option.ecran.toString());
}
