#include "log/Recherches_Log.h"

#include "log/Etat_Commun.h"
#include "log/Ligne_Log.h"
#include "log/Poste.h"
#include "plateforme/Dossier.h"

#include <algorithm>

namespace {

namespace col = colonnes_log;

template <typename Condition>
Trouvaille Premiere(const Lignes_Texte &lignes, Condition &&condition)
{
    const auto place = std::find_if(lignes.begin(), lignes.end(), condition);
    if (place == lignes.end())
        return {};
    return {.oui = true, .date = Lit(*place, col::Date).toString()};
}

} // namespace

Trouvaille Cherche_Ref_Dans(const Lignes_Texte &lignes, QStringView ref)
{
    return Premiere(lignes, [&](QStringView ligne) { return Lit_Rogne(ligne, col::Ref) == ref; });
}

Trouvaille Cherche_Dpt_Bande_Mode_Dans(const Lignes_Texte &lignes, QStringView dpt, QStringView bande, QStringView mode)
{
    return Premiere(lignes, [&](QStringView ligne) {
        return Lit_Rogne(ligne, col::Dpt) == dpt && Lit_Rogne(ligne, col::Bande) == bande &&
               Lit_Rogne(ligne, col::Mode) == mode;
    });
}

Trouvaille Cherche_Ref(const Poste &poste, std::optional<Diplome> diplome, QStringView ref)
{
    return Cherche_Ref_Dans(poste.dossier.Lit_Lignes(poste.etat.station.Log(diplome)), ref);
}

Trouvaille Cherche_Dpt_Bande_Mode(const Poste &poste, QStringView dpt, QStringView bande, QStringView mode)
{
    return Cherche_Dpt_Bande_Mode_Dans(poste.dossier.Lit_Lignes(poste.etat.station.Log_Courant()), dpt, bande, mode);
}
