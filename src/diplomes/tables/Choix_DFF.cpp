#include "diplomes/tables/Tables.h"

#include <array>

namespace diplomes {

namespace {

// clang-format off
constexpr std::array<Option_Diplome, 2> options = {{
    {1, u"Diplome HF", u"Diplomes_DFF", {.code_categorie = u"HF"}},
    {2, u"Diplome VHF", u"Diplomes_DFF", {.code_categorie = u"VHF"}},
}};
// clang-format on

constexpr std::array<Groupe_Options, 1> groupes = {{{u"Fontaines", options}}};

} // namespace

constexpr Choix_Diplome choix_dff = {
    .ecran = u"Select_Dip_DFF",
    .titre = u"Sélection d'un diplome DFF",
    .entete = u"Sélection d'un diplome DFF",
    .groupes = groupes,
};

} // namespace diplomes
