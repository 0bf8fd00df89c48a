#include "saisie/Passage.h"

#include "log/Poste.h"
#include "plateforme/Boites.h"

bool Passe(Poste &poste, const Refus &refus)
{
    if (refus)
        poste.boites.Message(*refus);
    return !refus;
}

void Avance(Saisie &saisie, Controle suivant)
{
    saisie.Active(suivant, true);
    saisie.Donne_Focus(suivant);
    // The name begins with the award's prefix, which the operator types behind.
    if (suivant == Controle::Nom_A)
        saisie.Curseur_A_La_Fin(suivant);
}
