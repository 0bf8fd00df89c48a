#include "log/Chemin_Log.h"

#include "log/Etat_Commun.h"

using namespace Qt::StringLiterals;

QString Chemin_Log(const Etat_Commun &etat, QStringView code)
{
    if (code == u"Ch_DFCF")
        return etat.indicatif + u"_Ch_DFCF_" + etat.annee_ch_dfcf + u".log";
    if (code == u"Ch_DMF")
        return etat.indicatif + u"_Ch_DMF_" + etat.annee_ch_dmf + u".log";
    return Chemin_Log_Sans_Annee(etat.indicatif, code);
}

QString Chemin_Log_Sans_Annee(QStringView indicatif, QStringView code)
{
    return indicatif + u'_' + code + u".log";
}
