#include "diplomes/tables/Tables.h"

#include "diplomes/modele/Rangs.h"
#include "diplomes/regles/Bandes.h"
#include "diplomes/regles/Lignes_Retenues.h"
#include "diplomes/tables/Details.h"

#include <array>

namespace diplomes {

namespace {

// clang-format off
constexpr std::array<Regle_Compte, 1> regles = {{{Confirme_HF, true}}};

constexpr std::array<Niveau_Diplome, 5> niveaux = {{
    {.etat = u"Label4", .attente = u"Vous ne pouvez pas encore obtenir le diplome DFCF de base",
     .atteint = u"Bravo vous pouvez obtenir le diplome DFCF de base",
     .seuil_n = 30,
     .detail = {Prefixe(u"Label18"), Nombre_N(u"Label5"), Fixe(u"Label6", u"Chateaux confirmés")},
     .bouton = u"HF_Base", .choix = {{.bande_liste = u"HF", .code_categorie = u"de Base"}}},
    {.etat = u"Label7", .attente = u"Vous ne pouvez pas encore obtenir le diplome DFCF Honneur",
     .atteint = u"Bravo vous pouvez obtenir le diplome DFCF Honneur",
     .seuil_n = 1500, .seuil_d = 90,
     .detail = {Prefixe(u"Label19"), Nombre_N(u"Label8"), Fixe(u"Label9", u"Chateaux confirmés et"), Nombre_D(u"Label10"), Fixe(u"Label11", u"départements confirmés")},
     .bouton = u"HF_Honneur", .choix = {{.bande_liste = u"HF", .code_categorie = u"Honneur"}}},
    // The two trophies open HF_Base beside HF_Trophe, and HF_Honneur is left alone.
    {.etat = u"Label12", .attente = u"Vous ne pouvez pas encore obtenir le trophé DFCF",
     .atteint = u"Bravo vous pouvez obtenir le Trophé DFCF",
     .seuil_n = 3000, .seuil_d = 90,
     .detail = {Prefixe(u"Label20"), Nombre_N(u"Label13"), Fixe(u"Label14", u"Chateaux confirmés et"), Nombre_D(u"Label22"), Fixe(u"Label23", u"départements confirmés")},
     .bouton = u"HF_Trophe", .choix = {{.bande_liste = u"HF", .code_categorie = u"Trophe"}}, .ouvre = {u"HF_Base", u"HF_Trophe"}},
    {.etat = u"Label1", .attente = u"Vous ne pouvez pas encore obtenir le super trophé DFCF",
     .atteint = u"Bravo vous pouvez obtenir le Super Trophé DFCF",
     .seuil_n = 5000, .seuil_d = 90,
     .detail = {Prefixe(u"Label3"), Nombre_N(u"Label26"), Fixe(u"Label24", u"Chateaux confirmés et"), Nombre_D(u"Label27"), Fixe(u"Label25", u"départements confirmés")},
     // Its own button is never enabled: this tier is claimed with the list of the trophy.
     .bouton = u"Command1", .ouvre = {u"HF_Base", u"HF_Trophe"}},
    {.etat = u"Label15", .attente = u"Vous ne pouvez pas encore obtenir le diplome DFCF Excellence",
     .atteint = u"Bravo vous pouvez obtenir le Diplome DFCF Excellence",
     .seuil_d = 95,
     .detail = {Prefixe(u"Label21"), Nombre_D(u"Label16"), Fixe(u"Label17", u"Départements confirmés")},
     .bouton = u"HF_Excellence", .choix = {{.bande_liste = u"HF", .code_categorie = u"Excellence"}}},
}};

constexpr std::array<Titre_De_Liste, 3> titres = {{
    {u"HF", u"Liste DFCF bande HF"},
    {u"VHF", u"Liste DFCF bande VHF"},
    {u"UHF", u"Liste DFCF bande UHF"},
}};

constexpr Excellence excellence = {u"Dep   Ref       Indicatif    Prénom            Date    Heure  Bande   Mode", rang_excellence};

constexpr Gabarit_Sortie titre_de_fichier = u"   {Indicatif} Liste alphanumerique des Chateaux contactés bande {Bande_Liste} au {Date}";
constexpr QStringView colonnes_de_fichier = u"   N°   Ref      Dpt      Nom du Chateau               Date    Heure  Indicatif";
constexpr std::array<Sortie_De_Liste, 4> fichiers = {{
    {u"de Base", u"{Indicatif}_Diplome_DFCF_de_Base_Bande_{Bande_Liste}_{JJ_MM_AA}.txt", titre_de_fichier, colonnes_de_fichier},
    {u"Honneur", u"{Indicatif}_Diplome_DFCF_Honneur_Bande_{Bande_Liste}_{JJ_MM_AA}.txt", titre_de_fichier, colonnes_de_fichier},
    {u"Trophe", u"{Indicatif}_Diplome_DFCF_Trophe_Bande_{Bande_Liste}_{JJ_MM_AA}.txt", titre_de_fichier, colonnes_de_fichier},
    {u"Excellence", u"{Indicatif}_Diplome_DFCF_Excellence_Bande_{Bande_Liste}_{JJ_MM_AA}.txt", u"       {Indicatif} Liste des départements contactés bande {Bande_Liste} au {Date}", u"   N° Dpt  Ref   Indicatif    Prenom            Date    Heure   Bande   Mode"},
}};

constexpr QStringView colonnes_de_page = u"       N°   Ref      Dpt      Nom du Chateau               Date    Heure  Indicatif";
constexpr std::array<Sortie_De_Liste, 4> pages = {{
    {u"de Base", u"", u"                 {Indicatif} Diplome DFCF de Base bande {Bande_Liste} au {Date}", colonnes_de_page},
    {u"Honneur", u"", u"                 {Indicatif} Diplome DFCF Honneur bande {Bande_Liste} au {Date}", colonnes_de_page},
    {u"Trophe", u"", u"                 {Indicatif} Diplome DFCF Tropke bande {Bande_Liste} au {Date}", colonnes_de_page},
    {u"Excellence", u"", u"                 {Indicatif} Diplome DFCF Excellence bande {Bande_Liste} au {Date}", u"       N° Dpt  Ref   Indicatif    Prenom            Date    Heure   Bande   Mode"},
}};
// clang-format on

} // namespace

constexpr Fiche_Diplome fiche_dfcf = {
    .ecran = u"Diplomes_DFCF",
    .sources = {Diplome::DFCF},
    .titre = u"Diplomes DFCF bande HF",
    .entete = u"Diplomes DFCF bande HF",
    .liste = u"Liste_DFCF",
    .regles = regles,
    .niveaux = niveaux,
};

constexpr Liste_Diplome liste_dfcf = {
    .ecran = u"Liste_DFCF",
    .sources = {Diplome::DFCF},
    .nom = u"Liste_DFCF_Contacte",
    .titre = u"Diplôme DFCF",
    .entete = u"Diplome DFCF {Bande_Liste} {Code_Categorie}",
    .colonnes = u"   Ref     Dpt        Nom du Chateau              Date   Heure  Indicatif",
    .compte = u" {c} Chateaux confirmés",
    .rang = rang_commun,
    .retient = Confirme,
    .departement = Departement::Indexe,
    .classe = Classe_HF_VHF_UHF,
    .classe_voulue = u"{Bande_Liste}",
    .excellence = &excellence,
    .selecteur_titre = u"{Bande_Liste}",
    .titres = titres,
    .selecteur = u"{Code_Categorie}",
    .fichiers = fichiers,
    .pages = pages,
};

} // namespace diplomes
