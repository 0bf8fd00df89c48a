#include "diplomes/Ecran_Du_Diplome.h"

#include <array>

namespace {

struct Correspondance {
    QStringView code;
    QStringView ecran;
};

// clang-format off
constexpr std::array<Correspondance, 21> correspondances = {{
    {u"DAF",     u"Select_Dip_DAF"},
    {u"DCF",     u"Diplomes_DCF"},
    {u"DCPF",    u"Select_Dip_DCPF"},
    {u"DDFM",    u"Select_Dip_DDFM"},
    {u"DFCF",    u"Diplomes_DFCF"},
    {u"DFF",     u"Select_Dip_DFF"},
    {u"DIFI",    u"Diplomes_DIFI"},
    {u"DIFM",    u"Diplomes_DIFM"},
    {u"DLF",     u"Diplomes_DLF"},
    {u"DMF",     u"Diplomes_DMF_HF"},
    {u"DOHF",    u"Select_Dip_DOHF"},
    {u"DPF",     u"Select_Dip_DPF"},
    {u"DPLF",    u"Diplomes_DPLF"},
    {u"DVFF",    u"Diplomes_DVFF"},
    {u"DYLF",    u"Diplomes_DYLF"},
    {u"FFF",     u"Diplomes_FFF"},
    {u"TDC",     u"Select_Dip_TDC"},
    {u"WLF",     u"Diplomes_WLF"},
    {u"PC",      u"Diplomes_PC"},
    {u"Ch_DFCF", u"Diplomes_Ch_DFCF"},
    {u"Ch_DMF",  u"Diplomes_Ch_DFCF"},
}};
// clang-format on

} // namespace

QString Ecran_Du_Diplome(QStringView code)
{
    for (const Correspondance &correspondance : correspondances)
        if (correspondance.code == code)
            return correspondance.ecran.toString();
    return {};
}
