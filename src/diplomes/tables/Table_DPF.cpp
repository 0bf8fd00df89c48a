#include "diplomes/tables/Tables.h"

#include "diplomes/regles/Fiche_Des_Comptes.h"
#include "diplomes/regles/Liste_DPF.h"
#include "diplomes/regles/Regle_DPF.h"
#include "diplomes/regles/Remplit_Liste.h"
#include "diplomes/tables/Details.h"
#include "log/Etat_Commun.h"

#include <array>

namespace diplomes {

namespace {

using Niveaux_DPF = std::array<Niveau_Diplome, 2>;

// clang-format off
constexpr Phrase_De_Niveau provinces = {u"il vous manque {reste_n} Provinces confirmées",
    u"avec les QSL des {n} Provinces confirmées"};
constexpr Phrase_De_Niveau provinces_et_bandes = {u"il vous manque {reste_n} QSO confirmés et {reste_d} bandes",
    u"avec les  {n} QSL des {d} Provinces confirmées"};
// The double quote behind "bandes" stands so in phone.
constexpr Phrase_De_Niveau provinces_et_bandes_phonie = {u"il vous manque {reste_n} QSO confirmés et {reste_d} bandes\"",
    u"avec les  {n} QSL des {d} Provinces confirmées"};

/// The CW status changes when the tier is not reached; that of phone keeps its text.
consteval Niveaux_DPF Niveaux(int seuil_n, int seuil_d, const Phrase_De_Niveau &cw, const Phrase_De_Niveau &phonie)
{
    return {{
        {.etat = u"Label4", .attente = u"Vous ne pouvez pas encore obtenir le diplome DPF {Code_Categorie} CW ",
         .atteint = u"Bravo vous pouvez obtenir le diplome DPF {Code_Categorie} CW {Bande_Liste}",
         .manque = u"Vous ne pouvez pas obtenir le diplome DPF {Code_Categorie} CW {Bande_Liste}",
         .seuil_n = seuil_n, .seuil_d = seuil_d, .regle = 0,
         .detail = {Phrase(u"Label18", cw)}, .bouton = u"DDFM_HF_CW", .choix = {{.mode_liste = u"CW"}}},
        {.etat = u"Label1", .attente = u"Vous ne pouvez pas encore obtenir le diplome DPF {Code_Categorie} Phonie ",
         .atteint = u"Bravo vous pouvez obtenir le diplome DPF {Code_Categorie} Phonie {Bande_Liste}",
         .seuil_n = seuil_n, .seuil_d = seuil_d, .regle = 1,
         .detail = {Phrase(u"Label3", phonie)}, .bouton = u"DDFM_HF_PH", .choix = {{.mode_liste = u"SSB"}}},
    }};
}

constexpr Niveaux_DPF simple_hf = Niveaux(22, 0, provinces, provinces);
constexpr Niveaux_DPF simple_thf = Niveaux(16, 0, provinces, provinces);
constexpr Niveaux_DPF cinq_hf = Niveaux(110, 5, provinces_et_bandes, provinces_et_bandes_phonie);
// No option leads to five bands of THF.
constexpr Niveaux_DPF cinq_thf = Niveaux(80, 5, provinces_et_bandes, provinces_et_bandes_phonie);

constexpr QStringView colonnes_simple = u"    Province               Dpt  Indicatif       Date   Heure   Bande   Mode";
constexpr QStringView colonnes_cinq_bandes = u"    Province               Bande   Dpt  Indicatif       Date   Heure  Mode";

constexpr Gabarit_Sortie titre = u"   {Indicatif} Liste des Provinces contactées au {Date}";
constexpr QStringView colonnes_de_fichier = u"   N°  Province                  Dpt  Indicatif      Date    Heure   Bande  Mode";
constexpr Gabarit_Sortie nom_hf = u"{Indicatif}_Diplome_DPF_HF_{Code_Categorie}_{Mode_Liste}_{JJ_MM_AA}.txt";
constexpr std::array<Sortie_De_Liste, 3> fichiers = {{
    {u"THF", u"{Indicatif}_Diplome_DPF_THF_{Code_Categorie}_{JJ_MM_AA}.txt", titre, colonnes_de_fichier},
    {cinq_bandes_dpf, nom_hf, titre, u"   N°    Province                Band    Dpt Indicatif       Date    Heure  Mode"},
    {{}, nom_hf, titre, colonnes_de_fichier},
}};
constexpr std::array<Sortie_De_Liste, 1> pages = {{
    {{}, u"", u"                 {Indicatif} Liste des Provinces contactées au {Date}", u"       N°  Province                  Dpt  Indicatif      Date    Heure   Bande  Mode"},
}};
// clang-format on

bool Est_Sur_Cinq_Bandes(const Etat_Commun &etat)
{
    return etat.code_categorie == cinq_bandes_dpf;
}

std::span<const Niveau_Diplome> Niveaux_De_La_Variante(const Etat_Commun &etat)
{
    const bool thf = etat.bande_liste == u"THF";
    if (Est_Sur_Cinq_Bandes(etat))
        return thf ? cinq_thf : cinq_hf;
    return thf ? simple_thf : simple_hf;
}

Etat_Fiche Evalue_Fiche_DPF(const Fiche_Diplome &fiche, const Lectures &lues, const Etat_Commun &etat)
{
    Fiche_Diplome de_la_variante = fiche;
    de_la_variante.niveaux = Niveaux_De_La_Variante(etat);
    return Fiche_Des_Comptes(de_la_variante, Compte_DPF(lues.log, etat), etat);
}

QString Compte_Cinq_Bandes(const std::vector<QString> &rangs)
{
    return u' ' + QString::number(Provinces_Sur_Cinq_Bandes(rangs)) + u" Provinces confirmées et " +
           QString::number(rangs.size()) + u" QSO";
}

Etat_Liste Evalue_Liste_DPF(const Liste_Diplome &liste, const Lectures &lues, const Etat_Commun &etat)
{
    const std::vector<QString> rangs = Avec_Province(Rangs_Des_Lignes(lues.log, etat));
    Etat_Liste resultat = Textes_De_Liste(liste, etat);
    if (Est_Sur_Cinq_Bandes(etat)) {
        resultat.colonnes = colonnes_cinq_bandes.toString();
        resultat.rangs = Par_Province_Et_Bande(rangs);
        resultat.compte = Compte_Cinq_Bandes(resultat.rangs);
    } else {
        resultat.rangs = Par_Province(rangs);
        resultat.compte = Compte_De_Liste(liste, resultat.rangs.size(), etat);
    }
    return resultat;
}

/// The class goes before the kind.
void Pose_Variante(Valeurs &valeurs, const Etat_Commun &etat)
{
    valeurs.Pose(u"Variante", etat.bande_liste == u"THF" ? etat.bande_liste : etat.code_categorie);
}

} // namespace

constexpr Fiche_Diplome fiche_dpf = {
    .ecran = u"Diplomes_DPF",
    .sources = {Diplome::DPF},
    .titre = u"Diplome DPF {Code_Categorie}",
    .entete = u"Diplome DPF {Code_Categorie}",
    .liste = u"Liste_DPF",
    .regles = {},
    .niveaux = simple_hf,
    .evalue = Evalue_Fiche_DPF,
};

constexpr Liste_Diplome liste_dpf = {
    .ecran = u"Liste_DPF",
    .sources = {Diplome::DPF},
    .nom = u"Liste_DPF_Contacte",
    .titre = u"Diplôme DPF",
    .entete = u"Diplome DPF {Code_Categorie} {Bande_Liste} {Mode_Liste}",
    .colonnes = colonnes_simple,
    .compte = u" {c} Provinces confirmées",
    .rang = {},
    .selecteur = u"{Variante}",
    .fichiers = fichiers,
    .pages = pages,
    .valeurs = Pose_Variante,
    .evalue = Evalue_Liste_DPF,
};

} // namespace diplomes
