#include "log/Difference_Logs.h"

#include <QHash>

namespace {

/// The ranks of the lines that `autres` has not, or not so often.
std::vector<std::size_t> En_Plus(const Lignes_Texte &lignes, const Lignes_Texte &autres)
{
    QHash<QStringView, int> restantes;
    restantes.reserve(static_cast<qsizetype>(autres.size()));
    for (const QStringView ligne : autres)
        ++restantes[ligne];
    std::vector<std::size_t> en_plus;
    for (std::size_t rang = 0; rang < lignes.size(); ++rang) {
        const auto place = restantes.find(lignes[rang]);
        if (place != restantes.end() && *place > 0)
            --*place;
        else
            en_plus.push_back(rang);
    }
    return en_plus;
}

} // namespace

Difference_Logs Difference(const Lignes_Texte &copie, const Lignes_Texte &actuel)
{
    return {.reviendraient = En_Plus(copie, actuel), .partiraient = En_Plus(actuel, copie)};
}
