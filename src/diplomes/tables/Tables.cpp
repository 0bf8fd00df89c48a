#include "diplomes/tables/Tables.h"

#include <array>

namespace {

constexpr std::array fiches = {&fiche_dfcf};
constexpr std::array listes = {&liste_dfcf};

} // namespace

std::span<const Fiche_Diplome *const> Fiches()
{
    return fiches;
}

std::span<const Liste_Diplome *const> Listes()
{
    return listes;
}

std::span<const Choix_Diplome *const> Choix_De_Diplomes()
{
    return {};
}
