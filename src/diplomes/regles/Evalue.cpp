#include "diplomes/regles/Evalue.h"

#include "diplomes/regles/Compte.h"
#include "diplomes/regles/Fiche_Des_Comptes.h"
#include "diplomes/regles/Remplit_Liste.h"

namespace diplomes {

Etat_Fiche Evalue_Fiche(const Fiche_Diplome &fiche, const Lectures &lues, const Etat_Commun &etat)
{
    if (fiche.evalue)
        return fiche.evalue(fiche, lues, etat);
    return Fiche_Des_Comptes(fiche, Compte(fiche.regles, lues.log, etat), etat);
}

Etat_Liste Evalue_Liste(const Liste_Diplome &liste, const Lectures &lues, const Etat_Commun &etat)
{
    return liste.evalue ? liste.evalue(liste, lues, etat) : Remplit_Liste(liste, lues.log, etat);
}

} // namespace diplomes
