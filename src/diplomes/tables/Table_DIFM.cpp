#include "diplomes/tables/Tables.h"

#include "diplomes/modele/Rangs.h"
#include "diplomes/regles/Lignes_Retenues.h"
#include "diplomes/tables/Details.h"

#include <array>

namespace diplomes {

namespace {

// clang-format off
constexpr Phrase_De_Niveau iles = {u"il vous manque {manque_n} Iles confirmées",
    u"avec les QSL des {n} Iles confirmés"};

constexpr std::array<Regle_Compte, 1> regles = {{{Confirme}}};

constexpr std::array<Niveau_Diplome, 1> niveaux = {{
    {.etat = u"Label4", .attente = u"Vous ne pouvez pas encore obtenir le diplome DIFM de base",
     .atteint = u"Bravo vous pouvez obtenir le diplome DIFM de base",
     .seuil_n = 10, .detail = {Phrase(u"Label18", iles)}, .bouton = u"HF_Base", .choix = {{.bande_liste = u"HF", .code_categorie = u"de Base"}}},
}};

constexpr std::array<Sortie_De_Liste, 1> fichiers = {{
    {u"de Base", u"{Indicatif}_Diplome_DIFM_de_Base_{JJ_MM_AA}.txt", u"   {Indicatif} Liste alphanumerique des Iles contactées au {Date}", u"   N°   Ref     Dpt    Nom de l'Ile                    Date    Heure  Indicatif"},
}};

constexpr std::array<Sortie_De_Liste, 1> pages = {{
    {u"de Base", u"", u"                 {Indicatif} Diplome DIFM De base du {JJ/MM/AA}", u"       N°   Ref     Dpt    Nom de l'Ile                    Date    Heure  Indicatif"},
}};
// clang-format on

} // namespace

constexpr Fiche_Diplome fiche_difm = {
    .ecran = u"Diplomes_DIFM",
    .sources = {Diplome::DIFM},
    .titre = u"Diplomes DIFM",
    .entete = u"Diplomes DIFM",
    .liste = u"Liste_DIFM",
    .regles = regles,
    .niveaux = niveaux,
};

constexpr Liste_Diplome liste_difm = {
    .ecran = u"Liste_DIFM",
    .sources = {Diplome::DIFM},
    .nom = u"Liste_DIFM_Contacte",
    .titre = u"Diplôme DIFM",
    .entete = u"Diplome DIFM {Code_Categorie}",
    .colonnes = u"   Ref     Dpt   Nom de l'Ile                     Date   Heure  Indicatif",
    .compte = u" {c} Iles confirmées",
    .rang = rang_commun,
    .retient = Confirme,
    .departement = Departement::Brut,
    .selecteur = u"{Code_Categorie}",
    .fichiers = fichiers,
    .pages = pages,
};

} // namespace diplomes
