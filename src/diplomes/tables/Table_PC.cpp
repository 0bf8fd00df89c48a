#include "diplomes/tables/Tables.h"

#include "diplomes/modele/Rangs.h"
#include "diplomes/regles/Lignes_Retenues.h"
#include "diplomes/tables/Details.h"

#include <array>

namespace diplomes {

namespace {

// clang-format off
constexpr Phrase_De_Niveau patrimoines = {u"il vous manque {manque_n} Patrimoines contactés",
    u"avec les {n} Patrimoines contactés"};

constexpr std::array<Regle_Compte, 1> regles = {{{Contacte}}};

constexpr std::array<Niveau_Diplome, 5> niveaux = {{
    {.etat = u"Label4", .attente = u"Vous ne pouvez pas encore obtenir le diplome PC 100",
     .atteint = u"Bravo vous pouvez obtenir le diplome PC 100",
     .seuil_n = 100, .detail = {Phrase(u"Label18", patrimoines)}, .bouton = u"PC_100", .choix = {{.bande_liste = u"HF", .code_categorie = u"PC_100"}}},
    {.etat = u"Label7", .attente = u"Vous ne pouvez pas encore obtenir le diplome PC 200",
     .atteint = u"Bravo vous pouvez obtenir le diplome PC 200",
     .seuil_n = 200, .detail = {Phrase(u"Label19", patrimoines)}, .bouton = u"PC_200", .choix = {{.bande_liste = u"HF", .code_categorie = u"PC_200"}}},
    {.etat = u"Label12", .attente = u"Vous ne pouvez pas encore obtenir le diplome PC 300",
     .atteint = u"Bravo vous pouvez obtenir le diplome PC 300",
     .seuil_n = 300, .detail = {Phrase(u"Label20", patrimoines)}, .bouton = u"PC_300", .choix = {{.bande_liste = u"HF", .code_categorie = u"PC_300"}}},
    {.etat = u"Label15", .attente = u"Vous ne pouvez pas encore obtenir le diplome PC 400",
     .atteint = u"Bravo vous pouvez obtenir le diplome PC 400",
     .seuil_n = 400, .detail = {Phrase(u"Label21", patrimoines)}, .bouton = u"PC_400", .choix = {{.bande_liste = u"HF", .code_categorie = u"PC_400"}}},
    {.etat = u"Label3", .attente = u"Vous ne pouvez pas encore obtenir le diplome PC 500",
     .atteint = u"Bravo vous pouvez obtenir le diplome PC 500",
     .seuil_n = 500, .detail = {Phrase(u"Label11", patrimoines)}, .bouton = u"PC_500", .choix = {{.bande_liste = u"HF", .code_categorie = u"PC_500"}}},
}};

constexpr Gabarit_Sortie titre_de_fichier = u"   {Indicatif} Liste alphanumerique des Sites PC contactés au {Date}";
constexpr QStringView colonnes_de_fichier = u"   N°   Ref      Dpt   Nom du Site                     Date    Heure  Indicatif";
constexpr std::array<Sortie_De_Liste, 5> fichiers = {{
    {u"PC_100", u"{Indicatif}_Diplome_PC_100_{JJ_MM_AA}.txt", titre_de_fichier, colonnes_de_fichier},
    {u"PC_200", u"{Indicatif}_Diplome_PC_200_{JJ_MM_AA}.txt", titre_de_fichier, colonnes_de_fichier},
    {u"PC_300", u"{Indicatif}_Diplome_PC_300_{JJ_MM_AA}.txt", titre_de_fichier, colonnes_de_fichier},
    {u"PC_400", u"{Indicatif}_Diplome_PC_400__{JJ_MM_AA}.txt", titre_de_fichier, colonnes_de_fichier},
    {u"PC_500", u"{Indicatif}_Diplome_PC_500__{JJ_MM_AA}.txt", titre_de_fichier, colonnes_de_fichier},
}};

constexpr QStringView colonnes_de_page = u"       N°   Ref      Dpt   Nom du Site                     Date    Heure   Indicatif";
constexpr std::array<Sortie_De_Liste, 5> pages = {{
    {u"PC_100", u"", u"                 {Indicatif} Diplome PC_100 du {JJ/MM/AA}", colonnes_de_page},
    {u"PC_200", u"", u"                 {Indicatif} Diplome PC_200 du {JJ/MM/AA}", colonnes_de_page},
    {u"PC_300", u"", u"                 {Indicatif} Diplome PC_300 du {JJ/MM/AA}", colonnes_de_page},
    {u"PC_400", u"", u"                 {Indicatif} Diplome PC_400 du {JJ/MM/AA}", colonnes_de_page},
    {u"PC_500", u"", u"                 {Indicatif} Diplome PC_500 du {JJ/MM/AA}", colonnes_de_page},
}};
// clang-format on

} // namespace

constexpr Fiche_Diplome fiche_pc = {
    .ecran = u"Diplomes_PC",
    .sources = {Diplome::PC},
    .titre = u"Diplomes PC",
    .entete = u"Diplomes PC",
    .liste = u"Liste_PC",
    .regles = regles,
    .niveaux = niveaux,
};

constexpr Liste_Diplome liste_pc = {
    .ecran = u"Liste_PC",
    .sources = {Diplome::PC},
    .nom = u"Liste_PC_Contacte",
    .titre = u"Diplôme PC",
    .entete = u"Diplome {Code_Categorie}",
    .colonnes = u"    Ref     Dpt   Nom du Site                      Date   Heure Indicatif",
    .compte = u" {c} Patrimoines contactés",
    .rang = rang_commun,
    .retient = Contacte,
    .selecteur = u"{Code_Categorie}",
    .fichiers = fichiers,
    .pages = pages,
};

} // namespace diplomes
