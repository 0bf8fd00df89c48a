#include "diplomes/tables/Tables.h"

#include "diplomes/modele/Rangs.h"
#include "diplomes/regles/Bandes.h"
#include "diplomes/regles/Lignes_Retenues.h"
#include "diplomes/regles/Regle_DFF.h"
#include "diplomes/tables/Details.h"

#include <array>

namespace diplomes {

namespace {

// clang-format off
constexpr Phrase_De_Niveau fontaines = {u"il vous manque {manque_n} Fontaines confirmées",
    u"avec les QSL des {n} Fontaines confirmées"};

constexpr std::array<Regle_Compte, 1> regles = {{{Confirme_Bande_Choisie}}};

constexpr std::array<Niveau_Diplome, 5> niveaux = {{
    {.etat = u"Label4", .attente = u"Vous ne pouvez pas encore obtenir le diplome DFF de Base",
     .atteint = u"Bravo vous pouvez obtenir le diplome DFF de Base",
     .seuil_n = 30, .detail = {Phrase(u"Label18", fontaines)}, .bouton = u"Base", .choix = {{.bande_liste = u"HF", .categorie_liste = u"Base"}}},
    {.etat = u"Label7", .attente = u"Vous ne pouvez pas encore obtenir le diplome DFF Performant",
     .atteint = u"Bravo vous pouvez obtenir le diplome DFF Performant",
     .seuil_n = 50, .detail = {Phrase(u"Label19", fontaines)}, .bouton = u"Performant", .choix = {{.bande_liste = u"HF", .categorie_liste = u"Performant"}}},
    {.etat = u"Label12", .attente = u"Vous ne pouvez pas encore obtenir le diplome DFF Expert",
     .atteint = u"Bravo vous pouvez obtenir le diplome DFF Expert",
     .seuil_n = 150, .detail = {Phrase(u"Label20", fontaines)}, .bouton = u"Expert", .choix = {{.bande_liste = u"HF", .categorie_liste = u"Expert"}}},
    {.etat = u"Label15", .attente = u"Vous ne pouvez pas encore obtenir le trophgé DFF Honneur",
     .atteint = u"Bravo vous pouvez obtenir le dipome DFF Honneur",
     .seuil_n = 300, .detail = {Phrase(u"Label21", fontaines)}, .bouton = u"Honneur", .choix = {{.bande_liste = u"HF", .categorie_liste = u"Honneur"}}},
    {.etat = u"Label3", .attente = u"Vous ne pouvez pas encore obtenir le diplome DFF Maitre",
     .atteint = u"Bravo vous pouvez obtenir le dipome DFF Maitre",
     .seuil_n = 500, .detail = {Phrase(u"Label11", fontaines)}, .bouton = u"Maitre", .choix = {{.bande_liste = u"HF", .categorie_liste = u"Maitre"}}},
}};

constexpr Gabarit_Sortie titre_de_fichier = u"   {Indicatif} Liste alphanumerique des Fontaines contactées au {Date}";
constexpr QStringView colonnes_de_fichier = u"   N°    Ref  Dpt    Nom de la Fontaine             Date    Heure  Indicatif";
constexpr std::array<Sortie_De_Liste, 2> fichiers = {{
    {u"HF", u"{Indicatif}_Diplome_DFF_{Categorie_Liste}_HF_{JJ_MM_AA}.txt", titre_de_fichier, colonnes_de_fichier},
    {u"VHF", u"{Indicatif}_Diplome_DFF_{Categorie_Liste}_VHF_{JJ_MM_AA}.txt", titre_de_fichier, colonnes_de_fichier},
}};

constexpr std::array<Sortie_De_Liste, 2> pages = {{
    {u"HF", u"", u"                       {Indicatif} Diplome DFF {Categorie_Liste} HF {JJ/MM/AA}", u"       N°    Ref       Dpt    Nom de la Fontaine             Date    Heure  Indicatif"},
    {u"VHF", u"", u"                       {Indicatif} Diplome DFF {Categorie_Liste} VHF {JJ/MM/AA}", u"       N°    Ref  Dpt    Nom de la Fontaine             Date    Heure  Indicatif"},
}};
// clang-format on

} // namespace

constexpr Fiche_Diplome fiche_dff = {
    .ecran = u"Diplomes_DFF",
    .sources = {Diplome::DFF},
    .titre = u"Diplome DFF {Code_Categorie}",
    .entete = u"Diplome DFF {Code_Categorie}",
    .liste = u"Liste_DFF",
    .regles = regles,
    .niveaux = niveaux,
    .evalue = Evalue_DFF,
};

constexpr Liste_Diplome liste_dff = {
    .ecran = u"Liste_DFF",
    .sources = {Diplome::DFF},
    .nom = u"Liste_DFF_Contacte",
    .titre = u"Diplôme DFF",
    .entete = u"Diplome DFF {Categorie_Liste} {Code_Categorie}",
    .colonnes = u"    Ref      Dpt      Nom de la Fontaine           Date    Heure  Indicatif",
    .compte = u" {c} Fontaines confirmées",
    .rang = rang_commun_ref_10,
    .retient = Confirme,
    .departement = Departement::Brut,
    .classe = Classe_HF_VHF,
    .classe_voulue = u"{Code_Categorie}",
    .selecteur = u"{Code_Categorie}",
    .fichiers = fichiers,
    .pages = pages,
};

} // namespace diplomes
