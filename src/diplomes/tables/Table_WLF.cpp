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

// The buttons bear the names of other tiers. "Performant", "Expert" and "Maitre" have no file.
constexpr std::array<Niveau_Diplome, 5> niveaux = {{
    {.etat = u"Label4", .attente = u"Vous ne pouvez pas encore obtenir le diplome WLF de base",
     .atteint = u"Bravo vous pouvez obtenir le diplome WLF de base",
     .seuil_n = 10, .detail = {Phrase(u"Label18", sites)}, .bouton = u"Base", .choix = {{.bande_liste = u"HF", .code_categorie = u"de Base"}}},
    {.etat = u"Label7", .attente = u"Vous ne pouvez pas encore obtenir le diplome WLF Excellence",
     .atteint = u"Bravo vous pouvez obtenir le diplome WLF Excellence",
     .seuil_n = 50, .detail = {Phrase(u"Label19", sites)}, .bouton = u"Performant", .choix = {{.bande_liste = u"HF", .code_categorie = u"Performant"}}},
    {.etat = u"Label12", .attente = u"Vous ne pouvez pas encore obtenir le diplome WLF Honneur",
     .atteint = u"Bravo vous pouvez obtenir le diplome WLF Honneur",
     .seuil_n = 100, .detail = {Phrase(u"Label20", sites)}, .bouton = u"Expert", .choix = {{.bande_liste = u"HF", .code_categorie = u"Expert"}}},
    {.etat = u"Label15", .attente = u"Vous ne pouvez pas encore obtenir leTrophé WLF",
     .atteint = u"Bravo vous pouvez obtenir le Trophé WLF",
     .seuil_n = 200, .detail = {Phrase(u"Label21", sites)}, .bouton = u"Honneur", .choix = {{.bande_liste = u"HF", .code_categorie = u"Honneur"}}},
    {.etat = u"Label3", .attente = u"Vous ne pouvez pas encore obtenir le diplome WLF Top",
     .atteint = u"Bravo vous pouvez obtenir le diplome WLF Top",
     .seuil_n = 300, .detail = {Phrase(u"Label11", sites)}, .bouton = u"Maitre", .choix = {{.bande_liste = u"HF", .code_categorie = u"Maitre"}}},
}};

// The files and the paper of the lakes bear the name of FFF, and replace an FFF file of the same day.
constexpr Gabarit_Sortie titre_de_fichier = u"   {Indicatif} Liste alphanumerique des Sites contactés au {Date}";
constexpr QStringView colonnes_de_fichier = u"   N°    Ref      Dpt   Nom du Site                     Date    Heure  Indicatif";
constexpr std::array<Sortie_De_Liste, 4> fichiers = {{
    {u"de Base", u"{Indicatif}_Diplome_FFF_de_Base_{JJ_MM_AA}.txt", titre_de_fichier, colonnes_de_fichier},
    {u"Honneur", u"{Indicatif}_Diplome_FFF_Honneur_{JJ_MM_AA}.txt", titre_de_fichier, colonnes_de_fichier},
    {u"Trophe", u"{Indicatif}_Diplome_FFF_Trophe_{JJ_MM_AA}.txt", titre_de_fichier, colonnes_de_fichier},
    {u"Excellence", u"{Indicatif}_Diplome_FFF_Excellence__{JJ_MM_AA}.txt", titre_de_fichier, colonnes_de_fichier},
}};

constexpr QStringView colonnes_de_page = u"       N°    Ref      Dpt   Nom du Site                     Date    Heure   Indicatif";
constexpr std::array<Sortie_De_Liste, 4> pages = {{
    {u"de Base", u"", u"                 {Indicatif} Diplome FFF De base du {JJ/MM/AA}", colonnes_de_page},
    {u"Excellence", u"", u"                 {Indicatif} Diplome FFF Excellence du {JJ/MM/AA}", colonnes_de_page},
    {u"Honneur", u"", u"                 {Indicatif} Diplome FFF Honneur du {JJ/MM/AA}", colonnes_de_page},
    {u"Trophe", u"", u"                      {Indicatif} Trophé FFF du {JJ/MM/AA}", colonnes_de_page},
}};
// clang-format on

} // namespace

constexpr Fiche_Diplome fiche_wlf = {
    .ecran = u"Diplomes_WLF",
    .sources = {Diplome::WLF},
    .titre = u"Diplomes WLF",
    .entete = u"Diplomes WLF",
    .liste = u"Liste_WLF",
    .regles = regles,
    .niveaux = niveaux,
};

constexpr Liste_Diplome liste_wlf = {
    .ecran = u"Liste_WLF",
    .sources = {Diplome::WLF},
    .nom = u"Liste_WLF_Contacte",
    .titre = u"Diplôme WLF",
    .entete = u"Diplome WLF {Code_Categorie}",
    .colonnes = u"  Ref        Dpt   Nom du Lac                       Date   Heure  Indicatif",
    .compte = u" {c} Lacs confirmés",
    .rang = rang_commun_ref_10,
    .retient = Confirme,
    .selecteur = u"{Code_Categorie}",
    .fichiers = fichiers,
    .pages = pages,
};

} // namespace diplomes
