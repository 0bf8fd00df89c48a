#include "outils/Nom_Log_ADIF.h"

#include "log/Etat_Commun.h"

QString Nom_Log_ADIF(const Etat_Commun &etat)
{
    const QString nom = etat.station.indicatif + u'_' + Code(etat.station.diplome);
    if (etat.station.diplome == Diplome::Ch_DFCF)
        return nom + u'_' + etat.station.annee_ch_dfcf;
    return nom;
}
