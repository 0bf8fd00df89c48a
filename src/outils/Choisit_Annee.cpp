#include "outils/Choisit_Annee.h"

#include "log/Charge_Log.h"
#include "log/Chemin_Log.h"
#include "log/Cles.h"
#include "log/Etat_Commun.h"
#include "log/Notice.h"
#include "log/Poste.h"
#include "log/Reglages_Station.h"
#include "plateforme/Boites.h"
#include "plateforme/Dossier.h"
#include "plateforme/Ecrans.h"
#include "plateforme/Tolere.h"

using namespace Qt::StringLiterals;

namespace {

Diplome Challenge(const Poste &poste)
{
    return poste.etat.challenge.value_or(Diplome::Ch_DFCF);
}

QStringView Cle_Annee(Diplome challenge)
{
    return challenge == Diplome::Ch_DMF ? cles::annee_challenge_dmf : cles::annee_challenge_dfcf;
}

bool Reste_Dans_Le_Dossier(const QString &annee)
{
    return !annee.contains(u'/') && !annee.contains(u".."_s);
}

/// True if the log of the year is there or could be made.
bool Ouvre_Le_Log(Poste &poste, const QString &annee)
{
    const Station_Courante &station = poste.etat.station;
    const QString nom = Chemin_Log(station.indicatif, Challenge(poste), annee);
    return Tolere([&] { poste.dossier.Cree_Si_Absent(nom); });
}

} // namespace

QStringView Genre_Challenge(const Poste &poste)
{
    const std::optional<Diplome> challenge = poste.etat.challenge;
    return challenge ? Code(Notice_De(*challenge).source) : QStringView();
}

QString Annee_Challenge(const Poste &poste)
{
    return Lit_Station(poste, Cle_Annee(Challenge(poste)), annee_absente);
}

bool Choisit_Annee(Poste &poste, const QString &annee)
{
    if (!Reste_Dans_Le_Dossier(annee) || !Ouvre_Le_Log(poste, annee)) {
        poste.boites.Message(u"Année incorrecte"_s);
        return false;
    }
    poste.etat.station.Annee_Challenge(Challenge(poste)) = annee;
    Tolere([&] { Ecrit_Station(poste, Cle_Annee(Challenge(poste)), annee); });
    Tolere([&] { Charge_Log(poste, poste.etat.station.diplome); });
    poste.ecrans.Suit_Le_Log();
    return true;
}
