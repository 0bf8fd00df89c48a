#include "diplomes/tables/Tables.h"

#include "log/Etat_Commun.h"

#include <array>
#include <cstdint>

namespace diplomes {

namespace {

struct Canal {
    int indice; ///< of its option
    QStringView nom;
    std::int16_t ouvrages;
    std::int16_t numero;
};

// clang-format off
// The names differ from the captions of the options in two rows. They stand so.
constexpr std::array<Canal, 8> canaux = {{
    {7, u"Canal latéral à la Loire", 77, 1},
    {8, u"Canal de la Garonne", 76, 2},
    {9, u"Canal du Nivernais", 124, 5},
    {10, u"Canal de Bourgogne", 196, 4},
    {11, u"Canal de Briard", 41, 3},
    {12, u"Canal de Somme", 50, 6},
    {13, u"Canal Saint Martin", 25, 7},
    {14, u"Canal de Meuse", 50, 8},
}};
// clang-format on

void Choisit_Canal(Etat_Commun &etat, int indice)
{
    for (const Canal &canal : canaux)
        if (canal.indice == indice) {
            etat.canal_challenge = canal.nom.toString();
            etat.nb_ouvrages_canal = canal.ouvrages;
            etat.numero_canal = canal.numero;
        }
}

// clang-format off
constexpr std::array<Option_Diplome, 6> diplomes = {{
    {1, u"Barrages", u"Diplomes_DOHF", {.code_categorie = u"BA", .niveau_liste = u"Niveau 1"}},
    {2, u"Ecluses / Bassins", u"Diplomes_DOHF", {.code_categorie = u"EC"}},
    {3, u"Ponts / Ponts Cannaux / Tunnels", u"Diplomes_DOHF", {.code_categorie = u"PT"}},
    {4, u"Aqueducs", u"Diplomes_DOHF", {.code_categorie = u"AQ"}},
    {5, u"Machines / Pentes d'eau", u"Diplomes_DOHF", {.code_categorie = u"MA"}},
    {6, u"Mixte", u"Diplomes_DOHF", {.code_categorie = u"MI"}},
}};

constexpr std::array<Option_Diplome, 8> challenges = {{
    {7, u"Canal latéral à la Loire", u"Challenge", {}, Choisit_Canal, true},
    {8, u"Canal latéral à la Garonne", u"Challenge", {}, Choisit_Canal, true},
    {9, u"Canal du Nivernais", u"Challenge", {}, Choisit_Canal, true},
    {10, u"Canal de Bourgogne", u"Challenge", {}, Choisit_Canal, true},
    {11, u"Canal de Briard", u"Challenge", {}, Choisit_Canal, true},
    {12, u"Canal de la Somme", u"Challenge", {}, Choisit_Canal, true},
    {13, u"Canal Saint Martin", u"Challenge", {}, Choisit_Canal, true},
    {14, u"Canal de Meuse", u"Challenge", {}, Choisit_Canal, true},
}};
// clang-format on

constexpr std::array<Groupe_Options, 2> groupes = {{{u"Diplomes", diplomes}, {u"Challenges", challenges}}};

} // namespace

constexpr Choix_Diplome choix_dohf = {
    .ecran = u"Select_Dip_DOHF",
    .titre = u"Sélection Diplome",
    .entete = u"Sélection d'un diplome DOHF",
    .groupes = groupes,
};

} // namespace diplomes
