#include "diplomes/regles/Enregistrement_ADIF.h"

#include "log/Champ.h"

#include <array>
#include <utility>

namespace diplomes {

namespace {

// clang-format off
constexpr std::array<std::pair<QStringView, QStringView>, 6> bandes = {{
    {u"3.5 Mhz", u"80m"},
    {u"7.0 Mhz", u"40m"},
    {u"14 Mhz", u"20m"},
    {u"21 Mhz", u"15m"},
    {u"28 Mhz", u"10m"},
    {u"144 Mhz", u"2m"},
}};
// clang-format on

} // namespace

void Enregistrement_ADIF::Pose(QStringView etiquette, QStringView valeur)
{
    const QStringView rognee = Rogne(valeur);
    texte_ += u'<' + etiquette + u':' + QString::number(rognee.size()) + u'>' + rognee + u' ';
}

QString Enregistrement_ADIF::Termine() const
{
    return texte_ + u"<eor>";
}

QStringView Bande_En_Metres(QStringView bande)
{
    for (const auto &[connue, metres] : bandes)
        if (connue == bande)
            return metres;
    return {};
}

QString Date_ADIF(QStringView date)
{
    return u"20" + Lit(date, {7, 2}) + Lit(date, {4, 2}) + Lit(date, {1, 2});
}

QString Heure_ADIF(QStringView heure)
{
    const qsizetype deux = qMin(qsizetype{2}, heure.size());
    return heure.first(deux) + heure.last(deux);
}

} // namespace diplomes
