#include "diplomes/modele/Classe_Bande.h"

#include <array>
#include <utility>

namespace diplomes {

namespace {

constexpr std::array<std::pair<QStringView, Classe_Bande>, 5> classes = {{
    {u"", Classe_Bande::Aucune},
    {u"HF", Classe_Bande::HF},
    {u"VHF", Classe_Bande::VHF},
    {u"UHF", Classe_Bande::UHF},
    {u"THF", Classe_Bande::THF},
}};

} // namespace

std::optional<Classe_Bande> Classe_Nommee(QStringView texte)
{
    for (const auto &[nom, classe] : classes)
        if (nom == texte)
            return classe;
    return std::nullopt;
}

} // namespace diplomes
