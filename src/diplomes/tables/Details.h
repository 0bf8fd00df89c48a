#pragma once

#include "diplomes/modele/Fiche_Diplome.h"

namespace diplomes {

// The labels of a tier as the tables write them. With labels of their own for the words and the numbers:

constexpr Texte_Detail Prefixe(QStringView nom)
{
    return {.nom = nom, .manque = u"il vous manque ", .atteint = u"avec les QSL des", .inchange = u"il vous manque "};
}

/// The number of lines, or of those that are missing.
constexpr Texte_Detail Nombre_N(QStringView nom)
{
    return {.nom = nom, .manque = u"{manque_n}", .atteint = u"{n}"};
}

/// The same of departments.
constexpr Texte_Detail Nombre_D(QStringView nom)
{
    return {.nom = nom, .manque = u"{manque_d}", .atteint = u"{d}"};
}

/// A noun that never changes.
constexpr Texte_Detail Fixe(QStringView nom, Gabarit_Niveau texte)
{
    return {.nom = nom, .manque = texte, .atteint = texte, .inchange = texte};
}

// And with one label for the whole sentence:

struct Phrase_De_Niveau {
    Gabarit_Niveau manque;
    Gabarit_Niveau atteint;
    Gabarit_Niveau inchange = u"il vous manque ";
};

constexpr Texte_Detail Phrase(QStringView nom, const Phrase_De_Niveau &phrase)
{
    return {.nom = nom, .manque = phrase.manque, .atteint = phrase.atteint, .inchange = phrase.inchange};
}

} // namespace diplomes
