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
    QString version;
    QString historique;

    /// The Ligne_Affichage of the last entry clicked in Liste_QSO; empty until the first click.
    QString ligne_selectionnee;
    /// A stored QSO is on display or under edit: a commit replaces instead of adding.
    bool qso_affiche = false;
    /// A double click opened the QSO: single clicks no longer fill the fields.
    bool qso_en_edition = false;
    /// Deferred entry: date and time are typed, repeats pass, a commit inserts at its place in time.
    bool saisie_differee = false;
    /// The first-name list must be updated at commit. Only a look-up by Ind_A clears it.
    bool prenom_nouveau = false;
    /// "/" and ":" come by themselves in Date_A and Heure_A.
    bool separateur_auto = false;

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

    [[nodiscard]] bool QSO_Touche() const { return qso_affiche || qso_en_edition; }
};
