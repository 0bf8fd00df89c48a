#include "diplomes/regles/Bandes.h"

#include <algorithm>

bool Est_Bande_HF(QStringView bande)
{
    return std::find(liste_hf.begin(), liste_hf.end(), bande) != liste_hf.end();
}

QStringView Classe_HF_VHF(QStringView bande, QStringView avant)
{
    if (Est_Bande_HF(bande))
        return u"HF";
    return bande == u"144 Mhz" ? QStringView(u"VHF") : avant;
}

QStringView Classe_HF_VHF_UHF(QStringView bande, QStringView avant)
{
    return bande == u"432 Mhz" ? QStringView(u"UHF") : Classe_HF_VHF(bande, avant);
}
