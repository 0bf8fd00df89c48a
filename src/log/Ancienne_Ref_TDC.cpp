#include "log/Ancienne_Ref_TDC.h"

#include "log/Champ.h"
#include "log/Ligne_Liste.h"
#include "plateforme/Dossier.h"

using namespace Qt::StringLiterals;

std::optional<QString> Ancienne_Ref_TDC(const Dossier &dossier, QStringView ancienne)
{
    const Lignes_Texte lignes = dossier.Lit_Lignes(u"Liste_TDC.csv"_s);
    for (std::size_t rang = 1; rang < lignes.size(); ++rang) {
        if (lignes[rang].isEmpty())
            continue;
        const auto champs = Champs_Liste<7>(lignes[rang]);
        if (Rogne(champs[6]) == Rogne(ancienne))
            return champs[1].last(qMin(qsizetype{6}, champs[1].size())) + u'-' + champs[0];
    }
    return std::nullopt;
}
