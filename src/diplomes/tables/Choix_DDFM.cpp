#include "diplomes/tables/Tables.h"

#include "diplomes/regles/Regle_DDFM.h"
#include "log/Catalogue.h"

#include <array>

namespace diplomes {

namespace {

constexpr Selecteur_De_Bande bande_hf = {u"Bande_HF", std::span(bandes).first(9)};
constexpr Selecteur_De_Bande bande_thf = {u"Bande_THF", std::span(bandes).last(3)};

// clang-format off
constexpr std::array<Option_Diplome, 3> options = {{
    {.indice = 1, .texte = u"Diplome HF", .ecran = u"Diplomes_DDFM", .choix = {.code_categorie = u"HF"}, .selecteur = &bande_hf},
    {.indice = 2, .texte = u"Diplome THF", .ecran = u"Diplomes_DDFM", .choix = {.code_categorie = u"THF"}, .selecteur = &bande_thf},
    {.indice = 3, .texte = u"Diplome HF 5 bandes", .ecran = u"Diplomes_DDFM", .choix = {.bande_liste = cinq_bandes_ddfm, .code_categorie = u"HF"}},
}};
// clang-format on

constexpr std::array<Groupe_Options, 1> groupes = {{{u"", options}}};

} // namespace

constexpr Choix_Diplome choix_ddfm = {
    .ecran = u"Select_Dip_DDFM",
    .titre = u"Selection diplome DDFM",
    .entete = u"Sélection d'un diplome DDFM",
    .groupes = groupes,
};

} // namespace diplomes
