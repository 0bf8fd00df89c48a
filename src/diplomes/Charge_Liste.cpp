#include "diplomes/Charge_Liste.h"

#include "diplomes/regles/Remplit_Liste.h"
#include "log/Etat_Commun.h"
#include "log/Poste.h"
#include "plateforme/Dossier.h"

Etat_Liste Charge_Par_Lignes(const Poste &poste, const Liste_Diplome &liste)
{
    return Remplit_Liste(liste, poste.dossier.Lit_Lignes(poste.etat.station.Log(liste.diplome)), poste.etat);
}

Etat_Liste Charge_Liste(const Poste &poste, const Liste_Diplome &liste)
{
    return liste.charge(poste, liste);
}
