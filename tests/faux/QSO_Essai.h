#pragma once

#include "log/Ligne_Log.h"

/// A Ligne_Log for tests, in which only the fields that matter are written:
/// QSO({.ref = u"77001"_s, .date = u"12/05/07"_s}).
inline QString QSO(Champs_QSO champs)
{
    const auto defaut = [](QString &champ, const char16_t *texte) {
        if (champ.isNull())
            champ = QString::fromUtf16(texte);
    };
    defaut(champs.ind, u"F5ABC");
    defaut(champs.date, u"12/05/07");
    defaut(champs.heure, u"14:48");
    defaut(champs.mode, u"SSB");
    defaut(champs.bande, u"14 Mhz");
    defaut(champs.rstr, u"59");
    defaut(champs.rste, u"59");
    defaut(champs.qsl, u" ");
    return Compose_Ligne_Log(champs);
}
