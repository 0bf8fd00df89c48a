#include "diplomes/tables/Tables.h"

#include "diplomes/modele/Rangs.h"
#include "diplomes/regles/Fiche_Des_Comptes.h"
#include "diplomes/regles/Liste_Des_Lignes.h"
#include "diplomes/regles/Regle_TDC.h"
#include "diplomes/tables/Details.h"
#include "listes/Table_Recherches.h"
#include "log/Etat_Commun.h"

#include <array>

namespace diplomes {

namespace {

// clang-format off
// The threshold is that of the line chosen.
constexpr std::array<Niveau_Diplome, 1> niveaux = {{
    {.etat = u"Label4", .atteint = u"Bravo vous pouvez obtenir le diplome TDC ligne {Libelle_Categorie}",
     .manque = u"Vous ne pouvez pas obtenir le diplome TDC ligne {Libelle_Categorie}",
     .detail = {Phrase(u"Label18", {u"il vous manque {reste_n} Tours confirmées sur les  {seuil_n} tours de la ligne",
                                    u"avec les QSL des {n} Tours confirmées"})},
     .bouton = u"TDC_Lignes", .choix = Choix{}},
}};

constexpr std::array<Sortie_De_Liste, 1> fichiers = {{
    {{}, u"{Indicatif}_Diplome_TDC_{Code_Categorie}_{JJ_MM_AA}.txt", u"   {Indicatif} Liste alphanumerique des Tours contactées au {Date}", u"   N°    Ref   Dpt    Nom de la tour                 Date    Heure  Indicatif"},
}};
constexpr std::array<Sortie_De_Liste, 1> pages = {{
    {{}, u"", u"                 Diplome TDC {Code_Categorie} du {Date}", u"       N°    Ref   Dpt      Nom de la tour               Date    Heure  Indicatif"},
}};
// clang-format on

Etat_Fiche Evalue_Fiche_TDC(const Fiche_Diplome &fiche, const Lectures &lues, const Etat_Commun &etat)
{
    const std::size_t nombre = Lignes_TDC(lues, etat.libelle_categorie).size();
    Niveau_Diplome niveau = niveaux.front();
    niveau.seuil_n = etat.nb_tours_ligne;
    Fiche_Diplome de_la_ligne = fiche;
    de_la_ligne.niveaux = {&niveau, 1};
    const std::array comptes = {Comptes{.n = static_cast<int>(nombre)}};
    return Fiche_Des_Comptes(de_la_ligne, comptes, etat);
}

void Copie_Ligne(Etat_Commun &etat)
{
    etat.code_categorie = etat.libelle_categorie;
}

Etat_Liste Evalue_Liste_TDC(const Liste_Diplome &liste, const Lectures &lues, const Etat_Commun &etat)
{
    return Liste_Des_Lignes(liste, Lignes_TDC(lues, etat.code_categorie), etat);
}

constexpr Sources sources = {.diplome = Diplome::TDC, .references = &recherches::Ligne_TDC};

} // namespace

constexpr Fiche_Diplome fiche_tdc = {
    .ecran = u"Diplomes_TDC",
    .sources = sources,
    .titre = u"Diplome TDC {Libelle_Categorie}",
    .entete = u"Diplome TDC {Libelle_Categorie}",
    .liste = u"Liste_TDC",
    .regles = {},
    .niveaux = niveaux,
    .juge = Juge_TDC,
    .avant_liste = Copie_Ligne,
    .evalue = Evalue_Fiche_TDC,
};

// The heading shows the band that another award left behind, or nothing.
constexpr Liste_Diplome liste_tdc = {
    .ecran = u"Liste_TDC",
    .sources = sources,
    .nom = u"Liste_TDC_Contacte",
    .titre = u"Diplôme TDC",
    .entete = u"Diplome TDC {Bande_Liste}",
    .colonnes = u"  Ref    Dpt      Nom de La tour                Date    Heure  Indicatif",
    .compte = u" {c} Tours confirmées",
    .rang = rang_commun_ref_10,
    .fichiers = fichiers,
    .pages = pages,
    .evalue = Evalue_Liste_TDC,
};

} // namespace diplomes
