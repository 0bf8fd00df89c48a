#include "diplomes/regles/Bandes.h"

#include <algorithm>

namespace diplomes {

bool Est_Bande_HF(QStringView bande)
{
    return std::find(liste_hf.begin(), liste_hf.end(), bande) != liste_hf.end();
}

Classe_Bande Classe_HF_VHF(QStringView bande, Classe_Bande avant)
{
    if (Est_Bande_HF(bande))
        return Classe_Bande::HF;
    return bande == u"144 Mhz" ? Classe_Bande::VHF : avant;
}

Classe_Bande Classe_HF_VHF_UHF(QStringView bande, Classe_Bande avant)
{
    return bande == u"432 Mhz" ? Classe_Bande::UHF : Classe_HF_VHF(bande, avant);
}

} // namespace diplomes
