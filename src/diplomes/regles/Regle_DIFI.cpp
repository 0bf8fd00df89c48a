#include "diplomes/regles/Regle_DIFI.h"

namespace diplomes {

void Vide_Nombre_Mixte(Etat_Fiche &etat)
{
    // The 0 of the sheet goes to the label of the departments, which then takes its own number.
    Etiquette *nombre = Cherche_Etiquette(etat, u"Label5");
    if (nombre->texte == u"0")
        nombre->texte.clear();
}

} // namespace diplomes
