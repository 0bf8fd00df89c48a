#include "diplomes/Charge_Fiche.h"

#include "diplomes/Lit_Sources.h"
#include "diplomes/regles/Evalue.h"
#include "log/Etat_Commun.h"
#include "log/Poste.h"
#include "plateforme/Ecrans.h"

namespace diplomes {

Etat_Fiche Charge_Fiche(const Poste &poste, const Fiche_Diplome &fiche)
{
    return Evalue_Fiche(fiche, Lit_Sources(poste, fiche.sources), poste.etat);
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

} // namespace diplomes
