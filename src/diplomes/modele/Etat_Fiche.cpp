#include "diplomes/modele/Etat_Fiche.h"

namespace diplomes {

Etiquette *Cherche_Etiquette(Etat_Fiche &etat, QStringView nom)
{
    for (Etat_Niveau &niveau : etat.niveaux) {
        if (niveau.etat.nom == nom)
            return &niveau.etat;
        for (Etiquette &etiquette : niveau.detail)
            if (etiquette.nom == nom)
                return &etiquette;
    }
    return nullptr;
}

} // namespace diplomes
