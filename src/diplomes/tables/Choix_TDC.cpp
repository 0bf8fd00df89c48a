#include "diplomes/tables/Tables.h"

#include "log/Etat_Commun.h"

#include <array>

namespace diplomes {

namespace {

/// The towers of the lines, by the index of their option less 1.
constexpr std::array<std::int16_t, 17> tours = {24, 62, 77, 76, 56, 112, 81, 14, 4, 1, 11, 19, 18, 7, 10, 12, 25};

void Choisit_Ligne(Etat_Commun &etat, int indice)
{
    etat.nb_tours_ligne = tours[static_cast<std::size_t>(indice - 1)];
}

constexpr Option_Diplome Ligne(int indice, QStringView texte, QStringView nom)
{
    return {indice, texte, u"Diplomes_TDC", {.libelle_categorie = nom}, Choisit_Ligne};
}

// clang-format off
// Captions and names of the lines differ, and the captions are spelt so.
constexpr std::array<Option_Diplome, 7> principales = {{
    Ligne(1, u"Paris Lille", u"Paris - Lille"),
    Ligne(2, u"Paris Strasbourg", u"Paris - Strasbourg"),
    Ligne(3, u"Paris Brest", u"Paris - Brest"),
    Ligne(4, u"Paris Lyon", u"Paris - Lyon"),
    Ligne(5, u"Lyon Toulon", u"Lyon - Toulon"),
    Ligne(6, u"Paris - Bayonne", u"Paris - Bayonne"),
    Ligne(7, u"Avignon Bordeaux", u"Avignon - Bordeaux"),
}};

constexpr std::array<Option_Diplome, 10> secondaires = {{
    Ligne(8, u"Strasbourg Huningue", u"Strasbourg - Huningue"),
    Ligne(9, u"St Omer Calais", u"Saint Omer - Calais"),
    Ligne(10, u"Dunkerque Ostende", u"Dunkerque - Ostende"),
    Ligne(11, u"Lille Bruxelle", u"Lille - Bruxelle"),
    Ligne(12, u"Anvers Amterdam", u"Anvers - Amsterdam"),
    Ligne(13, u"Avranche Cherbourg", u"Avranches - Cherbourg"),
    Ligne(14, u"Bordeaux Blaye", u"Bordeaux - Blaye"),
    Ligne(15, u"Narbonne Perpignant", u"Narbonne - Perpignan"),
    Ligne(16, u"Dijon Besancon", u"Dijon - Besançon"),
    Ligne(17, u"Lyon Venise", u"Lyon - Venise"),
}};
// clang-format on

constexpr std::array<Groupe_Options, 2> groupes = {
    {{u"Lignes Principales", principales}, {u"Lignes secondaires", secondaires}}};

} // namespace

constexpr Choix_Diplome choix_tdc = {
    .ecran = u"Select_Dip_TDC",
    .titre = u"Selection lignes",
    .entete = u"Sélection d'une ligne TDC",
    .groupes = groupes,
};

} // namespace diplomes
