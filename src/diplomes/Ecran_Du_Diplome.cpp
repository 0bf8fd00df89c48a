#include "diplomes/Ecran_Du_Diplome.h"

#include <array>

namespace {

struct Correspondance {
    Diplome diplome;
    QStringView ecran;
};

// clang-format off
constexpr std::array<Correspondance, 21> correspondances = {{
    {Diplome::DAF,     u"Select_Dip_DAF"},
    {Diplome::DCF,     u"Diplomes_DCF"},
    {Diplome::DCPF,    u"Select_Dip_DCPF"},
    {Diplome::DDFM,    u"Select_Dip_DDFM"},
    {Diplome::DFCF,    u"Diplomes_DFCF"},
    {Diplome::DFF,     u"Select_Dip_DFF"},
    {Diplome::DIFI,    u"Diplomes_DIFI"},
    {Diplome::DIFM,    u"Diplomes_DIFM"},
    {Diplome::DLF,     u"Diplomes_DLF"},
    {Diplome::DMF,     u"Diplomes_DMF_HF"},
    {Diplome::DOHF,    u"Select_Dip_DOHF"},
    {Diplome::DPF,     u"Select_Dip_DPF"},
    {Diplome::DPLF,    u"Diplomes_DPLF"},
    {Diplome::DVFF,    u"Diplomes_DVFF"},
    {Diplome::DYLF,    u"Diplomes_DYLF"},
    {Diplome::FFF,     u"Diplomes_FFF"},
    {Diplome::TDC,     u"Select_Dip_TDC"},
    {Diplome::WLF,     u"Diplomes_WLF"},
    {Diplome::PC,      u"Diplomes_PC"},
    {Diplome::Ch_DFCF, u"Diplomes_Ch_DFCF"},
    {Diplome::Ch_DMF,  u"Diplomes_Ch_DFCF"},
}};
// clang-format on

} // namespace

QString Ecran_Du_Diplome(std::optional<Diplome> diplome)
{
    for (const Correspondance &correspondance : correspondances)
        if (correspondance.diplome == diplome)
            return correspondance.ecran.toString();
    return {};
}
