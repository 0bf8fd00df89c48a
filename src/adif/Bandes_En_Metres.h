#pragma once

#include <QStringView>

#include <array>
#include <span>

/// A band as the log has it, and its wavelength as a record has it.
struct Bande_En_Metres {
    QStringView bande;
    QStringView metres;
};

// clang-format off
/// The bands of the records of a whole log. Fewer rows than the import knows, and "432" without its unit, so that
/// "432 Mhz" finds no row: both stand so on purpose.
inline constexpr std::array<Bande_En_Metres, 8> bandes_d_un_log = {{
    {u"1.8 Mhz", u"160m"},
    {u"3.5 Mhz", u"80m"},
    {u"7.0 Mhz", u"40m"},
    {u"14 Mhz", u"20m"},
    {u"21 Mhz", u"15m"},
    {u"28 Mhz", u"10m"},
    {u"144 Mhz", u"2m"},
    {u"432", u"70cm"},
}};
// clang-format on

/// The records of the awards know neither the first band nor the last.
inline constexpr std::span<const Bande_En_Metres> bandes_d_un_diplome = std::span(bandes_d_un_log).subspan(1, 6);

/// The wavelength of a trimmed band; empty for one that is not among the known ones.
constexpr QStringView Metres(std::span<const Bande_En_Metres> connues, QStringView bande)
{
    for (const Bande_En_Metres &connue : connues)
        if (connue.bande == bande)
            return connue.metres;
    return {};
}
