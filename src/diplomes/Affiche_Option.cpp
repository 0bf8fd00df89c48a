#include "diplomes/Affiche_Option.h"

#include "log/Poste.h"
#include "plateforme/Ecrans.h"

namespace diplomes {

void Affiche_Option(Poste &poste, const Option_Diplome &option, const QString &bande)
{
    Applique(option, bande, poste.etat);
    poste.ecrans.Montre(option.ecran.toString());
}

} // namespace diplomes
