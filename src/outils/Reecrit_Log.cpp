#include "outils/Reecrit_Log.h"

#include "log/Charge_Log.h"
#include "log/Ecran_Principal.h"
#include "log/Etat_Commun.h"
#include "log/Poste.h"
#include "plateforme/Dossier.h"

using namespace Qt::StringLiterals;

void Reecrit_Log(Poste &poste, const std::function<QString(const Lignes_Texte &)> &regle)
{
    const std::optional<Diplome> diplome = poste.etat.station.diplome;
    // The list may show what the log was an hour ago.
    Charge_Log(poste, diplome);
    poste.dossier.Remplace(poste.etat.station.Log(diplome), regle(poste.ecran.Liste_QSO()), u"Temporaire.txt"_s);
    Charge_Log(poste, diplome);
    poste.ecran.Selectionne_Derniere();
}
