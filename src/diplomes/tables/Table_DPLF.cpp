#include "diplomes/tables/Tables.h"

#include "diplomes/modele/Rangs.h"
#include "diplomes/regles/Lignes_Retenues.h"
#include "diplomes/tables/Details.h"

#include <array>

namespace diplomes {

namespace {

// clang-format off
constexpr Phrase_De_Niveau phares = {u"il vous manque {manque_n} phares confirmés",
    u"avec les QSL des {n} phares confirmés"};
constexpr Phrase_De_Niveau phares_mixtes = {u"il vous manque {manque_n} phares confirmés",
    u"avec les QSL des {n} phares contactés"};

constexpr std::array<Regle_Compte, 4> regles = {{{Confirme_SSB}, {Confirme_CW}, {Confirme_DIGI}, {Confirme}}};

constexpr std::array<Niveau_Diplome, 4> niveaux = {{
    {.etat = u"Label4", .attente = u"Vous ne pouvez pas encore obtenir le diplome DPLF SSB",
     .atteint = u"Bravo vous pouvez obtenir le diplome DPLF SSB",
     .seuil_n = 25, .detail = {Phrase(u"Label18", phares)}, .bouton = u"B_SSB", .choix = {{.mode_liste = u"SSB", .code_categorie = u"Bronze"}}},
    {.etat = u"Label7", .attente = u"Vous ne pouvez pas encore obtenir le diplome DPLF CW",
     .atteint = u"Bravo vous pouvez obtenir le diplome DPLF CW",
     .seuil_n = 25, .regle = 1, .detail = {Phrase(u"Label19", phares)}, .bouton = u"B_CW", .choix = {{.mode_liste = u"CW", .code_categorie = u"Argent"}}},
    {.etat = u"Label15", .attente = u"Vous ne pouvez pas encore obtenir le diplome DPLF Digital",
     .atteint = u"Bravo vous pouvez obtenir le Dilome DPLF Digital",
     .seuil_n = 25, .regle = 2, .detail = {Phrase(u"Label21", phares)}, .bouton = u"B_DIGI", .choix = {{.mode_liste = u"DIGI", .code_categorie = u"Or"}}},
    // Label16 shows the threshold less a number that is never set.
    {.etat = u"Label1", .attente = u"Vous ne pouvez pas encore obtenir le diplome DPLF Mixte",
     .atteint = u"Bravo vous pouvez obtenir le Diplome DPLF Mixte",
     .seuil_n = 25, .regle = 3, .detail = {Phrase(u"Label3", phares_mixtes), {u"Label16", u"25", u""}}, .bouton = u"B_MIX", .choix = {{.mode_liste = u"MIX", .code_categorie = u"Mixe"}}},
}};

constexpr std::array<Titre_De_Liste, 4> titres = {{
    {u"MIX", u"Liste DPLF Mode Mixte"},
    {u"SSB", u"Liste DPLF Mode SSB"},
    {u"CW", u"Liste DPLF Mode CW"},
    {u"DIGI", u"Liste DPLF Mode Digital"},
}};

// The buttons give "MIX" and "DIGI", which have no row: those lists have neither file nor title.
constexpr Gabarit_Sortie titre_de_fichier = u"   {Indicatif} Liste alphanumerique des Phares contactées mode {Mode_Liste} au {Date}";
constexpr QStringView colonnes_de_fichier = u"   N°   Ref      Dpt      Nom de l'Ile                 Date    Heure  Indicatif";
constexpr std::array<Sortie_De_Liste, 3> fichiers = {{
    {u"Mixte", u"{Indicatif}_Diplome_DPLF_{Mode_Liste}_{JJ_MM_AA}.txt", titre_de_fichier, colonnes_de_fichier},
    {u"SSB", u"{Indicatif}_Diplome_DPLF_{Mode_Liste}_{JJ_MM_AA}.txt", titre_de_fichier, colonnes_de_fichier},
    {u"CW", u"{Indicatif}_Diplome_DPLF_{Mode_Liste}_{JJ_MM_AA}.txt", titre_de_fichier, colonnes_de_fichier},
}};

constexpr Gabarit_Sortie titre_de_page = u"                 {Indicatif} Diplome DPLF {Mode_Liste} au {Date}";
constexpr QStringView colonnes_de_page = u"       N°   Ref      Dpt      Nom du Phare                 Date    Heure  Indicatif";
constexpr std::array<Sortie_De_Liste, 3> pages = {{
    {u"Mixte", u"", titre_de_page, colonnes_de_page},
    {u"SSB", u"", titre_de_page, colonnes_de_page},
    {u"CW", u"", titre_de_page, colonnes_de_page},
}};
// clang-format on

} // namespace

constexpr Fiche_Diplome fiche_dplf = {
    .ecran = u"Diplomes_DPLF",
    .sources = {Diplome::DPLF},
    .titre = u"Diplomes DPLF",
    .entete = u"Diplomes DPLF",
    .liste = u"Liste_DPLF",
    .regles = regles,
    .niveaux = niveaux,
};

constexpr Liste_Diplome liste_dplf = {
    .ecran = u"Liste_DPLF",
    .sources = {Diplome::DPLF},
    .nom = u"Liste_DPLF_Contacte",
    .titre = u"Diplôme DPLF",
    .entete = u"Diplome DPLF {Mode_Liste}",
    .colonnes = u"   Ref     Dpt         Nom du Phare               Date   Heure  Indicatif         QSL",
    .compte = u" {c} Phares confirmés",
    .rang = rang_commun,
    .retient = Confirme_Mode_Liste,
    .departement = Departement::Replie,
    .selecteur_titre = u"{Mode_Liste}",
    .titres = titres,
    .selecteur = u"{Mode_Liste}",
    .fichiers = fichiers,
    .pages = pages,
};

} // namespace diplomes
