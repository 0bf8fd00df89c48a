#include "diplomes/tables/Tables.h"

#include "diplomes/modele/Rangs.h"
#include "diplomes/regles/Lignes_Retenues.h"
#include "diplomes/tables/Details.h"

#include <array>

namespace diplomes {

namespace {

// clang-format off
constexpr Phrase_De_Niveau pigeonniers = {u"il vous manque {manque_n} Pigeonniers confirmés",
    u"avec les QSL des {n} Pigeonniers confirmés"};

constexpr std::array<Regle_Compte, 1> regles = {{{Confirme_Categorie}}};

constexpr std::array<Niveau_Diplome, 4> niveaux = {{
    {.etat = u"Label4", .attente = u"Vous ne pouvez pas encore obtenir le diplome DCPF de Bronze",
     .atteint = u"Bravo vous pouvez obtenir le diplome DCPF de Bronze",
     .seuil_n = 10, .detail = {Phrase(u"Label18", pigeonniers)}, .bouton = u"Bronze", .choix = {{.categorie_liste = u"Bronze"}}},
    {.etat = u"Label7", .attente = u"Vous ne pouvez pas encore obtenir le diplome DCPF d'Argent",
     .atteint = u"Bravo vous pouvez obtenir le diplome DCPF d'Argent",
     .seuil_n = 30, .detail = {Phrase(u"Label19", pigeonniers)}, .bouton = u"Argent", .choix = {{.categorie_liste = u"Argent"}}},
    {.etat = u"Label12", .attente = u"Vous ne pouvez pas encore obtenir le diplome DCPF d'Or",
     // "DCF" stands so.
     .atteint = u"Bravo vous pouvez obtenir le diplome DCF d'Or",
     .seuil_n = 100, .detail = {Phrase(u"Label20", pigeonniers)}, .bouton = u"Dore", .choix = {{.categorie_liste = u"Or"}}},
    {.etat = u"Label15", .attente = u"Vous ne pouvez pas encore obtenir le diplome DCPF Honneur",
     .atteint = u"Bravo vous pouvez obtenir le dipome DCPF Honneur",
     .seuil_n = 500, .detail = {Phrase(u"Label21", pigeonniers)}, .bouton = u"Honneur", .choix = {{.categorie_liste = u"Honneur"}}},
}};

constexpr Gabarit_Sortie titre_de_fichier = u"   {Indicatif} Liste alphanumerique des Pigeonniers contactés au {Date}";
constexpr QStringView colonnes_de_fichier = u"   N°    Ref     Dpt   Nom du Pigeonnier               Date    Heure  Indicatif";
constexpr std::array<Sortie_De_Liste, 4> fichiers = {{
    {u"Bronze", u"{Indicatif}_Diplome_DCPF_de_Bronze_Pigeonnier {Niveau_Liste} {JJ_MM_AA}.txt", titre_de_fichier, colonnes_de_fichier},
    {u"Argent", u"{Indicatif}_Diplome_DCPF_Argent_Pigeonnier {Niveau_Liste} {JJ_MM_AA}.txt", titre_de_fichier, colonnes_de_fichier},
    {u"Or", u"{Indicatif}_Diplome_DCPF_Or_Pigeonnier {Niveau_Liste} {JJ_MM_AA}.txt", titre_de_fichier, colonnes_de_fichier},
    {u"Honneur", u"{Indicatif}_Diplome_DCPF_Honneur_Pigeonnier {Niveau_Liste} _{JJ_MM_AA}.txt", titre_de_fichier, colonnes_de_fichier},
}};

constexpr QStringView colonnes_de_page = u"       N°    Ref     Dpt   Nom du Pigeonnier               Date    Heure  Indicatif";
constexpr std::array<Sortie_De_Liste, 4> pages = {{
    {u"Bronze", u"", u"                 {Indicatif} Diplome DCPF de Bronze du {JJ/MM/AA}", colonnes_de_page},
    {u"Argent", u"", u"                 {Indicatif} Diplome DCPF d'Argent du {JJ/MM/AA}", colonnes_de_page},
    {u"Or", u"", u"                 {Indicatif} Diplome DCPF d'Or du {JJ/MM/AA}", colonnes_de_page},
    // The tier Honneur prints as Mixte.
    {u"Honneur", u"", u"                 {Indicatif} Diplome DCPF Mixte du {JJ/MM/AA}", colonnes_de_page},
}};
// clang-format on

} // namespace

constexpr Fiche_Diplome fiche_dcpf = {
    .ecran = u"Diplomes_DCPF",
    .sources = {Diplome::DCPF},
    .titre = u"Diplome DCPF {Niveau_Liste}",
    .entete = u"Diplome DCPF {Niveau_Liste}",
    .liste = u"Liste_DCPF",
    .regles = regles,
    .niveaux = niveaux,
};

constexpr Liste_Diplome liste_dcpf = {
    .ecran = u"Liste_DCPF",
    .sources = {Diplome::DCPF},
    .nom = u"Liste_DCPF_Contacte",
    .titre = u"Diplôme DCPF",
    .entete = u"Diplome DCPF {Categorie_Liste} type Pigeonnier {Niveau_Liste}",
    .colonnes = u"    Ref    Dpt   Nom du Pigeonnier                Date   Heure  Indicatif",
    .compte = u" {c} Pigeonniers confirmés",
    .rang = rang_commun,
    .retient = Confirme_Categorie,
    .departement = Departement::Brut,
    .selecteur = u"{Categorie_Liste}",
    .fichiers = fichiers,
    .pages = pages,
};

} // namespace diplomes
