#include "log/Station_Courante.h"

#include "log/Chemin_Log.h"

std::optional<QStringView> Station_Courante::Annee(std::optional<Diplome> challenge) const
{
    if (challenge == Diplome::Ch_DFCF)
        return annee_ch_dfcf;
    if (challenge == Diplome::Ch_DMF)
        return annee_ch_dmf;
    return std::nullopt;
}

QString &Station_Courante::Annee_Challenge(Diplome challenge)
{
    return challenge == Diplome::Ch_DMF ? annee_ch_dmf : annee_ch_dfcf;
}

QString Station_Courante::Log(std::optional<Diplome> de) const
{
    return Chemin_Log(indicatif, de, Annee(de));
}
