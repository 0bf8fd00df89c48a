#include "diplomes/tables/Tables.h"

#include "diplomes/modele/Rangs.h"
#include "diplomes/regles/Fiche_Des_Comptes.h"
#include "diplomes/regles/Lignes_Retenues.h"
#include "diplomes/regles/Points_DYLF.h"
#include "diplomes/tables/Details.h"

#include <array>

namespace diplomes {

namespace {

constexpr Texte_Detail Mot(QStringView nom)
{
    return {.nom = nom, .manque = u"il vous manque", .atteint = u"avec vos", .inchange = u"il vous manque"};
}

// clang-format off
// The gold tier stores "OR" and its file is looked for under "Or": it has none. It stands so.
constexpr std::array<Niveau_Diplome, 3> niveaux = {{
    {.etat = u"Label4", .attente = u"Vous ne pouvez pas encore obtenir le diplome DYLF de Bronze",
     .atteint = u"Bravo vous pouvez obtenir le diplome DYLF de Bronze",
     .seuil_n = 300, .detail = {Mot(u"Label18"), Nombre_N(u"Label5"), Fixe(u"Points_Bronze", u"Points")},
     .bouton = u"YL_Bronze", .choix = {{.code_categorie = u"Bronze"}}},
    {.etat = u"Label7", .attente = u"Vous ne pouvez pas encore obtenir le diplome DYLF d'Argent",
     .atteint = u"Bravo vous pouvez obtenir le diplome DYLF d'Argent",
     .seuil_n = 600, .detail = {Mot(u"Label19"), Nombre_N(u"Label8"), Fixe(u"Points_Argent", u"Points")},
     .bouton = u"YL_Argent", .choix = {{.code_categorie = u"Argent"}}},
    {.etat = u"Label12", .attente = u"Vous ne pouvez pas encore obtenir le diplome DYLF d'Or",
     .atteint = u"Bravo vous pouvez obtenir le diplome DYLF d'Or",
     .seuil_n = 1000, .detail = {Mot(u"Label20"), Nombre_N(u"Label13"), Fixe(u"Points_Or", u"Points")},
     .bouton = u"YL_Or", .choix = {{.code_categorie = u"OR"}}},
}};

constexpr Gabarit_Sortie titre_de_fichier = u"  {Indicatif} Liste alphanumerique des Yl's contactées au {Date}";
constexpr QStringView colonnes_de_fichier = u"   N°  Indicatif     Prenom         Dpt  Ville                  Date    Heure";
constexpr std::array<Sortie_De_Liste, 3> fichiers = {{
    {u"Bronze", u"{Indicatif}_Diplome_DYLF Bronze {JJ_MM_AA}.txt", titre_de_fichier, colonnes_de_fichier},
    {u"Argent", u"{Indicatif}_Diplome_DYLF Argent {JJ_MM_AA}.txt", titre_de_fichier, colonnes_de_fichier},
    {u"Or", u"{Indicatif}_Diplome_DYLF Or {JJ_MM_AA}.txt", titre_de_fichier, colonnes_de_fichier},
}};

constexpr QStringView colonnes_de_page = u"       N°  Indicatif     Prenom         Dpt  Ville                  Date    Heure";
constexpr std::array<Sortie_De_Liste, 3> pages = {{
    {u"Bronze", u"", u"Diplome DYLF Bronze du {Date}", colonnes_de_page},
    {u"Argent", u"", u"Diplome DYLF Argent du {Date}", colonnes_de_page},
    {{}, u"", u"Diplome DYLF Or du {Date}", colonnes_de_page},
}};
// clang-format on

constexpr std::array<Colonne, 6> colonnes = {{
    {colonnes_log::Ind},
    {colonnes_log::Prenom, 1},
    {colonnes_log::Dpt},
    {Champ{colonnes_log::Nom.colonne, 20}, 1},
    {colonnes_log::Date},
    {colonnes_log::Heure, 0},
}};

Etat_Fiche Evalue_Fiche_DYLF(const Fiche_Diplome &fiche, const Lectures &lues, const Etat_Commun &etat)
{
    const Comptes comptes = {.n = Points_De_Fiche(lues.log)};
    return Fiche_Des_Comptes(fiche, std::span(&comptes, 1), etat);
}

} // namespace

constexpr Fiche_Diplome fiche_dylf = {
    .ecran = u"Diplomes_DYLF",
    .sources = {Diplome::DYLF},
    .titre = u"Diplomes  DYLF",
    .entete = u"Diplomes  DYLF",
    .liste = u"Liste_DYLF",
    .regles = {},
    .niveaux = niveaux,
    .evalue = Evalue_Fiche_DYLF,
};

constexpr Liste_Diplome liste_dylf = {
    .ecran = u"Liste_DYLF",
    .sources = {Diplome::DYLF},
    .nom = u"Liste_DYLF_Contacte",
    .titre = u"Liste DYLF",
    .entete = u"Diplome DYLF {Code_Categorie}",
    .colonnes = u"  Indicatif     Prenom         Dpt  Ville                  Date    Heure",
    .compte = u" {c} YL's contactées",
    .rang = {1, colonnes},
    .retient = Toute_Ligne,
    .selecteur = u"{Code_Categorie}",
    .fichiers = fichiers,
    .pages = pages,
};

} // namespace diplomes
