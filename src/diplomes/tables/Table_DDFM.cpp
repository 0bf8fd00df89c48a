#include "diplomes/tables/Tables.h"

#include "diplomes/regles/Fiche_Des_Comptes.h"
#include "diplomes/regles/Liste_Des_Lignes.h"
#include "diplomes/regles/Regle_DDFM.h"
#include "diplomes/tables/Details.h"
#include "log/Etat_Commun.h"
#include "log/Ligne_Log.h"

#include <array>

namespace diplomes {

namespace {

using Niveaux_DDFM = std::array<Niveau_Diplome, 2>;

// clang-format off
constexpr Phrase_De_Niveau departements = {u"il vous manque {reste_n} départements confirmés",
    u"avec les QSL des {n} départements confirmés"};
constexpr Phrase_De_Niveau departements_et_bandes = {u"il vous manque {reste_n} départements confirmés et {reste_d} bandes",
    u"avec les QSL des {n} départements confirmés"};
// The double quote behind "bandes" stands so in phone.
constexpr Phrase_De_Niveau departements_et_bandes_phonie = {u"il vous manque {reste_n} départements confirmés et {reste_d} bandes\"",
    u"avec les QSL des {n} départements confirmés"};

/// The CW status changes when the tier is not reached; that of phone keeps its text.
consteval Niveaux_DDFM Niveaux(int seuil_n, int seuil_d, const Phrase_De_Niveau &cw, const Phrase_De_Niveau &phonie)
{
    return {{
        {.etat = u"Label4", .attente = u"Vous ne pouvez pas encore obtenir le diplome DDFM {Code_Categorie} CW ",
         .atteint = u"Bravo vous pouvez obtenir le diplome DDFM {Code_Categorie} CW {Bande_Liste}",
         .manque = u"Vous ne pouvez pas obtenir le diplome DDFM {Code_Categorie} CW {Bande_Liste}",
         .seuil_n = seuil_n, .seuil_d = seuil_d, .regle = 0,
         .detail = {Phrase(u"Label18", cw)}, .bouton = u"DDFM_HF_CW", .choix = {{.mode_liste = u"CW"}}},
        {.etat = u"Label1", .attente = u"Vous ne pouvez pas encore obtenir le diplome DDFM {Code_Categorie} Phonie ",
         .atteint = u"Bravo vous pouvez obtenir le diplome DDFM {Code_Categorie} Phonie {Bande_Liste}",
         .seuil_n = seuil_n, .seuil_d = seuil_d, .regle = 1,
         .detail = {Phrase(u"Label3", phonie)}, .bouton = u"DDFM_HF_PH", .choix = {{.mode_liste = u"SSB"}}},
    }};
}

constexpr Niveaux_DDFM une_bande = Niveaux(50, 0, departements, departements);
constexpr Niveaux_DDFM bande_haute = Niveaux(30, 0, departements, departements);
constexpr Niveaux_DDFM cinq_bandes = Niveaux(300, 5, departements_et_bandes, departements_et_bandes_phonie);

constexpr std::array<Colonne, 7> colonnes = {{
    {colonnes_log::Dpt},
    {colonnes_log::Ind},
    {colonnes_log::Bande},
    {colonnes_log::Mode},
    {colonnes_log::Date},
    {colonnes_log::Heure},
    {colonnes_log::Nom, 0},
}};

constexpr Gabarit_Sortie titre = u"   {Indicatif} Liste des départements contactés bande {Bande_Liste} mode {Mode_Liste} au {Date}";
constexpr std::array<Sortie_De_Liste, 1> fichiers = {{
    {{}, u"{Indicatif}_Diplome_DDFM_{Bande_De_Nom}_{Mode_Liste}_{JJ_MM_AA}.txt", titre, u"   N°  Dpt  Indicatif      Bande   Mode  Date    Heure      Ville"},
}};
constexpr std::array<Sortie_De_Liste, 1> pages = {{
    {{}, u"", titre, u"       N°  Dpt  Indicatif      Bande   Mode  Date    Heure      Ville"},
}};
// clang-format on

std::span<const Niveau_Diplome> Niveaux_De_Bande(QStringView bande)
{
    if (bande == cinq_bandes_ddfm)
        return cinq_bandes;
    return bande == u"144 Mhz" || bande == u"432 Mhz" ? bande_haute : une_bande;
}

Etat_Fiche Evalue_Fiche_DDFM(const Fiche_Diplome &fiche, const Lectures &lues, const Etat_Commun &etat)
{
    const QString &bande = etat.bande_liste;
    Fiche_Diplome de_la_bande = fiche;
    de_la_bande.niveaux = Niveaux_De_Bande(bande);
    return Fiche_Des_Comptes(de_la_bande, Compte_DDFM(lues.log, bande), etat);
}

Etat_Liste Evalue_Liste_DDFM(const Liste_Diplome &liste, const Lectures &lues, const Etat_Commun &etat)
{
    return Liste_Des_Lignes(liste, Lignes_DDFM(lues.log, etat.bande_liste, etat.mode_liste), etat);
}

/// The band as the name of the file holds it: "1_8 Mhz".
void Pose_Bande_De_Nom(Valeurs &valeurs, const Etat_Commun &etat)
{
    QString bande = etat.bande_liste;
    valeurs.Pose(u"Bande_De_Nom", bande.replace(u'.', u'_'));
}

} // namespace

constexpr Fiche_Diplome fiche_ddfm = {
    .ecran = u"Diplomes_DDFM",
    .sources = {Diplome::DDFM},
    .titre = u"Diplome DDFM {Code_Categorie} {Bande_Liste}",
    .entete = u"Diplome DDFM {Code_Categorie} {Bande_Liste}",
    .liste = u"Liste_DDFM",
    .regles = {},
    .niveaux = une_bande,
    .evalue = Evalue_Fiche_DDFM,
};

constexpr Liste_Diplome liste_ddfm = {
    .ecran = u"Liste_DDFM",
    .sources = {Diplome::DDFM},
    .nom = u"Liste_DDFM_Contacte",
    .titre = u"Diplôme DDFM",
    .entete = u"Diplome DDFM {Bande_Liste} {Mode_Liste}",
    .colonnes = u"  Dpt  Indicatif      Bande  Mode   Date   Heure      Ville",
    .compte = u" {c} Départements confirmés",
    .rang = {1, colonnes},
    .fichiers = fichiers,
    .pages = pages,
    .valeurs = Pose_Bande_De_Nom,
    .evalue = Evalue_Liste_DDFM,
};

} // namespace diplomes
