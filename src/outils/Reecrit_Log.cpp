#include "outils/Reecrit_Log.h"

#include "log/Charge_Log.h"
#include "log/Ecran_Principal.h"
#include "log/Etat_Commun.h"
#include "log/Garde_Copie.h"
#include "log/Poste.h"
#include "plateforme/Dossier.h"

#include <utility>

using namespace Qt::StringLiterals;

Log_Compose Compose_Log(const Poste &poste, QString texte, std::initializer_list<Regle_De_Log> regles)
{
    Log_Compose compose{.texte = std::move(texte)};
    for (const Regle_De_Log regle : regles) {
        const Log_A_Jour log =
            Met_A_Jour(poste.dossier, poste.etat.station.diplome, Lignes_Texte(std::move(compose.texte)));
        compose.mis_a_jour |= log.a_reecrire.has_value();
        compose.texte = regle(log.lignes);
    }
    return compose;
}

void Montre_Log(Poste &poste, const Log_Compose &log)
{
    Charge_Log(poste, poste.etat.station.diplome);
    if (log.mis_a_jour)
        Annonce_Mise_A_Jour(poste, poste.etat.station.diplome);
}

void Reecrit_Log(Poste &poste, Outil outil, std::initializer_list<Regle_De_Log> regles)
{
    const QString nom = poste.etat.station.Log_Courant();
    // The list may show what the log was an hour ago.
    const Log_Compose log = Compose_Log(poste, Lit_Log(poste, nom), regles);
    const auto remplace = [&] { poste.dossier.Remplace(nom, log.texte, u"Temporaire.txt"_s); };
    if (Remplace_En_Gardant(poste, outil, nom, remplace))
        Montre_Log(poste, log);
    else
        Charge_Log(poste, poste.etat.station.diplome);
    poste.ecran.Selectionne_Derniere();
}
