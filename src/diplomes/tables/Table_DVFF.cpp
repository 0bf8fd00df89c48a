#include "diplomes/tables/Tables.h"

#include "diplomes/modele/Rangs.h"
#include "diplomes/regles/Lignes_Retenues.h"
#include "diplomes/tables/Details.h"

#include <array>

namespace diplomes {

namespace {

// clang-format off
constexpr std::array<Regle_Compte, 1> regles = {{{Confirme}}};

constexpr Phrase_De_Niveau activites = {u"il vous manque {reste_n} DVFF contacté(e)s",
    u"avec les QSL des {n} DVFF contacté(e)s"};

constexpr std::array<Niveau_Diplome, 7> niveaux = {{
    {.etat = u"Label4", .attente = u"Vous ne pouvez pas encore obtenir le diplome DVFF de niveau 1",
     .atteint = u"Bravo vous pouvez obtenir le diplome DVFF de niveau 1",
     .seuil_n = 10, .detail = {Phrase(u"Label18", activites)}, .bouton = u"N1", .choix = {{.niveau_liste = u"Niveau 1"}}},
    {.etat = u"Label7", .attente = u"Vous ne pouvez pas encore obtenir le diplome DVFF de niveau 2",
     .atteint = u"Bravo vous pouvez obtenir le diplome DVFF de niveau 2",
     .seuil_n = 20, .detail = {Phrase(u"Label19", activites)}, .bouton = u"N2", .choix = {{.niveau_liste = u"Niveau 2"}}},
    {.etat = u"Label12", .attente = u"Vous ne pouvez pas encore obtenir le diplome DVFF de niveau 3",
     .atteint = u"Bravo vous pouvez obtenir le diplome DVFFde niveau 3",
     .seuil_n = 30, .detail = {Phrase(u"Label20", activites)}, .bouton = u"N3", .choix = {{.niveau_liste = u"Niveau 3"}}},
    {.etat = u"Label15", .attente = u"Vous ne pouvez pas encore obtenir le diplome DVFF Chasseur",
     .atteint = u"Bravo vous pouvez obtenir le Diplome DVFF Chasseur",
     .seuil_n = 50, .detail = {Phrase(u"Label21", activites)}, .bouton = u"Chasseur", .choix = {{.niveau_liste = u"Chasseur"}}},
    {.etat = u"Label3", .attente = u"Vous ne pouvez pas encore obtenir le diplome DVFF Excellence",
     .atteint = u"Bravo vous pouvez obtenir le Diplome DVFF Excellence",
     .seuil_n = 100, .detail = {Phrase(u"Label11", activites)}, .bouton = u"Excellence", .choix = {{.niveau_liste = u"Excellence"}}},
    {.etat = u"Label1", .attente = u"Vous ne pouvez pas encore obtenir le diplome DVFF Honneur",
     .atteint = u"Bravo vous pouvez obtenir le Diplome DVFF Honneur",
     .seuil_n = 250, .detail = {Phrase(u"Label10", activites)}, .bouton = u"Honneur", .choix = {{.niveau_liste = u"Honneur"}}},
    {.etat = u"Label27", .attente = u"Vous ne pouvez pas encore obtenir le diplome DVFF Maitre d'ouvrage",
     .atteint = u"Bravo vous pouvez obtenir le Diplome DVFF Maitre d'ouvrage",
     .seuil_n = 500, .detail = {Phrase(u"Label28", activites)}, .bouton = u"Maitre", .choix = {{.niveau_liste = u"Maitre d'ouvrage"}}},
}};

constexpr Gabarit_Sortie titre = u"   {Indicatif} Liste alphanumerique des DVFF contactés au {Date}";
constexpr std::array<Sortie_De_Liste, 1> fichiers = {{
    {{}, u"{Indicatif} Diplome DVFF {Niveau_Liste} le {JJ_MM_AA}.txt", titre, u"   N°   Ref        Dpt     Nom de l'activité             Date    Heure  Indicatif"},
}};
constexpr std::array<Sortie_De_Liste, 1> pages = {{
    {{}, u"", titre, u"       N°   Ref        Dpt  Nom de l'activité                Date    Heure  Indicatif"},
}};

// clang-format on

} // namespace

constexpr Fiche_Diplome fiche_dvff = {
    .ecran = u"Diplomes_DVFF",
    .sources = {Diplome::DVFF},
    .titre = u"Diplomes DVFF",
    .entete = u"Diplomes DVFF",
    .liste = u"Liste_DVFF",
    .regles = regles,
    .niveaux = niveaux,
};

constexpr Liste_Diplome liste_dvff = {
    .ecran = u"Liste_DVFF",
    .sources = {Diplome::DVFF},
    .nom = u"Liste_DVFF_Contacte",
    .titre = u"Liste DVFF",
    .entete = u"Diplome DVFF {Niveau_Liste}",
    .colonnes = u"    Ref        Dpt      Nom de l'avtivité            Date    Heure  Indicatif",
    .compte = u" {c} DVFF contactés",
    .rang = rang_commun_ref_10,
    .retient = Confirme,
    .fichiers = fichiers,
    .pages = pages,
    .blancs_devant_numero = 0,
    .blancs_derriere_numero = 5,
    .adif = Toute_Ligne,
};

} // namespace diplomes
