#include "log/Ordre.h"

#include "plateforme/Windows_1252.h"

#include <algorithm>

bool Avant_Sans_Casse(QStringView a, QStringView b)
{
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), [](QChar gauche, QChar droite) {
        // Most characters of two neighbours are the same: no capital is asked for then.
        return gauche != droite && Majuscule_1252(gauche) < Majuscule_1252(droite);
    });
}

void Trie_Sans_Casse(std::vector<QString> &textes)
{
    std::stable_sort(textes.begin(), textes.end(), Avant_Sans_Casse);
}
