#include "diplomes/tables/Tables.h"

#include <array>

namespace diplomes {

namespace {

// clang-format off
constexpr std::array<Option_Diplome, 3> options = {{
    {1, u"Chasseur Mixte", u"Diplomes_DAF", {.code_categorie = u"Mixte", .niveau_liste = u"Chasseur mixte"}},
    {2, u"Chasseur Phone", u"Diplomes_DAF", {.code_categorie = u"Phone", .niveau_liste = u"Chasseur phone"}},
    {3, u"Chasseur CW", u"Diplomes_DAF", {.code_categorie = u"CW", .niveau_liste = u"Chasseur CW"}},
}};
// clang-format on

constexpr std::array<Groupe_Options, 1> groupes = {{{u"Abbayes", options}}};

} // namespace

constexpr Choix_Diplome choix_daf = {
    .ecran = u"Select_Dip_DAF",
    .titre = u"Sélection d'un diplome DAF",
    .entete = u"Sélection d'un diplome DAF",
    .groupes = groupes,
};

} // namespace diplomes
