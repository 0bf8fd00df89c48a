#include "diplomes/tables/Tables.h"

#include "diplomes/regles/Regle_DPF.h"

#include <array>

namespace diplomes {

namespace {

// clang-format off
constexpr std::array<Option_Diplome, 3> options = {{
    {1, u"Diplome HF", u"Diplomes_DPF", {.bande_liste = u"HF", .code_categorie = u"Simple"}},
    {2, u"Diplome THF", u"Diplomes_DPF", {.bande_liste = u"THF", .code_categorie = u"Simple"}},
    {3, u"Diplome HF 5 bandes", u"Diplomes_DPF", {.bande_liste = u"HF", .code_categorie = cinq_bandes_dpf}},
}};
// clang-format on

constexpr std::array<Groupe_Options, 1> groupes = {{{u"", options}}};

} // namespace

constexpr Choix_Diplome choix_dpf = {
    .ecran = u"Select_Dip_DPF",
    .titre = u"Selection diplomes DPF",
    .entete = u"Sélection d'un diplome DPF",
    .groupes = groupes,
};

} // namespace diplomes
