#include "outils/ADIF_SP.h"

#include "log/Ligne_Log.h"

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

namespace col = colonnes_log;

// clang-format off
// Fewer rows than the import knows, and "432" without its unit, so that "432 Mhz" finds no row: both stand so on purpose.
constexpr std::array<std::pair<QStringView, QStringView>, 8> bandes_adif = {{
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

QStringView Bande_ADIF(QStringView bande)
{
    const auto *place =
        std::find_if(bandes_adif.begin(), bandes_adif.end(), [&](const auto &rangee) { return rangee.first == bande; });
    return place == bandes_adif.end() ? QStringView() : place->second;
}

/// JJ/MM/AA as AAAAMMJJ; the century is always "20".
QString Date_ADIF(QStringView date)
{
    return u"20" + Lit(date, {7, 2}) + Lit(date, {4, 2}) + Lit(date, {1, 2});
}

QString Heure_ADIF(QStringView heure)
{
    const qsizetype deux = qMin(qsizetype{2}, heure.size());
    return heure.first(deux) + heure.last(deux);
}

} // namespace

QString ADIF_SP(QStringView ligne_log)
{
    const auto valeur = [&](Champ champ) { return Lit_Rogne(ligne_log, champ); };
    QString enregistrement;
    const auto pose = [&](QStringView etiquette, QStringView texte) {
        enregistrement += etiquette + QString::number(texte.size()) + u'>' + texte + u' ';
    };
    pose(u"<CALL:", valeur(col::Ind));
    pose(u"<STATE:", valeur(col::Dpt));
    pose(u"<NAME:", valeur(col::Prenom));
    pose(u"<SIG:", valeur(col::Ref));
    pose(u"<QSO_DATE:", Date_ADIF(valeur(col::Date)));
    pose(u"<TIME_ON:", Heure_ADIF(valeur(col::Heure)));
    pose(u"<MODE:", valeur(col::Mode));
    pose(u"<Band:", Bande_ADIF(valeur(col::Bande)));
    pose(u"<RST_RCVD:", valeur(col::RSTR));
    pose(u"<RST_SENT:", valeur(col::RSTE));
    pose(u"<SIG_INFO:", valeur(col::Nom));
    pose(u"<QSL_RCVD:", Est_Confirme(ligne_log) ? u"Y" : u"N");
    return enregistrement + u"<eor>";
}
