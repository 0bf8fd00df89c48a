#include "diplomes/tables/Tables.h"

#include "diplomes/modele/Rangs.h"
#include "diplomes/regles/Lignes_Retenues.h"
#include "diplomes/tables/Details.h"

#include <array>

namespace diplomes {

namespace {

// clang-format off
constexpr Phrase_De_Niveau sites = {u"il vous manque {manque_n} Sites confirmés",
    u"avec les QSL des {n} Sites confirmés"};

constexpr std::array<Regle_Compte, 1> regles = {{{Confirme}}};

// The buttons bear the names of other tiers. "Trophé" and "Top" have no file: their lists cannot be saved.
constexpr std::array<Niveau_Diplome, 5> niveaux = {{
    {.etat = u"Label4", .attente = u"Vous ne pouvez pas encore obtenir le diplome FFF de base",
     .atteint = u"Bravo vous pouvez obtenir le diplome FFF de base",
     .seuil_n = 5, .detail = {Phrase(u"Label18", sites)}, .bouton = u"Base", .choix = {{.bande_liste = u"HF", .code_categorie = u"de Base"}}},
    {.etat = u"Label7", .attente = u"Vous ne pouvez pas encore obtenir le diplome FFF Excellence",
     .atteint = u"Bravo vous pouvez obtenir le diplome FFF Excellence",
     .seuil_n = 50, .detail = {Phrase(u"Label19", sites)}, .bouton = u"Performant", .choix = {{.bande_liste = u"HF", .code_categorie = u"Excellence"}}},
    {.etat = u"Label12", .attente = u"Vous ne pouvez pas encore obtenir le diplome FFF Honneur",
     .atteint = u"Bravo vous pouvez obtenir le diplome FFF Honneur",
     .seuil_n = 100, .detail = {Phrase(u"Label20", sites)}, .bouton = u"Expert", .choix = {{.bande_liste = u"HF", .code_categorie = u"Honneur"}}},
    {.etat = u"Label15", .attente = u"Vous ne pouvez pas encore obtenir leTrophé  FFF",
     .atteint = u"Bravo vous pouvez obtenir le Trophé FFF",
     .seuil_n = 200, .detail = {Phrase(u"Label21", sites)}, .bouton = u"Honneur", .choix = {{.bande_liste = u"HF", .code_categorie = u"Trophé"}}},
    {.etat = u"Label3", .attente = u"Vous ne pouvez pas encore obtenir le diplome FFF Top",
     .atteint = u"Bravo vous pouvez obtenir le diplome FFF Top",
     .seuil_n = 300, .detail = {Phrase(u"Label11", sites)}, .bouton = u"Maitre", .choix = {{.bande_liste = u"HF", .code_categorie = u"Top"}}},
}};

constexpr Gabarit_Sortie titre_de_fichier = u"   {Indicatif} Liste alphanumerique des Sites FFF contactés au {Date}";
constexpr QStringView colonnes_de_fichier = u"   N°   Ref      Dpt   Nom du Site                     Date    Heure  Indicatif";
constexpr std::array<Sortie_De_Liste, 4> fichiers = {{
    {u"de Base", u"{Indicatif}_Diplome_FFF_de_Base_{JJ_MM_AA}.txt", titre_de_fichier, colonnes_de_fichier},
    {u"Honneur", u"{Indicatif}_Diplome_FFF_Honneur_{JJ_MM_AA}.txt", titre_de_fichier, colonnes_de_fichier},
    {u"Trophe", u"{Indicatif}_Diplome_FFF_Trophe_{JJ_MM_AA}.txt", titre_de_fichier, colonnes_de_fichier},
    {u"Excellence", u"{Indicatif}_Diplome_FFF_Excellence__{JJ_MM_AA}.txt", titre_de_fichier, colonnes_de_fichier},
}};

constexpr QStringView colonnes_de_page = u"       N°   Ref      Dpt   Nom du Site                     Date    Heure   Indicatif";
constexpr std::array<Sortie_De_Liste, 4> pages = {{
    {u"de Base", u"", u"                 {Indicatif} Diplome FFF De base du {JJ/MM/AA}", colonnes_de_page},
    {u"Excellence", u"", u"                 {Indicatif} Diplome FFF Excellence du {JJ/MM/AA}", colonnes_de_page},
    {u"Honneur", u"", u"                 {Indicatif} Diplome FFF Honneur du {JJ/MM/AA}", colonnes_de_page},
    {u"Trophe", u"", u"                      {Indicatif} Trophé FFF du {JJ/MM/AA}", colonnes_de_page},
}};
// clang-format on

} // namespace

constexpr Fiche_Diplome fiche_fff = {
    .ecran = u"Diplomes_FFF",
    .sources = {Diplome::FFF},
    .titre = u"Diplomes FFF",
    .entete = u"Diplomes FFF",
    .liste = u"Liste_FFF",
    .regles = regles,
    .niveaux = niveaux,
};

constexpr Liste_Diplome liste_fff = {
    .ecran = u"Liste_FFF",
    .sources = {Diplome::FFF},
    .nom = u"Liste_FFF_Contacte",
    .titre = u"Diplôme FFF",
    .entete = u"Diplome FFF {Code_Categorie}",
    .colonnes = u"    Ref     Dpt   Nom du Site                      Date   Heure Indicatif",
    .compte = u" {c} Sites confirmés",
    .rang = rang_commun,
    .retient = Confirme,
    .selecteur = u"{Code_Categorie}",
    .fichiers = fichiers,
    .pages = pages,
};

} // namespace diplomes
