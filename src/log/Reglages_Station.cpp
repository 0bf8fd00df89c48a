#include "log/Reglages_Station.h"

#include "log/Cles.h"
#include "log/Etat_Commun.h"
#include "log/Poste.h"
#include "plateforme/Reglages.h"

QString Section_Station(QStringView indicatif)
{
    return cles::generale + indicatif;
}

QString Lit_Station(const Poste &poste, QStringView cle, QStringView defaut)
{
    return poste.reglages.Lit(Section_Station(poste.etat.station.indicatif), cle.toString(), defaut.toString());
}

void Ecrit_Station(Poste &poste, QStringView cle, const QString &valeur)
{
    poste.reglages.Ecrit(Section_Station(poste.etat.station.indicatif), cle.toString(), valeur);
}

QString Lit_General(const Poste &poste, QStringView cle, QStringView defaut)
{
    return poste.reglages.Lit(cles::generale.toString(), cle.toString(), defaut.toString());
}

void Ecrit_General(Poste &poste, QStringView cle, const QString &valeur)
{
    poste.reglages.Ecrit(cles::generale.toString(), cle.toString(), valeur);
}

void Lit_Annees_Challenge(Poste &poste)
{
    poste.etat.station.annee_ch_dmf = Lit_Station(poste, cles::annee_challenge_dmf, annee_absente);
    poste.etat.station.annee_ch_dfcf = Lit_Station(poste, cles::annee_challenge_dfcf, annee_absente);
}
