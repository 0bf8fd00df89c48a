#include "saisie/Passage.h"

#include "log/Poste.h"
#include "plateforme/Boites.h"

bool Passe(Poste &poste, const Refus &refus)
{
    if (refus)
        poste.boites.Message(*refus);
    return !refus;
}

void Avance(Vue_Saisie &vue, Controle suivant)
{
    vue.Active(suivant, true);
    vue.Donne_Focus(suivant);
    // The name begins with the award's prefix, which the operator types behind.
    if (suivant == Controle::Nom_A)
        vue.Curseur_A_La_Fin(suivant);
}
