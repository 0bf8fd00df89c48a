#include "outils/Nom_Log_ADIF.h"

#include "log/Etat_Commun.h"

QString Nom_Log_ADIF(const Etat_Commun &etat)
{
    const QString nom = etat.indicatif + u'_' + etat.diplome;
    if (etat.diplome == u"Ch_DFCF")
        return nom + u'_' + etat.annee_ch_dfcf;
    return nom;
}
