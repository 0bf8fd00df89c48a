#include "diplomes/tables/Tables.h"

#include <array>

namespace {

// clang-format off
constexpr std::array fiches = {
    &fiche_ch_dfcf,
    &fiche_daf,
    &fiche_dcf,
    &fiche_dcpf,
    &fiche_ddfm,
    &fiche_dfcf,
    &fiche_dff,
    &fiche_difi,
    &fiche_difm,
    &fiche_dlf,
    &fiche_dmf,
    &fiche_dohf,
    &fiche_dpf,
    &fiche_dplf,
    &fiche_dvff,
    &fiche_dylf,
    &fiche_fff,
    &fiche_pc,
    &fiche_tdc,
    &fiche_wlf,
};
constexpr std::array listes = {
    &liste_ch_dfcf,
    &liste_daf,
    &liste_dcf,
    &liste_dcpf,
    &liste_ddfm,
    &liste_dfcf,
    &liste_dff,
    &liste_difi,
    &liste_difm,
    &liste_dlf,
    &liste_dmf,
    &liste_dohf,
    &liste_dpf,
    &liste_dplf,
    &liste_dvff,
    &liste_dylf,
    &liste_fff,
    &liste_pc,
    &liste_tdc,
    &liste_wlf,
};
constexpr std::array choix = {
    &choix_daf,
    &choix_dcpf,
    &choix_ddfm,
    &choix_dff,
    &choix_dohf,
    &choix_dpf,
    &choix_tdc,
};
// clang-format on

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
    return choix;
}
