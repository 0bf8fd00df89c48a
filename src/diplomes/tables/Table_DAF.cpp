#include "diplomes/tables/Tables.h"

#include "diplomes/modele/Rangs.h"
#include "diplomes/regles/Lignes_Retenues.h"
#include "diplomes/regles/Regle_DAF.h"

#include <array>

namespace diplomes {

namespace {

// clang-format off
constexpr std::array<Regle_Compte, 1> regles = {{{Confirme_Mode_Choisi, true}}};

// The buttons go by mode and not by tier. A tier asks for more departments than the number missing tells.
constexpr std::array<Niveau_Diplome, 4> niveaux = {{
    {.etat = u"Label4", .attente = u"Vous ne pouvez pas encore obtenir le diplome DAF SSB",
     .atteint = u"Bravo vous pouvez obtenir le diplome DAF {Niveau_Liste} Niveau 15",
     .manque = u"Vous ne pouvez pas encore obtenir le diplome DAF {Niveau_Liste} Niveau 15",
     .seuil_n = 15, .seuil_d = 3,
     .detail = {{{u"Label18", u"il vous manque {reste_n} Abbayes confirmées et {manque_d} départements ",
                  u"avec les QSL des {n} Abbayes confirmées et {d} départements", u"il vous manque "}}},
     .bouton = u"B_SSB", .choix = {{.mode_liste = u"SSB", .code_categorie = u"SSB"}}},
    {.etat = u"Label7", .attente = u"Vous ne pouvez pas encore obtenir le diplome DAF CW",
     .atteint = u"Bravo vous pouvez obtenir le diplome DAF {Niveau_Liste} Niveau 50",
     .manque = u"Vous ne pouvez pas encore obtenir le diplome DAF {Niveau_Liste} Niveau 50",
     .seuil_n = 50, .seuil_d = 3,
     .detail = {{{u"Label19", u"il vous manque {reste_n} Abbayes confirmées et {manque_d} départements ",
                  u"avec les QSL des {n} Abbayes confirmées et {d} départements", u"il vous manque "}}},
     .bouton = u"B_CW", .choix = {{.mode_liste = u"CW", .code_categorie = u"CW"}}},
    {.etat = u"Label1", .attente = u"Vous ne pouvez pas encore obtenir le diplome DAF Mixte",
     .atteint = u"Bravo vous pouvez obtenir le Diplome DAF  {Niveau_Liste} Niveau 100",
     .manque = u"Vous ne pouvez pas encore obtenir le diplome DAF {Niveau_Liste} Niveau 100",
     .seuil_n = 100, .seuil_d = 3,
     .detail = {{{u"Label3", u"il vous manque {reste_n} Abbayes confirmées et {manque_d} départements ",
                  u"avec les QSL des {n} Abbayes contactés et {d} départements", u"il vous manque "}}},
     .bouton = u"B_MIX", .choix = {{.mode_liste = u"MIX", .code_categorie = u"MIX"}}},
    // When reached it shows the threshold less the count, not the count.
    {.etat = u"Label5", .attente = u"Vous ne pouvez pas encore obtenir le diplome DAF Chasseur",
     .atteint = u"Bravo vous pouvez obtenir le Diplome DAF {Niveau_Liste} Niveau 250",
     .manque = u"Vous ne pouvez pas encore obtenir le diplome DAF {Niveau_Liste} Niveau 250",
     .seuil_n = 250, .seuil_d = 3,
     .detail = {{{u"Label6", u"il vous manque {reste_n} Abbayes confirmées et {manque_d} départements ",
                  u"avec les QSL des {reste_n} Abbayes contactés et {d} départements", u"il vous manque "}}},
     .bouton = u"B_Acti"},
}};

constexpr std::array<Titre_De_Liste, 3> titres = {{
    {u"MIX", u"Liste DAF Mode Mixte"},
    {u"SSB", u"Liste DAF Mode SSB"},
    {u"CW", u"Liste DAF Mode CW"},
}};

// The button gives "MIX", which has no row: that list has neither file nor title.
constexpr Gabarit_Sortie titre_de_fichier = u"   {Indicatif} Liste alphanumerique des Abbayes contactées mode {Mode_Liste} au {Date}";
constexpr QStringView colonnes_de_fichier = u"   N°   Ref      Dpt      Nom de l'Abbaye                Date    Heure  Indicatif";
constexpr std::array<Sortie_De_Liste, 3> fichiers = {{
    {u"Mixte", u"{Indicatif}_Diplome_DAF_{Mode_Liste}_{JJ_MM_AA}.txt", titre_de_fichier, colonnes_de_fichier},
    {u"SSB", u"{Indicatif}_Diplome_DAF_{Mode_Liste}_{JJ_MM_AA}.txt", titre_de_fichier, colonnes_de_fichier},
    {u"CW", u"{Indicatif}_Diplome_DAF_{Mode_Liste}_{JJ_MM_AA}.txt", titre_de_fichier, colonnes_de_fichier},
}};

constexpr Gabarit_Sortie titre_de_page = u"                 {Indicatif} Diplome DAF {Mode_Liste} au {Date}";
constexpr QStringView colonnes_de_page = u"       N°   Ref      Dpt      Nom de l'Abbaye              Date    Heure  Indicatif";
constexpr std::array<Sortie_De_Liste, 3> pages = {{
    {u"Mixte", u"", titre_de_page, colonnes_de_page},
    {u"SSB", u"", titre_de_page, colonnes_de_page},
    {u"CW", u"", titre_de_page, colonnes_de_page},
}};
// clang-format on

} // namespace

constexpr Fiche_Diplome fiche_daf = {
    .ecran = u"Diplomes_DAF",
    .sources = {Diplome::DAF},
    .titre = u"Diplome DAF {Niveau_Liste}",
    .entete = u"Diplome DAF {Niveau_Liste}",
    .liste = u"Liste_DAF",
    .regles = regles,
    .niveaux = niveaux,
    .juge = Juge_DAF,
};

constexpr Liste_Diplome liste_daf = {
    .ecran = u"Liste_DAF",
    .sources = {Diplome::DAF},
    .nom = u"Liste_DAF_Contacte",
    .titre = u"Diplôme DAF",
    .entete = u"Diplome DAF {Mode_Liste}",
    .colonnes = u"   Ref     Dpt         Nom de l'Abbaye            Date   Heure  Indicatif         QSL",
    .compte = u" {c} Abbayes confirmées",
    .rang = rang_commun,
    .retient = Confirme_Mode_Liste,
    .departement = Departement::Replie,
    .selecteur_titre = u"{Mode_Liste}",
    .titres = titres,
    .selecteur = u"{Mode_Liste}",
    .fichiers = fichiers,
    .pages = pages,
};

} // namespace diplomes
