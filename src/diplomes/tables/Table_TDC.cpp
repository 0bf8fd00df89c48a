#include "diplomes/tables/Tables.h"

#include "diplomes/regles/Evalue_Fiche.h"
#include "diplomes/regles/Liste_Des_Lignes.h"
#include "diplomes/regles/Regle_TDC.h"
#include "diplomes/tables/Details.h"
#include "diplomes/tables/Rangs.h"
#include "listes/Index_Liste.h"
#include "listes/Table_Recherches.h"
#include "log/Etat_Commun.h"
#include "log/Poste.h"
#include "plateforme/Dossier.h"

#include <array>

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

std::vector<QStringView> Lignes_Confirmees(const Poste &poste, const Lignes_Texte &lignes, QStringView ligne_de_tours)
{
    Index_Liste tours(recherches::Ligne_TDC, poste.dossier);
    return Lignes_TDC(lignes, ligne_de_tours, tours);
}

Etat_Fiche Charge_Fiche_TDC(const Poste &poste, const Fiche_Diplome &fiche)
{
    const Lignes_Texte lignes = poste.dossier.Lit_Lignes(poste.etat.station.Log(fiche.diplome));
    const std::size_t nombre = Lignes_Confirmees(poste, lignes, poste.etat.libelle_categorie).size();
    Niveau_Diplome niveau = niveaux.front();
    niveau.seuil_n = poste.etat.nb_tours_ligne;
    Fiche_Diplome de_la_ligne = fiche;
    de_la_ligne.niveaux = {&niveau, 1};
    const std::array comptes = {Comptes{.n = static_cast<int>(nombre)}};
    return Evalue_Fiche(de_la_ligne, comptes, poste.etat);
}

void Copie_Ligne(Etat_Commun &etat)
{
    etat.code_categorie = etat.libelle_categorie;
}

Etat_Liste Charge_Liste_TDC(const Poste &poste, const Liste_Diplome &liste)
{
    const Lignes_Texte lignes = poste.dossier.Lit_Lignes(poste.etat.station.Log(liste.diplome));
    return Liste_Des_Lignes(liste, Lignes_Confirmees(poste, lignes, poste.etat.code_categorie), poste.etat);
}

} // namespace

constexpr Fiche_Diplome fiche_tdc = {
    .ecran = u"Diplomes_TDC",
    .diplome = Diplome::TDC,
    .titre = u"Diplome TDC {Libelle_Categorie}",
    .entete = u"Diplome TDC {Libelle_Categorie}",
    .liste = u"Liste_TDC",
    .regles = {},
    .niveaux = niveaux,
    .juge = Juge_TDC,
    .avant_liste = Copie_Ligne,
    .charge = Charge_Fiche_TDC,
};

// The heading shows the band that another award left behind, or nothing.
constexpr Liste_Diplome liste_tdc = {
    .ecran = u"Liste_TDC",
    .diplome = Diplome::TDC,
    .nom = u"Liste_TDC_Contacte",
    .titre = u"Diplôme TDC",
    .entete = u"Diplome TDC {Bande_Liste}",
    .colonnes = u"  Ref    Dpt      Nom de La tour                Date    Heure  Indicatif",
    .compte = u" {c} Tours confirmées",
    .rang = rang_commun_ref_10,
    .fichiers = fichiers,
    .pages = pages,
    .charge = Charge_Liste_TDC,
};
