#include "diplomes/tables/Tables.h"

#include "diplomes/modele/Rangs.h"
#include "diplomes/regles/Lignes_Retenues.h"
#include "diplomes/tables/Details.h"

#include <array>

namespace diplomes {

namespace {

// clang-format off
constexpr Phrase_De_Niveau cathedrales = {u"il vous manque {manque_n} Cathedrales confirmées",
    u"avec les QSL des {n} Cathedrales confirmés"};

// Neither QSL nor band is looked at, whatever the labels say.
constexpr std::array<Regle_Compte, 1> regles = {{{Toute_Ligne}}};

constexpr std::array<Niveau_Diplome, 4> niveaux = {{
    {.etat = u"Label4", .attente = u"Vous ne pouvez pas encore obtenir le diplome DCF de base",
     .atteint = u"Bravo vous pouvez obtenir le diplome DCF de base",
     .seuil_n = 10, .detail = {Phrase(u"Label18", cathedrales)}, .bouton = u"HF_Base", .choix = {{.bande_liste = u"HF", .code_categorie = u"de Base"}}},
    {.etat = u"Label7", .attente = u"Vous ne pouvez pas encore obtenir le diplome DCF Excellence",
     .atteint = u"Bravo vous pouvez obtenir le diplome DCF Excellence",
     .seuil_n = 30, .detail = {Phrase(u"Label19", cathedrales)}, .bouton = u"HF_Excellence", .choix = {{.bande_liste = u"HF", .code_categorie = u"Excellence"}}},
    {.etat = u"Label12", .attente = u"Vous ne pouvez pas encore obtenir le diplome DCF Honneur",
     .atteint = u"Bravo vous pouvez obtenir le diplome DCF Honneur",
     .seuil_n = 50, .detail = {Phrase(u"Label20", cathedrales)}, .bouton = u"HF_Honneur", .choix = {{.bande_liste = u"HF", .code_categorie = u"Honneur"}}},
    {.etat = u"Label15", .attente = u"Vous ne pouvez pas encore obtenir le trophé DCF ",
     .atteint = u"Bravo vous pouvez obtenir le trophé DCF",
     .seuil_n = 100, .detail = {Phrase(u"Label21", cathedrales)}, .bouton = u"HF_Trophe", .choix = {{.bande_liste = u"HF", .code_categorie = u"Trophe"}}},
}};

constexpr Gabarit_Sortie titre_de_fichier = u"   {Indicatif} Liste alphanumerique des Cathédrales contactées au {Date}";
constexpr QStringView colonnes_de_fichier = u"   N°    Ref     Dpt   Nom de la cathedrale            Date    Heure  Indicatif";
constexpr std::array<Sortie_De_Liste, 4> fichiers = {{
    {u"de Base", u"{Indicatif}_Diplome_DCF_de_Base_{JJ_MM_AA}.txt", titre_de_fichier, colonnes_de_fichier},
    {u"Honneur", u"{Indicatif}_Diplome_DCF_Honneur_{JJ_MM_AA}.txt", titre_de_fichier, colonnes_de_fichier},
    {u"Trophe", u"{Indicatif}_Diplome_DCF_Trophe_{JJ_MM_AA}.txt", titre_de_fichier, colonnes_de_fichier},
    {u"Excellence", u"{Indicatif}_Diplome_DCF_Excellence__{JJ_MM_AA}.txt", titre_de_fichier, colonnes_de_fichier},
}};

constexpr QStringView colonnes_de_page = u"       N°    Ref     Dpt   Nom de la cathedrale            Date    Heure  Indicatif";
constexpr std::array<Sortie_De_Liste, 4> pages = {{
    {u"de Base", u"", u"                 {Indicatif} Diplome DCF De base du {JJ/MM/AA}", colonnes_de_page},
    {u"Excellence", u"", u"                 {Indicatif} Diplome DCF Excellence du {JJ/MM/AA}", colonnes_de_page},
    {u"Honneur", u"", u"                 {Indicatif} Diplome DCF Honneur du {JJ/MM/AA}", colonnes_de_page},
    {u"Trophe", u"", u"                      {Indicatif} Trophé DCF du {JJ/MM/AA}", colonnes_de_page},
}};
// clang-format on

} // namespace

constexpr Fiche_Diplome fiche_dcf = {
    .ecran = u"Diplomes_DCF",
    .sources = {Diplome::DCF},
    .titre = u"Diplomes DCF",
    .entete = u"Diplomes DCF",
    .liste = u"Liste_DCF",
    .regles = regles,
    .niveaux = niveaux,
};

constexpr Liste_Diplome liste_dcf = {
    .ecran = u"Liste_DCF",
    .sources = {Diplome::DCF},
    .nom = u"Liste_DCF_Contacte",
    .titre = u"Diplôme DCF",
    .entete = u"Diplome DCF {Code_Categorie}",
    .colonnes = u"    Ref    Dpt   Nom de la cathedrale             Date   Heure  Indicatif",
    .compte = u" {c} Cathedrales confirmées",
    .rang = rang_commun,
    .retient = Toute_Ligne,
    .departement = Departement::Brut,
    .selecteur = u"{Code_Categorie}",
    .fichiers = fichiers,
    .pages = pages,
};

} // namespace diplomes
