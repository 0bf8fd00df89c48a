#include "diplomes/tables/Tables.h"

#include <array>

namespace diplomes {

namespace {

// clang-format off
constexpr std::array<Option_Diplome, 4> options = {{
    {1, u"Atypique ( De construction particuliere )", u"Diplomes_DCPF", {.code_categorie = u"CA", .niveau_liste = u"Atypique"}},
    {2, u"Tour Isolée ( Pouvant en faire le tour )", u"Diplomes_DCPF", {.code_categorie = u"PT", .niveau_liste = u"Tour isolée"}},
    {3, u"Accolé ( A une demeure ou à un batiment )", u"Diplomes_DCPF", {.code_categorie = u"PA", .niveau_liste = u"Accolé"}},
    {4, u"Mixte", u"Diplomes_DCPF", {.code_categorie = u"MI", .niveau_liste = u"Mixte"}},
}};
// clang-format on

constexpr std::array<Groupe_Options, 1> groupes = {{{u"Pigeonnier", options}}};

} // namespace

constexpr Choix_Diplome choix_dcpf = {
    .ecran = u"Select_Dip_DCPF",
    .titre = u"Sélection d'un diplome DCPF",
    .entete = u"Sélection d'un diplome DCPF",
    .groupes = groupes,
};

} // namespace diplomes
