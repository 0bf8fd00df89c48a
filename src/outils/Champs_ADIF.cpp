#include "outils/Champs_ADIF.h"

#include "log/Champ.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<QStringView, nombre_etiquettes> textes = {
    u"<CALL", u"<STATE", u"<NAME",     u"<SIG:",     u"<QSO_DATE", u"<TIME_ON",  u"<MODE",
    u"<BAND", u"<FREQ",  u"<RST_RCVD", u"<RST_SENT", u"<SIG_INFO", u"<QSL_RCVD",
};

/// The tag that begins a text; no tag is the beginning of another.
std::size_t Rang_Etiquette(QStringView texte)
{
    const auto *place =
        std::find_if(textes.begin(), textes.end(), [&](QStringView etiquette) { return texte.startsWith(etiquette); });
    return static_cast<std::size_t>(place - textes.begin());
}

} // namespace

Champs_ADIF::Champs_ADIF(QStringView enregistrement) : enregistrement_(enregistrement)
{
    places_.fill(-1);
    for (qsizetype i = enregistrement.indexOf(u'<'); i >= 0; i = enregistrement.indexOf(u'<', i + 1)) {
        const std::size_t rang = Rang_Etiquette(enregistrement.sliced(i));
        if (rang < nombre_etiquettes && places_[rang] < 0)
            places_[rang] = i;
    }
}

std::optional<QStringView> Champs_ADIF::Valeur(Etiquette etiquette) const
{
    if (!Contient(etiquette))
        return QStringView();
    const qsizetype debut = enregistrement_.indexOf(u'>', Place(etiquette));
    const qsizetype fin = debut < 0 ? -1 : enregistrement_.indexOf(u'<', debut);
    if (fin < 0)
        return std::nullopt;
    QStringView valeur = enregistrement_.sliced(debut + 1, fin - debut - 1);
    if (etiquette == Etiquette::FREQ && !valeur.isEmpty())
        valeur.chop(1);
    return Rogne(valeur);
}

Erreur_Execution Champs_ADIF::Sans_Fin(Etiquette etiquette)
{
    return {Cause::Format_ADIF,
            u"dans le fichier ADIF, rien ne ferme la valeur de %1 dans le dernier enregistrement"_s.arg(
                textes[static_cast<std::size_t>(etiquette)].sliced(1))};
}
