#include "outils/Reecrit_Log.h"

#include "log/Charge_Log.h"
#include "log/Chemin_Log.h"
#include "log/Ecran_Principal.h"
#include "log/Etat_Commun.h"
#include "log/Poste.h"
#include "plateforme/Dossier.h"

using namespace Qt::StringLiterals;

void Reecrit_Log(Poste &poste, const std::function<QString(const Lignes_Texte &)> &regle)
{
    const QString code = poste.etat.diplome;
    // The list may show what the log was an hour ago.
    Charge_Log(poste, code);
    poste.dossier.Remplace(Chemin_Log(poste.etat, code), regle(poste.ecran.Liste_QSO()), u"Temporaire.txt"_s);
    Charge_Log(poste, code);
    poste.ecran.Selectionne_Derniere();
}
