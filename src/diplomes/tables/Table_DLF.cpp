#include "diplomes/tables/Tables.h"

#include "diplomes/modele/Rangs.h"
#include "diplomes/regles/Bandes.h"
#include "diplomes/regles/Lignes_Retenues.h"
#include "diplomes/tables/Details.h"

#include <array>

namespace diplomes {

namespace {

// clang-format off
constexpr Phrase_De_Niveau lavoirs = {u"il vous manque {manque_n} lavoirs confirmés",
    u"avec les QSL des {n} lavoirs confirmés",
    u"avec les QSL des 10 lavoirs confirmés"};

constexpr std::array<Regle_Compte, 2> regles = {{{Confirme_HF}, {Confirme_144}}};

constexpr std::array<Niveau_Diplome, 2> niveaux = {{
    // Without "encore": the sheet puts this text over that of the load.
    {.etat = u"Label4", .attente = u"Vous ne pouvez pas obtenir le diplome DLF HF",
     .atteint = u"Bravo vous pouvez obtenir le diplome DLF HF",
     .seuil_n = 30, .detail = {Phrase(u"Label18", lavoirs)}, .bouton = u"DLF_HF", .choix = {{.bande_liste = u"HF", .code_categorie = u"de Base"}}},
    {.etat = u"Label7", .attente = u"Vous ne pouvez pas encore obtenir le diplome DLF VHF/UHF",
     .atteint = u"Bravo vous pouvez obtenir le diplome DLF VHF/UHF",
     .seuil_n = 10, .regle = 1, .detail = {Phrase(u"Label19", lavoirs)}, .bouton = u"DLF_VHF", .choix = {{.bande_liste = u"VHF", .code_categorie = u"de Base"}}},
}};

constexpr Gabarit_Sortie titre_de_fichier = u"   {Indicatif} Liste alphanumerique des Lavoirs contactés au {Date}";
constexpr QStringView colonnes_de_fichier = u"   N°    Ref     Dpt    Nom du Lavoir                  Date    Heure  Indicatif";
constexpr std::array<Sortie_De_Liste, 2> fichiers = {{
    {u"HF", u"{Indicatif}_Diplome_DLF_HF_{JJ_MM_AA}.txt", titre_de_fichier, colonnes_de_fichier},
    {u"VHF", u"{Indicatif}_Diplome_DLF_VHF_{JJ_MM_AA}.txt", titre_de_fichier, colonnes_de_fichier},
}};

constexpr QStringView colonnes_de_page = u"       N°    Ref     Dpt       Nom du Lavoir               Date    Heure  Indicatif";
constexpr std::array<Sortie_De_Liste, 2> pages = {{
    {u"HF", u"", u"                 {Indicatif} Diplome DLF HF du {JJ/MM/AA}", colonnes_de_page},
    {u"VHF", u"", u"                 {Indicatif} Diplome DLF VHF du {JJ/MM/AA}", colonnes_de_page},
}};
// clang-format on

} // namespace

constexpr Fiche_Diplome fiche_dlf = {
    .ecran = u"Diplomes_DLF",
    .sources = {Diplome::DLF},
    .titre = u"Diplomes DLF",
    .entete = u"Diplomes DLF",
    .liste = u"Liste_DLF",
    .regles = regles,
    .niveaux = niveaux,
};

constexpr Liste_Diplome liste_dlf = {
    .ecran = u"Liste_DLF",
    .sources = {Diplome::DLF},
    .nom = u"Liste_DLF_Contacte",
    .titre = u"Diplôme DLF",
    .entete = u"Diplome DLF {Bande_Liste}",
    .colonnes = u"  Ref      Dpt      Nom du Lavoir                Date    Heure  Indicatif",
    .compte = u" {c} Lavoirs confirmés",
    .rang = rang_commun,
    .retient = Confirme,
    .departement = Departement::Brut,
    .classe = Classe_HF_VHF,
    .classe_voulue = u"{Bande_Liste}",
    .selecteur = u"{Bande_Liste}",
    .fichiers = fichiers,
    .pages = pages,
};

} // namespace diplomes
