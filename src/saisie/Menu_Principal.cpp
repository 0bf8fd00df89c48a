#include "saisie/Menu_Principal.h"

namespace {

using enum Genre_Entree;

// clang-format off
constexpr Entree_Menu entrees[] = {
    {Menu, u"Mnu_Fichiers", u"Fichiers", u""},
    {Propre, u"Mnu_Quitter", u"Quitter Vorlain", u""},
    {Commande, u"Mnu_Import_ADIF", u"Importer un log au format ADIF", u"Import_ADIF"},
    {Commande, u"Mnu_Export_ADIF", u"Exporter le log au format ADIF", u"Export_ADIF"},
    {Commande, u"Mnu_Tri", u"Tri du fichier Log", u"Trie_Log"},
    {Commande, u"Mnu_Doubles", u"Suppression des doubles", u"Supprime_Doubles"},
    {Ecran, u"Mnu_Sauve_Log", u"Parametres de sauvegarde des logs", u"Sauvegarde_Log"},
    {Separateur, u"Mnu_Sep_Copies", u"", u""},
    {Ecran, u"Mnu_Copies", u"Revenir à une copie du log", u"Copies"},

    {Menu, u"Mnu_Station", u"Station", u""},
    {Ecran_Modal, u"Mnu_New_Indicatif", u"Nouvel indicatif", u"Station"},

    {Menu, u"Mnu_Option", u"Option", u""},
    {Sous_Menu, u"Mnu_Saisie", u"Saisie des QSO ...", u""},
    {Option, u"Mnu_Date_Auto_Oui", u"en temps réel", u""},
    {Option, u"Mnu_Date_Auto_Non", u"En differé", u""},
    {Sous_Menu, u"Mnu_Sep", u"\"/\" et \":\" automatique dans Date et Heure", u""},
    {Option, u"Mnu_Sep_Oui", u"Oui", u""},
    {Option, u"Mnu_Sep_Non", u"Non", u""},

    {Menu, u"Mnu_Aff", u"Affichage", u""},
    {Ecran, u"Mnu_Affiche", u"alphanumérique du log", u"Aff_Contacte"},
    {Ecran, u"Mnu_Aff_All", u"des Activations contactées d'un activeur", u"Affiche_Toutes_Activites"},

    {Menu, u"Mnu_Carte", u"Carte", u""},
    {Ecran, u"Mnu_Carte_Contacte", u"des départements contactés", u"Carte_Acti"},

    {Menu, u"Mnu_Outils", u"Outils", u""},
    {Commande, u"Mnu_Maj_DOHF", u"Mise à jour des références DOHF", u"Mnu_Maj_DOHF"},
    {Commande, u"Mnu_Maj_TDC", u"Mise à jour des références TDC", u"Mnu_Maj_TDC"},
    {Commande, u"Mnu_Maj_WFF", u"Mise à jour des références FFF", u"Mnu_Maj_WFF"},
    {Commande, u"Mnu_Maj_DFCF", u"Mise à jour des références DFCF", u"Mnu_Maj_DFCF"},
    {Commande, u"Mnu_Maj_DCF", u"Mise à jour des références DCF", u"Mnu_Maj_DCF"},
    {Commande, u"Mnu_Maj_DPLF", u"Mise à jour des rérérences DPLF", u"Mnu_Maj_DPLF"},
    {Commande, u"Mnu_Maj_PC", u"Mise à jour des références PC", u"Mnu_Maj_PC"},
    {Separateur, u"Mnu_Rien", u"", u""},
    {Commande, u"Mnu_MAJ_Nom_DOHF", u"Mise à jour du nom des ouvrages du log DOHF", u"Mnu_MAJ_Nom_DOHF"},
    {Commande, u"Mnu_MAJ_Nom_FFF", u"Mise à jour du nom des sites du log FFF", u"Mnu_MAJ_Nom_FFF"},
    {Commande, u"Mnu_MAJ_Nom_DFCF", u"Mise à jour du nom des chateaux du log DFCF", u"Mnu_MAJ_Nom_DFCF"},
    {Commande, u"Mnu_MAJ_Nom_DPLF", u"Mise à jour du nom des phares du log DPLF", u"Mnu_MAJ_Nom_DPLF"},
    {Commande, u"Mnu_MAJ_Nom_PC", u"Mise à jour du nom des Patrimoines du log PC", u"Mnu_MAJ_Nom_PC"},
    {Separateur, u"Mnu_Rien1", u"", u""},
    {Commande, u"Mnu_Année_Ch_DFCF", u"Année du Challenge DFCF", u"Annee_Ch_DFCF"},
    {Commande, u"Mnu_Année_Ch_DMF", u"Année du Challenge DMF", u"Annee_Ch_DMF"},

    {Barre_Ecran, u"Mnu_Cluster", u"Cluster", u"Cluster"},
    {Barre, u"Mnu_Diplomes", u"Diplomes", u"Fiche_Diplome"},
    {Barre_Ecran, u"Mnu_QSL", u"Gestion des QSL", u"Multi_QSL"},
    {Barre, u"Mnu_New_Rev", u"Nouvelle révision ?", u"Nouvelle_Revision"},
    {Barre_Ecran, u"Mnu_Reglements", u"Règlements", u"Reglements"},

    {Menu, u"Mnu_aide", u"?", u""},
    {Propre, u"Mnu_A_Propos", u"A Propos", u""},
    {Propre, u"Mnu_Historique", u"Historique", u""},
};
// clang-format on

} // namespace

std::span<const Entree_Menu> Menu_Principal()
{
    return entrees;
}
