#pragma once

#include <QString>

/// The sections, keys and defaults of the settings store.
namespace cles {

/// What holds across stations: "Setup " with its blank.
inline constexpr QStringView generale = u"Setup ";

inline constexpr QStringView indicatif_station = u"Indicatif Station";
inline constexpr QStringView chemin_repertoire = u"Chemin Repertoire";
inline constexpr QStringView revision = u"Revision";
inline constexpr QStringView bande_utilisee = u"bande Utilisee";
inline constexpr QStringView mode_utilise = u"Mode Utilise";
inline constexpr QStringView diplome_utilise = u"Diplome Utilise";
inline constexpr QStringView chemin_sauvegarde = u"Chemin Sauvegarde";
inline constexpr QStringView date_sauvegarde = u"Date_Sauvegarde";
inline constexpr QStringView separateur_auto = u"Separateur Auto";
inline constexpr QStringView date_auto = u"Date Auto";
inline constexpr QStringView annee_challenge_dfcf = u"Annee Challenge DFCF";
inline constexpr QStringView annee_challenge_dmf = u"Annee Challenge DMF";
inline constexpr QStringView bande_cluster = u"bande Cluster";
inline constexpr QStringView revision_liste_wff = u"Revision_Liste_WFF";

inline constexpr QStringView chemin_sauvegarde_absent = u"C:\\Sauvegarde_Vorlain";
inline constexpr QStringView date_sauvegarde_absente = u"01/01/2015";
inline constexpr QStringView revision_liste_absente = u"Rev 000 du 01/01/12";

} // namespace cles
