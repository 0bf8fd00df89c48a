#include "outils/Mise_De_Cote.h"

#include "log/Chemin_Log.h"
#include "log/Etat_Commun.h"
#include "log/Poste.h"
#include "outils/Nom_Log_ADIF.h"
#include "plateforme/Boites.h"
#include "plateforme/Dossier.h"

using namespace Qt::StringLiterals;

namespace {

QString Bak_Sans_Annee(const Etat_Commun &etat)
{
    return etat.station.indicatif + u'_' + Code(etat.station.diplome) + u".bak";
}

QString Log_Sans_Annee(const Etat_Commun &etat)
{
    return Chemin_Log(etat.station.indicatif, etat.station.diplome);
}

void Devient(Poste &poste, const QString &source, const QString &cible)
{
    poste.dossier.Copie(source, cible);
    poste.dossier.Supprime(source);
}

} // namespace

void Met_Le_Log_De_Cote(Poste &poste)
{
    Devient(poste, Log_Sans_Annee(poste.etat), Bak_Sans_Annee(poste.etat));
}

void Remet_Le_Log(Poste &poste)
{
    const QString nom = Nom_Log_ADIF(poste.etat);
    Devient(poste, nom + u".bak", nom + u".log");
}

void Oublie_Le_Bak(Poste &poste)
{
    poste.dossier.Supprime(Nom_Log_ADIF(poste.etat) + u".bak");
}

void Retablit_Un_Import_Coupe(Poste &poste)
{
    const QString log = Log_Sans_Annee(poste.etat);
    const QString bak = Bak_Sans_Annee(poste.etat);
    if (poste.dossier.Existe(log) || !poste.dossier.Existe(bak))
        return;
    Devient(poste, bak, log);
    poste.boites.Message(u"Une importation précédente a été interrompue, le log "_s + log + u" a été rétabli");
}
