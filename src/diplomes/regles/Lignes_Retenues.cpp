#include "diplomes/regles/Lignes_Retenues.h"

#include "diplomes/regles/Bandes.h"
#include "log/Ligne_Log.h"

namespace col = colonnes_log;

bool Toute_Ligne(QStringView, const Etat_Commun &)
{
    return true;
}

bool Confirme(QStringView ligne_log, const Etat_Commun &)
{
    return Est_Confirme(ligne_log);
}

bool Confirme_HF(QStringView ligne_log, const Etat_Commun &)
{
    return Est_Confirme(ligne_log) && Est_Bande_HF(Lit_Rogne(ligne_log, col::Bande));
}
