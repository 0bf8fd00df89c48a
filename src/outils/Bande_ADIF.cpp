#include "outils/Bande_ADIF.h"

#include <algorithm>
#include <array>

namespace {

struct Bande_Importee {
    std::array<QStringView, 5> cles;
    QStringView bande;
};

// clang-format off
// The first row wins: "10" stands in two, and is the band of 30 metres.
constexpr std::array<Bande_Importee, 12> bandes_importees = {{
    {{u"160M", u"160", u"1.8"}, u"1.8 Mhz"},
    {{u"80M", u"80", u"3.5", u"3.6", u"3"}, u"3.5 Mhz"},
    {{u"40M", u"40", u"7"}, u"7.0 Mhz"},
    {{u"30M", u"30", u"10"}, u"10 Mhz"},
    {{u"20M", u"20", u"14"}, u"14 Mhz"},
    {{u"17M", u"17", u"18"}, u"18 Mhz"},
    {{u"15M", u"15", u"21"}, u"21 Mhz"},
    {{u"12M", u"12", u"24"}, u"24 Mhz"},
    {{u"10M", u"10", u"28"}, u"28 Mhz"},
    {{u"6M", u"6", u"50"}, u"50 Mhz"},
    {{u"2M", u"2", u"144", u"145"}, u"144 Mhz"},
    {{u"70CM", u"70", u"432"}, u"432 Mhz"},
}};
// clang-format on

} // namespace

QString Bande_De_Cle(QStringView cle)
{
    if (cle.isEmpty())
        return {};
    const auto *place = std::find_if(bandes_importees.begin(), bandes_importees.end(), [&](const auto &rangee) {
        return std::find(rangee.cles.begin(), rangee.cles.end(), cle) != rangee.cles.end();
    });
    return place == bandes_importees.end() ? QString() : place->bande.toString();
}

QString Bande_De_Frequence(QStringView frequence)
{
    const QStringView debut = frequence.left(5);
    const qsizetype point = debut.indexOf(u'.');
    return Bande_De_Cle(point < 0 ? debut : debut.first(point));
}
