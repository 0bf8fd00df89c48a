#include "saisie/Changement_Station.h"

#include "log/Charge_Log.h"
#include "log/Cles.h"
#include "log/Etat_Commun.h"
#include "log/Log_De_Cote.h"
#include "log/Poste.h"
#include "log/Reglages_Station.h"
#include "plateforme/Dossier.h"
#include "plateforme/Ecrans.h"
#include "plateforme/Tolere.h"
#include "saisie/Choix_Retenu.h"
#include "saisie/Saisie.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// A station exists if its log of this award does. It is made last: a station that was cut off is new again.
constexpr Diplome diplome_de_la_station = Diplome::DFCF;

bool Est_Permis(QChar caractere)
{
    return (caractere >= u'0' && caractere <= u'9') || (caractere >= u'A' && caractere <= u'Z') || caractere == u'_';
}

void Installe_Nouvelle_Station(Poste &poste)
{
    Tolere([&] { Cree_Logs(poste, poste.etat.station.indicatif); });
    Tolere([&] { Ecrit_Station(poste, cles::bande_utilisee, u"0"_s); });
    Tolere([&] { Ecrit_Station(poste, cles::mode_utilise, u"0"_s); });
}

} // namespace

Refus Refus_Indicatif_Station(QStringView indicatif)
{
    if (indicatif.isEmpty())
        return u"Vous devez entrer un indicatif"_s;
    if (indicatif.size() > 12)
        return u"12 caracteres maximum pour l'indicatif"_s;
    if (Est_Refus_De_Caractere(indicatif))
        return u"L'indicatif ne doit comporter que des lettres des chiffres ou le signe '_' "_s;
    return std::nullopt;
}

bool Est_Refus_De_Caractere(QStringView indicatif)
{
    return indicatif.size() <= 12 && !std::all_of(indicatif.begin(), indicatif.end(), Est_Permis);
}

void Cree_Logs(Poste &poste, QStringView indicatif)
{
    const auto cree = [&](Diplome diplome) { Tolere([&] { Cree_Log_Absent(poste.dossier, indicatif, diplome); }); };
    for (const Diplome diplome : tous_les_diplomes)
        if (diplome != diplome_de_la_station)
            cree(diplome);
    cree(diplome_de_la_station);
}

void Change_Station(Poste &poste, Saisie &saisie, const QString &indicatif)
{
    // A disk that does not answer is not a new station: the question fails before anything is changed.
    const bool connue = Connait_Log(poste.dossier, indicatif, diplome_de_la_station);
    Retablit_Station(poste, indicatif);
    poste.etat.station.indicatif = indicatif;
    if (!connue)
        Installe_Nouvelle_Station(poste);
    Tolere([&] { Ecrit_General(poste, cles::indicatif_station, indicatif); });
    saisie.Ecrit(Controle::I_Station, QString(indicatif).replace(u'_', u'/'));
    Reprend_Bande_Et_Mode(poste, saisie);
    Lit_Annees_Challenge(poste);
    Tolere([&] { Charge_Log(poste, poste.etat.station.diplome); });
    poste.ecrans.Suit_La_Station();
}
