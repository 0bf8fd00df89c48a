#include "diplomes/Charge_Liste.h"

#include "diplomes/Lit_Sources.h"
#include "diplomes/regles/Evalue.h"
#include "log/Poste.h"

namespace diplomes {

Etat_Liste Charge_Liste(const Poste &poste, const Liste_Diplome &liste)
{
    return Evalue_Liste(liste, Lit_Sources(poste, liste.sources), poste.etat);
}

} // namespace diplomes
