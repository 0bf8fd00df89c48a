#pragma once

#include "diplomes/Choix.h"

#include <QStringView>

#include <span>

/// One option of a choice screen; its control is `Diplome_<indice>`.
struct Option_Diplome {
    int indice;
    QStringView texte;
    QStringView ecran; ///< shown by Afficher
    Choix choix;       ///< set besides Libelle_Categorie, which takes the text unless this names another
    /// Sets what is more than a shared text.
    void (*regle)(Etat_Commun &etat, int indice) = nullptr;
    bool garde_libelle = false; ///< Libelle_Categorie stands as it was
};

/// The options that stand together under a label.
struct Groupe_Options {
    QStringView etiquette;
    std::span<const Option_Diplome> options;
};

/// A choice screen as data.
struct Choix_Diplome {
    QStringView ecran;
    QStringView titre; ///< of the window
    QStringView entete;
    std::span<const Groupe_Options> groupes;
};

struct Poste;

/// Afficher with this option on: sets its texts and shows its screen.
void Affiche_Option(Poste &poste, const Option_Diplome &option);
