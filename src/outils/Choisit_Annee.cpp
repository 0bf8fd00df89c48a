#include "outils/Choisit_Annee.h"

#include "log/Charge_Log.h"
#include "log/Chemin_Log.h"
#include "log/Cles.h"
#include "log/Etat_Commun.h"
#include "log/Poste.h"
#include "log/Reglages_Station.h"
#include "plateforme/Boites.h"
#include "plateforme/Dossier.h"
#include "plateforme/Ecrans.h"
#include "plateforme/Tolere.h"

using namespace Qt::StringLiterals;

namespace {

bool Est_DMF(const Etat_Commun &etat)
{
    return etat.genre_challenge == u"DMF";
}

QStringView Cle_Annee(const Etat_Commun &etat)
{
    return Est_DMF(etat) ? cles::annee_challenge_dmf : cles::annee_challenge_dfcf;
}

bool Reste_Dans_Le_Dossier(const QString &annee)
{
    return !annee.contains(u'/') && !annee.contains(u".."_s);
}

/// True if the log of the year is there or could be made.
bool Ouvre_Le_Log(Poste &poste, const QString &annee)
{
    Etat_Commun essai = poste.etat;
    (Est_DMF(essai) ? essai.annee_ch_dmf : essai.annee_ch_dfcf) = annee;
    const QString nom = Chemin_Log(essai, Est_DMF(essai) ? u"Ch_DMF" : u"Ch_DFCF");
    return poste.dossier.S_Ouvre(nom) || Tolere([&] { poste.dossier.Cree_Si_Absent(nom); });
}

} // namespace

QString Annee_Challenge(const Poste &poste)
{
    return Lit_Station(poste, Cle_Annee(poste.etat), annee_absente);
}

bool Choisit_Annee(Poste &poste, const QString &annee)
{
    if (!Reste_Dans_Le_Dossier(annee) || !Ouvre_Le_Log(poste, annee)) {
        poste.boites.Message(u"Année incorrecte"_s);
        return false;
    }
    (Est_DMF(poste.etat) ? poste.etat.annee_ch_dmf : poste.etat.annee_ch_dfcf) = annee;
    Tolere([&] { Ecrit_Station(poste, Cle_Annee(poste.etat), annee); });
    Tolere([&] { Charge_Log(poste, poste.etat.diplome); });
    poste.ecrans.Suit_Le_Log();
    return true;
}
