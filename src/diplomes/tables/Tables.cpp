#include "diplomes/tables/Tables.h"

#include "log/Par_Diplome.h"

#include <algorithm>

namespace diplomes {

namespace {

// clang-format off
constexpr Par_Diplome<Tables_Du_Diplome> tables = {{
    {Diplome::Ch_DFCF, {&fiche_ch_dfcf, &liste_ch_dfcf}},
    {Diplome::Ch_DMF, {&fiche_ch_dfcf, &liste_ch_dfcf}},
    {Diplome::DAF, {&fiche_daf, &liste_daf, &choix_daf}},
    {Diplome::DCF, {&fiche_dcf, &liste_dcf}},
    {Diplome::DCPF, {&fiche_dcpf, &liste_dcpf, &choix_dcpf}},
    {Diplome::DDFM, {&fiche_ddfm, &liste_ddfm, &choix_ddfm}},
    {Diplome::DFCF, {&fiche_dfcf, &liste_dfcf}},
    {Diplome::DFF, {&fiche_dff, &liste_dff, &choix_dff}},
    {Diplome::DIFI, {&fiche_difi, &liste_difi}},
    {Diplome::DIFM, {&fiche_difm, &liste_difm}},
    {Diplome::DLF, {&fiche_dlf, &liste_dlf}},
    {Diplome::DMF, {&fiche_dmf, &liste_dmf}},
    {Diplome::DOHF, {&fiche_dohf, &liste_dohf, &choix_dohf}},
    {Diplome::DPF, {&fiche_dpf, &liste_dpf, &choix_dpf}},
    {Diplome::DPLF, {&fiche_dplf, &liste_dplf}},
    {Diplome::DVFF, {&fiche_dvff, &liste_dvff}},
    {Diplome::DYLF, {&fiche_dylf, &liste_dylf}},
    {Diplome::FFF, {&fiche_fff, &liste_fff}},
    {Diplome::PC, {&fiche_pc, &liste_pc}},
    {Diplome::TDC, {&fiche_tdc, &liste_tdc, &choix_tdc}},
    {Diplome::WLF, {&fiche_wlf, &liste_wlf}},
}};
// clang-format on

/// The tables of one kind in the order of the awards, each once.
template <typename Table>
std::vector<const Table *> Chacune(const Table *Tables_Du_Diplome::*genre)
{
    std::vector<const Table *> chacune;
    for (const Diplome diplome : tous_les_diplomes)
        if (const Table *table = tables[diplome].*genre; table && std::ranges::count(chacune, table) == 0)
            chacune.push_back(table);
    return chacune;
}

} // namespace

const Tables_Du_Diplome &Tables_De(Diplome diplome)
{
    return tables[diplome];
}

std::vector<const Fiche_Diplome *> Fiches()
{
    return Chacune(&Tables_Du_Diplome::fiche);
}

std::vector<const Liste_Diplome *> Listes()
{
    return Chacune(&Tables_Du_Diplome::liste);
}

std::vector<const Choix_Diplome *> Choix_De_Diplomes()
{
    return Chacune(&Tables_Du_Diplome::choix);
}

} // namespace diplomes
