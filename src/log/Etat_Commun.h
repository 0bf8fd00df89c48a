#pragma once

#include "log/Station_Courante.h"

#include <QString>

#include <cstdint>

/// What the screens share in memory; everything else is in the files.
struct Etat_Commun {
    Station_Courante station;
    /// Ch_DFCF or Ch_DMF: the challenge whose year Select_Annee asks for; none before the first.
    std::optional<Diplome> challenge;
    /// Where the last ADIF file of this run was chosen; empty before the first.
    QString dossier_adif;
    /// A file that was asked for from outside, full path: the next screen ADIF takes it over as its choice.
    QString fichier_adif;
    QString version;
    QString historique;

    // Texts shared by the award screens. A choice screen or a tier button sets them, sheets and lists read them, and
    // nothing resets them.
    QString bande_liste;
    QString mode_liste;
    QString code_categorie;
    QString libelle_categorie;
    QString categorie_liste;
    QString niveau_liste;

    /// The canal whose board Challenge shows, the works on it and its number in the list of works, as Select_Dip_DOHF
    /// set them.
    QString canal_challenge;
    std::int16_t nb_ouvrages_canal = 0;
    std::int16_t numero_canal = 0;
    /// The towers of the telegraph line that Select_Dip_TDC chose.
    std::int16_t nb_tours_ligne = 0;

    /// The page that Affichage and Reglements show, set by whoever opens them; empty where no host is configured.
    QString adresse_page;
    /// The title of Affichage.
    QString titre_page;
    /// The department that Carte_Detail marks: Dpt_I of Detail_Activite.
    QString departement_carte;
};
