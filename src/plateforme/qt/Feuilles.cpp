#include "plateforme/qt/Feuilles.h"

#include <QPrinter>

#include <algorithm>
#include <numeric>

namespace {

std::vector<int> Choisies(const QPrinter &imprimante, int nombre)
{
    const bool plage = imprimante.printRange() == QPrinter::PageRange;
    const int premiere = plage ? std::max(1, imprimante.fromPage()) : 1;
    const int derniere = plage ? std::min(nombre, imprimante.toPage()) : nombre;
    std::vector<int> feuilles(static_cast<std::size_t>(std::max(0, derniere - premiere + 1)));
    std::iota(feuilles.begin(), feuilles.end(), premiere - 1);
    return feuilles;
}

} // namespace

std::vector<int> Feuilles(const QPrinter &imprimante, int nombre)
{
    std::vector<int> choisies = Choisies(imprimante, nombre);
    if (imprimante.supportsMultipleCopies())
        return choisies;
    if (imprimante.pageOrder() == QPrinter::LastPageFirst)
        std::reverse(choisies.begin(), choisies.end());
    std::vector<int> feuilles;
    for (int copie = 0; copie < imprimante.copyCount(); ++copie)
        feuilles.insert(feuilles.end(), choisies.begin(), choisies.end());
    if (!imprimante.collateCopies()) {
        const bool recule = imprimante.pageOrder() == QPrinter::LastPageFirst;
        std::sort(feuilles.begin(), feuilles.end(),
                  [=](int une, int autre) { return recule ? une > autre : une < autre; });
    }
    return feuilles;
}
