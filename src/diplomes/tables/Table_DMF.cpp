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

constexpr std::array<Niveau_Diplome, 3> niveaux = {{
    {.etat = u"Label4", .attente = u"Vous ne pouvez pas encore obtenir le diplome DMF de base",
     .atteint = u"Bravo vous pouvez obtenir le diplome DMF de base",
     .seuil_n = 30,
     .detail = {Prefixe(u"Label18"), Nombre_N(u"Label5"), Fixe(u"Label6", u"Moulins confirmés")},
     .bouton = u"HF_Base", .choix = {{.bande_liste = u"HF", .code_categorie = u"de Base"}}},
    {.etat = u"Label7", .attente = u"Vous ne pouvez pas encore obtenir le diplome DMF Honneur",
     .atteint = u"Bravo vous pouvez obtenir le diplome DMF Honneur",
     .seuil_n = 500,
     .detail = {Prefixe(u"Label19"), Nombre_N(u"Label8"), Fixe(u"Label9", u"Moulins confirmés")},
     .bouton = u"HF_Honneur", .choix = {{.bande_liste = u"HF", .code_categorie = u"Honneur"}}},
    {.etat = u"Label15", .attente = u"Vous ne pouvez pas encore obtenir le diplome DMF Excellence",
     // The castles' name stands so on the mills' sheet.
     .atteint = u"Bravo vous pouvez obtenir le Diplome DFCF Excellence",
     .seuil_d = 90,
     .detail = {Prefixe(u"Label21"), Nombre_D(u"Label16"), Fixe(u"Label17", u"Départements confirmés")},
     .bouton = u"HF_Excellence", .choix = {{.bande_liste = u"HF", .code_categorie = u"Excellence"}}},
}};

constexpr std::array<Titre_De_Liste, 2> titres = {{
    {u"HF", u"Liste DMF bande HF"},
    {u"VHF", u"Liste DMF bande VHF"},
}};

constexpr Excellence excellence = {u" Dep  Ref       Indicatif    Prénom            Date    Heure  Bande   Mode", rang_excellence_dmf};

constexpr Gabarit_Sortie titre_de_fichier = u"   {Indicatif} Liste alphanumerique des Moulins contactés bande {Bande_Liste} au {Date}";
constexpr QStringView colonnes_de_fichier = u"   N°   Ref      Dpt      Nom du Moulin                Date    Heure  Indicatif";
constexpr std::array<Sortie_De_Liste, 4> fichiers = {{
    {u"de Base", u"{Indicatif}_Diplome_DMF_de_Base_Bande_{Bande_Liste}_{JJ_MM_AA}.txt", titre_de_fichier, colonnes_de_fichier},
    {u"Honneur", u"{Indicatif}_Diplome_DMF_Honneur_Bande_{Bande_Liste}_{JJ_MM_AA}.txt", titre_de_fichier, colonnes_de_fichier},
    {u"Trophe", u"{Indicatif}_Diplome_DMF_Trophe_Bande_{Bande_Liste}_{JJ_MM_AA}.txt", titre_de_fichier, colonnes_de_fichier},
    {u"Excellence", u"{Indicatif}_Diplome_DMF_Excellence_Bande_{Bande_Liste}_{JJ_MM_AA}.txt", u"       {Indicatif} Liste des départements contactés bande {Bande_Liste} au {Date}", u"   N° Dpt  Ref   Indicatif    Prenom            Date    Heure   Bande   Mode"},
}};

// The castles' word stands so on the mills' paper.
constexpr QStringView colonnes_de_page = u"       N°   Ref      Dpt      Nom du Chateau               Date    Heure  Indicatif";
constexpr std::array<Sortie_De_Liste, 4> pages = {{
    {u"de Base", u"", u"                 {Indicatif} Diplome DMF de Base bande {Bande_Liste} au {Date}", colonnes_de_page},
    {u"Honneur", u"", u"                 {Indicatif} Diplome DMF Honneur bande {Bande_Liste} au {Date}", colonnes_de_page},
    {u"Trophe", u"", u"                 {Indicatif} Diplome DMF Tropke bande {Bande_Liste} au {Date}", colonnes_de_page},
    {u"Excellence", u"", u"                 {Indicatif} Diplome DMF Excellence bande {Bande_Liste} au {Date}", u"       N° Dpt  Ref   Indicatif    Prenom            Date    Heure   Bande   Mode"},
}};
// clang-format on

} // namespace

constexpr Fiche_Diplome fiche_dmf = {
    .ecran = u"Diplomes_DMF_HF",
    .sources = {Diplome::DMF},
    .titre = u"Diplomes DMF bande HF",
    .entete = u"Diplomes DMF bande HF",
    .liste = u"Liste_DMF",
    .regles = regles,
    .niveaux = niveaux,
};

constexpr Liste_Diplome liste_dmf = {
    .ecran = u"Liste_DMF",
    .sources = {Diplome::DMF},
    .nom = u"Liste_DMF_Contacte",
    .titre = u"Diplôme DMF",
    .entete = u"Diplome DMF {Bande_Liste} {Code_Categorie}",
    .colonnes = u"   Ref     Dpt        Nom du Moulinx              Date   Heure  Indicatif",
    .compte = u" {c} Moulins confirmés",
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
