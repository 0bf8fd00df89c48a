#include "outils/Sauve_Logs.h"

#include "log/Chemin_Log.h"
#include "log/Cles.h"
#include "log/Etat_Commun.h"
#include "log/Poste.h"
#include "log/Reglages_Station.h"
#include "plateforme/Dossier.h"
#include "plateforme/Tolere.h"

#include <QDir>

void Sauve_Logs(Poste &poste)
{
    Tolere([&] { Lit_Annees_Challenge(poste); });
    const QString repertoire = Lit_Station(poste, cles::chemin_sauvegarde, cles::chemin_sauvegarde_absent);
    // A folder of another system ("C:\..." here) is no full path: its copies would land among the logs.
    if (!QDir::isAbsolutePath(repertoire))
        return;
    for (const Diplome diplome : tous_les_diplomes) {
        const QString cible = repertoire + u'/' + Chemin_Log(poste.etat.station.indicatif, diplome);
        Tolere([&] { poste.dossier.Copie(poste.etat.station.Log(diplome), cible); });
    }
}
