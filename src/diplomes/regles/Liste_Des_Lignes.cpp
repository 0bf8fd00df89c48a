#include "diplomes/regles/Liste_Des_Lignes.h"

#include "diplomes/regles/Remplit_Liste.h"
#include "log/Ordre.h"

namespace diplomes {

Etat_Liste Liste_Des_Lignes(const Liste_Diplome &liste, std::span<const QStringView> lignes, const Etat_Commun &etat)
{
    Etat_Liste resultat = Textes_De_Liste(liste, etat);
    for (const QStringView ligne : lignes)
        resultat.rangs.push_back(Compose_Rang(liste.rang, ligne));
    Trie_Sans_Casse(resultat.rangs);
    resultat.compte = Compte_De_Liste(liste, lignes.size(), etat);
    return resultat;
}

} // namespace diplomes
