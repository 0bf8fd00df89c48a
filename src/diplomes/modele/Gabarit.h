#pragma once

#include <QStringView>

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <string_view>

namespace diplomes {

/// Where a text of the award tables stands, and so which values it may name in braces.
enum class Vocabulaire {
    Ecran,  ///< a title or a heading
    Niveau, ///< the labels of a tier
    Compte, ///< the count under a list
    Sortie  ///< files and pages
};

/// {Indicatif} and the shared texts of the award screens, each under its own name: every text may name them.
inline constexpr std::array<std::u16string_view, 7> noms_communs = {
    u"Indicatif",         u"Bande_Liste",     u"Mode_Liste",   u"Code_Categorie",
    u"Libelle_Categorie", u"Categorie_Liste", u"Niveau_Liste",
};
/// What single awards name beside them.
inline constexpr std::array<std::u16string_view, 5> noms_propres = {
    u"Challenge", u"Annee", u"Annee_DFCF", u"Bande_De_Nom", u"Variante",
};
inline constexpr std::array<std::u16string_view, 7> noms_de_niveau = {
    u"n", u"d", u"seuil_n", u"reste_n", u"reste_d", u"manque_n", u"manque_d",
};
inline constexpr std::array<std::u16string_view, 1> noms_de_compte = {u"c"};
inline constexpr std::array<std::u16string_view, 4> noms_du_jour = {u"JJ_MM_AA", u"JJ/MM/AA", u"AAAA", u"Date"};

constexpr bool Est_Parmi(std::u16string_view nom, std::span<const std::u16string_view> noms)
{
    return std::find(noms.begin(), noms.end(), nom) != noms.end();
}

constexpr bool Est_Connu(Vocabulaire vocabulaire, std::u16string_view nom)
{
    if (Est_Parmi(nom, noms_communs))
        return true;
    switch (vocabulaire) {
    case Vocabulaire::Ecran:
        return Est_Parmi(nom, noms_propres);
    case Vocabulaire::Niveau:
        return Est_Parmi(nom, noms_de_niveau);
    case Vocabulaire::Compte:
        return Est_Parmi(nom, noms_de_compte);
    case Vocabulaire::Sortie:
        break;
    }
    return Est_Parmi(nom, noms_propres) || Est_Parmi(nom, noms_du_jour);
}

/// A text of the award tables that names values in braces: "Diplome DFCF {Bande_Liste} {Code_Categorie}". A name that
/// its place does not know, and a brace that is not closed, do not compile.
template <Vocabulaire vocabulaire>
class Gabarit {
public:
    constexpr Gabarit() = default;
    template <std::size_t N>
    consteval Gabarit(const char16_t (&texte)[N]) : Gabarit(QStringView(texte))
    {
    }
    consteval Gabarit(QStringView texte) : texte_(texte) { Verifie({texte.utf16(), std::size_t(texte.size())}); }

    constexpr operator QStringView() const { return texte_; }
    [[nodiscard]] constexpr bool isEmpty() const { return texte_.isEmpty(); }

private:
    static consteval void Verifie(std::u16string_view texte)
    {
        for (auto ouvre = texte.find(u'{'); ouvre != texte.npos; ouvre = texte.find(u'{', ouvre + 1)) {
            const auto ferme = texte.find(u'}', ouvre);
            if (ferme == texte.npos || !Est_Connu(vocabulaire, texte.substr(ouvre + 1, ferme - ouvre - 1)))
                throw "a brace names no value that this text may name";
        }
    }

    QStringView texte_;
};

using Gabarit_Ecran = Gabarit<Vocabulaire::Ecran>;
using Gabarit_Niveau = Gabarit<Vocabulaire::Niveau>;
using Gabarit_Compte = Gabarit<Vocabulaire::Compte>;
using Gabarit_Sortie = Gabarit<Vocabulaire::Sortie>;

} // namespace diplomes
