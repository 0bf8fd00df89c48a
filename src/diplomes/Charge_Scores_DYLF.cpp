#include "diplomes/Charge_Scores_DYLF.h"

#include "diplomes/Lit_Sources.h"
#include "diplomes/tables/Tables.h"

namespace diplomes {

std::array<Score, nombre_scores> Charge_Scores_DYLF(const Poste &poste)
{
    return Compte_Scores(Lit_Sources(poste, fiche_dylf.sources).log);
}

} // namespace diplomes
