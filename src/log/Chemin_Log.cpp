#include "log/Chemin_Log.h"

QString Chemin_Log(QStringView indicatif, std::optional<Diplome> diplome, std::optional<QStringView> annee)
{
    QString nom = indicatif + u'_' + Code(diplome);
    if (annee)
        nom += u'_' + *annee;
    return nom + u".log";
}
