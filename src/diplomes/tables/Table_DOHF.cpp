#include "diplomes/tables/Tables.h"

#include "diplomes/modele/Rangs.h"
#include "diplomes/regles/Ouvrages.h"
#include "diplomes/tables/Details.h"

#include <array>

namespace diplomes {

namespace {

// clang-format off
constexpr std::array<Regle_Compte, 1> regles = {{{Compte_Ouvrages}}};

constexpr Phrase_De_Niveau ouvrages = {u"il vous manque {reste_n} {Libelle_Categorie} contacté(e)s",
    u"avec les QSL des {n} {Libelle_Categorie} contacté(e)s"};

constexpr std::array<Niveau_Diplome, 7> niveaux = {{
    {.etat = u"Label4", .attente = u"Vous ne pouvez pas encore obtenir le diplome DOHF de niveau 1",
     .atteint = u"Bravo vous pouvez obtenir le diplome DOHF de nivau 1",
     .seuil_n = 10, .detail = {Phrase(u"Label18", ouvrages)}, .bouton = u"N1", .choix = {{.niveau_liste = u"Niveau 1"}}},
    {.etat = u"Label7", .attente = u"Vous ne pouvez pas encore obtenir le diplome DOHF de niveau 2",
     .atteint = u"Bravo vous pouvez obtenir le diplome DOHF de niveau 2",
     .seuil_n = 20, .detail = {Phrase(u"Label19", ouvrages)}, .bouton = u"N2", .choix = {{.niveau_liste = u"Niveau 2"}}},
    {.etat = u"Label12", .attente = u"Vous ne pouvez pas encore obtenir le diplome DOHF de niveau 3",
     .atteint = u"Bravo vous pouvez obtenir le diplome DOHFde niveau 3",
     .seuil_n = 30, .detail = {Phrase(u"Label20", ouvrages)}, .bouton = u"N3", .choix = {{.niveau_liste = u"Niveau 3"}}},
    {.etat = u"Label15", .attente = u"Vous ne pouvez pas encore obtenir le diplome DOHF Chasseur",
     .atteint = u"Bravo vous pouvez obtenir le Diplome DOHF Chasseur",
     .seuil_n = 50, .detail = {Phrase(u"Label21", ouvrages)}, .bouton = u"Chasseur", .choix = {{.niveau_liste = u"Chasseur"}}},
    {.etat = u"Label3", .attente = u"Vous ne pouvez pas encore obtenir le diplome DOHF Excellence",
     .atteint = u"Bravo vous pouvez obtenir le Diplome DOHF Excellence",
     .seuil_n = 100, .detail = {Phrase(u"Label11", ouvrages)}, .bouton = u"Excellence", .choix = {{.niveau_liste = u"Excellence"}}},
    {.etat = u"Label1", .attente = u"Vous ne pouvez pas encore obtenir le diplome DOHF Honneur",
     .atteint = u"Bravo vous pouvez obtenir le Diplome DOHF Honneur",
     .seuil_n = 250, .detail = {Phrase(u"Label10", ouvrages)}, .bouton = u"Honneur", .choix = {{.niveau_liste = u"Honneur"}}},
    {.etat = u"Label27", .attente = u"Vous ne pouvez pas encore obtenir le diplome DOHF Maitre d'ouvrage",
     .atteint = u"Bravo vous pouvez obtenir le Diplome DOHF Maitre d'ouvrage",
     .seuil_n = 500, .detail = {Phrase(u"Label28", ouvrages)}, .bouton = u"Maitre", .choix = {{.niveau_liste = u"Maitre d'ouvrage"}}},
}};

// "Canaux" here and "Cannaux" in the choice; the aqueducts have no title of their own.
constexpr std::array<Titre_De_Liste, 5> titres = {{
    {u"BA", u"Liste DOHF Barrages"},
    {u"EC", u"Liste DOHF Ecluses / Bassins"},
    {u"PT", u"Liste DOHF Ponts / Ponts Canaux / Tunnels"},
    {u"MI", u"Liste DOHF Mixte"},
    {u"MA", u"Liste DOHF Machines / pentes d'eau"},
}};

// The aqueducts have no file. The name of the machines has a "/" in it, which the disk takes for a folder.
constexpr std::array<Sortie_De_Liste, 5> fichiers = {{
    {u"BA", u"{Indicatif} Diplome DOHF Barrages {Code_Categorie} le {JJ_MM_AA}.txt", u"   {Indicatif} Liste alphanumerique des Barrages contactés au {Date}", u"   N°   Ref        Dpt     Nom du Barrage                Date    Heure  Indicatif"},
    {u"EC", u"{Indicatif} Diplome DOHF Ecluses Bassins {Code_Categorie} le {JJ_MM_AA}.txt", u"   {Indicatif} Liste alphanumerique des Ecluses / Bassins contactées au {Date}", u"   N°   Ref         Nom Ecluse / Bassins        Date    Heure  Indicatif"},
    {u"PT", u"{Indicatif} Diplome DOHF Ponts {Code_Categorie} le {JJ_MM_AA}.txt", u"   {Indicatif} Liste alphanumerique des Ponts contactés au {Date}", u"   N°   Ref         Nom du Pont                 Date    Heure  Indicatif"},
    {u"MI", u"{Indicatif} Diplome DOHF Ouvrages Mixtes {Code_Categorie} le {JJ_MM_AA}.txt", u"   {Indicatif} Liste alphanumerique des Ouvrages contactés au {Date}", u"   N°   Ref         Nom de l'Ouvrage            Date    Heure  Indicatif"},
    {u"MA", u"{Indicatif} Diplome DOHF Machines / Pentes d'eau {Code_Categorie} le {JJ_MM_AA}.txt", u"   {Indicatif} Liste alphanumerique des Ouvrages contactés au {Date}", u"   N°   Ref         Nom de l'Ouvrage            Date    Heure  Indicatif"},
}};

constexpr std::array<Sortie_De_Liste, 4> pages = {{
    {u"BA", u"", u"   {Indicatif} Liste alphanumerique des Barrages contactés au {Date}", u"       N°   Ref        Dpt  Nom du Barrage                  Date    Heure  Indicatif"},
    {u"EC", u"", u"   {Indicatif} Liste alphanumerique des Ecluses / Pentes d'eau contactées au {Date}", u"       N°   Ref     Nom Ecluse / Pente d'eau        Date    Heure  Indicatif"},
    {u"PT", u"", u"   {Indicatif} Liste alphanumerique des Ponts contactés au {Date}", u"       N°   Ref     Nom du Pont                     Date    Heure  Indicatif"},
    {u"MI", u"", u"   {Indicatif} Liste alphanumerique des Ouvrages contactés au {Date}", u"       N°   Ref     Nom de l'Ouvrage                Date    Heure  Indicatif"},
}};

// clang-format on

} // namespace

constexpr Fiche_Diplome fiche_dohf = {
    .ecran = u"Diplomes_DOHF",
    .sources = {Diplome::DOHF},
    .titre = u"Diplome {Libelle_Categorie}",
    .entete = u"Diplome {Libelle_Categorie}",
    .liste = u"Liste_DOHF",
    .regles = regles,
    .niveaux = niveaux,
    .avant_liste = Copie_Categorie,
};

constexpr Liste_Diplome liste_dohf = {
    .ecran = u"Liste_DOHF",
    .sources = {Diplome::DOHF},
    .nom = u"Liste_DOHF_Contacte",
    .titre = u"Diplôme DOHF",
    .entete = u"Diplome {Niveau_Liste} {Libelle_Categorie}",
    // "Chateau" stands so over works.
    .colonnes = u"    Ref        Dpt      Nom du Chateau               Date    Heure  Indicatif",
    .compte = u" {c} DOHF contactés",
    .rang = rang_commun_ref_10,
    .retient = Dans_Liste_DOHF,
    .selecteur_titre = u"{Categorie_Liste}",
    .titres = titres,
    // The file and the page go by the category on show, the rows by the one the list was opened with.
    .selecteur = u"{Code_Categorie}",
    .fichiers = fichiers,
    .pages = pages,
    .blancs_devant_numero = 0,
    .blancs_derriere_numero = 5,
    .adif = Departement_Est_Categorie,
};

} // namespace diplomes
