#include "diplomes/Charge_Fiche.h"

#include "diplomes/regles/Compte.h"
#include "diplomes/regles/Evalue_Fiche.h"
#include "log/Etat_Commun.h"
#include "log/Poste.h"
#include "plateforme/Dossier.h"
#include "plateforme/Ecrans.h"

Etat_Fiche Charge_Par_Niveaux(const Poste &poste, const Fiche_Diplome &fiche)
{
    const Lignes_Texte lignes = poste.dossier.Lit_Lignes(poste.etat.station.Log(fiche.diplome));
    return Evalue_Fiche(fiche, Compte(fiche.regles, lignes, poste.etat), poste.etat);
}

Etat_Fiche Charge_Fiche(const Poste &poste, const Fiche_Diplome &fiche)
{
    return fiche.charge(poste, fiche);
}

void Presse_Bouton(Poste &poste, const Fiche_Diplome &fiche, QStringView bouton)
{
    for (const Niveau_Diplome &niveau : fiche.niveaux) {
        if (niveau.bouton != bouton || !niveau.choix)
            continue;
        Applique(*niveau.choix, poste.etat);
        if (fiche.avant_liste)
            fiche.avant_liste(poste.etat);
        poste.ecrans.Montre(fiche.liste.toString());
        return;
    }
}
