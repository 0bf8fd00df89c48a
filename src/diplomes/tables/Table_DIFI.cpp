#include "diplomes/tables/Tables.h"

#include "diplomes/modele/Rangs.h"
#include "diplomes/regles/Lignes_Retenues.h"
#include "diplomes/regles/Regle_DIFI.h"
#include "diplomes/tables/Details.h"

#include <array>

namespace diplomes {

namespace {

// clang-format off
constexpr std::array<Regle_Compte, 3> regles = {{{Confirme_SSB_Ou_CW, true}, {Confirme_SSB, true}, {Confirme_CW, true}}};

constexpr std::array<Niveau_Diplome, 3> niveaux = {{
    {.etat = u"Label4", .attente = u"Vous ne pouvez pas encore obtenir le diplome DIFI Mixte ",
     .atteint = u"Bravo vous pouvez obtenir le diplome DIFI Mixte",
     .seuil_n = 25, .seuil_d = 5,
     .detail = {Prefixe(u"Label18"), Nombre_N(u"Label5"), Fixe(u"Label6", u"Iles confirmées et"), Nombre_D(u"Label15"), Fixe(u"Label21", u"départements confirmés")},
     .bouton = u"HF_Base", .choix = {{.mode_liste = u"MIX", .code_categorie = u"de Base"}}},
    {.etat = u"Label7", .attente = u"Vous ne pouvez pas encore obtenir le diplome DIFI SSB",
     .atteint = u"Bravo vous pouvez obtenir le diplome DIFI SSB",
     .seuil_n = 25, .seuil_d = 5, .regle = 1,
     .detail = {Prefixe(u"Label19"), Nombre_N(u"Label8"), Fixe(u"Label9", u"Iles confirmées et"), Nombre_D(u"Label17"), Fixe(u"Label22", u"départements confirmés")},
     .bouton = u"HF_Excellence", .choix = {{.mode_liste = u"SSB", .code_categorie = u"de Base"}}},
    {.etat = u"Label12", .attente = u"Vous ne pouvez pas encore obtenir le diplome DIFI CW",
     .atteint = u"Bravo vous pouvez obtenir le diplome DIFI CW",
     .seuil_n = 25, .seuil_d = 5, .regle = 2,
     .detail = {Prefixe(u"Label20"), Nombre_N(u"Label13"), Fixe(u"Label14", u"Iles confirmées et"), Nombre_D(u"Label16"), Fixe(u"Label23", u"départements confirmés")},
     .bouton = u"HF_Honneur", .choix = {{.mode_liste = u"CW", .code_categorie = u"De Base"}}},
}};

constexpr std::array<Titre_De_Liste, 3> titres = {{
    {u"MIX", u"Liste DIFI Mode Mixte"},
    {u"SSB", u"Liste DIFI Mode SSB"},
    {u"CW", u"Liste DIFI Mode CW"},
}};

constexpr Gabarit_Sortie titre_de_fichier = u"   {Indicatif} Liste alphanumerique des Iles contactées mode {Mode_Liste} au {Date}";
constexpr QStringView colonnes_de_fichier = u"   N°   Ref      Dpt      Nom de l'Ile                 Date    Heure  Indicatif";
constexpr std::array<Sortie_De_Liste, 3> fichiers = {{
    {u"MIX", u"{Indicatif}_Diplome_DIFI_{Mode_Liste}_{JJ_MM_AA}.txt", titre_de_fichier, colonnes_de_fichier},
    {u"SSB", u"{Indicatif}_Diplome_DIFI_{Mode_Liste}_{JJ_MM_AA}.txt", titre_de_fichier, colonnes_de_fichier},
    {u"CW", u"{Indicatif}_Diplome_DIFI_{Mode_Liste}_{JJ_MM_AA}.txt", titre_de_fichier, colonnes_de_fichier},
}};

constexpr Gabarit_Sortie titre_de_page = u"                 {Indicatif} Diplome DIFI {Mode_Liste} au {Date}";
constexpr QStringView colonnes_de_page = u"       N°   Ref      Dpt      Nom de l'Ile                 Date    Heure  Indicatif";
constexpr std::array<Sortie_De_Liste, 3> pages = {{
    {u"MIX", u"", titre_de_page, colonnes_de_page},
    {u"SSB", u"", titre_de_page, colonnes_de_page},
    {u"CW", u"", titre_de_page, colonnes_de_page},
}};
// clang-format on

} // namespace

constexpr Fiche_Diplome fiche_difi = {
    .ecran = u"Diplomes_DIFI",
    .sources = {Diplome::DIFI},
    .titre = u"Diplomes DIFI",
    .entete = u"Diplomes DIFI",
    .liste = u"Liste_DIFI",
    .regles = regles,
    .niveaux = niveaux,
    .retouche = Vide_Nombre_Mixte,
};

constexpr Liste_Diplome liste_difi = {
    .ecran = u"Liste_DIFI",
    .sources = {Diplome::DIFI},
    .nom = u"Liste_DIFI_Contacte",
    .titre = u"Diplôme DIFI",
    .entete = u"Diplome DIFI {Mode_Liste}",
    .colonnes = u"   Ref     Dpt         Nom de l'Ile               Date   Heure  Indicatif         QSL",
    .compte = u" {c} Iles confirmées",
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
