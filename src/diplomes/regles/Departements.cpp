#include "diplomes/regles/Departements.h"

#include "log/Champ.h"
#include "log/Departement.h"
#include "plateforme/Entier.h"

#include <algorithm>

namespace diplomes {

QStringView Departement_De_Fiche(QStringView ligne_log)
{
    // Two columns more than the field has: the sheets read the separator with it.
    constexpr Champ lu{14, 4};
    return Departement_Replie(Lit_Rogne(ligne_log, lu));
}

std::size_t Indice_Departement(QStringView dpt)
{
    return Indice(Entier(dpt), taille_departements);
}

int Departements::Nombre() const
{
    return static_cast<int>(std::count(vus_.begin() + 1, vus_.end(), true));
}

} // namespace diplomes
