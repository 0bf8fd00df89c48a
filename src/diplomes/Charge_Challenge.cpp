#include "diplomes/Charge_Challenge.h"

#include "diplomes/Lit_Sources.h"
#include "diplomes/regles/Canal.h"
#include "log/Poste.h"

namespace diplomes {

Etat_Challenge Charge_Challenge(const Poste &poste)
{
    return Evalue_Challenge(Lit_Sources(poste, sources_du_canal), poste.etat);
}

} // namespace diplomes
