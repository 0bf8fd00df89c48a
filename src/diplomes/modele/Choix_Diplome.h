#pragma once

#include "diplomes/modele/Choix.h"

#include <QString>
#include <QStringView>

#include <span>

namespace diplomes {

/// A list of bands beside an option: the first such list shows, and choosing an option shows its own alone.
struct Selecteur_De_Bande {
    QStringView nom;
    std::span<const QStringView> bandes;
};

/// One option of a choice screen; its control is `Diplome_<indice>`.
struct Option_Diplome {
    int indice;
    QStringView texte;
    QStringView ecran; ///< shown by Afficher
    Choix choix;       ///< set besides Libelle_Categorie, which takes the text unless this names another
    /// Sets what is more than a shared text.
    void (*regle)(Etat_Commun &etat, int indice) = nullptr;
    bool garde_libelle = false; ///< Libelle_Categorie stands as it was
    /// Its text goes to Bande_Liste.
    const Selecteur_De_Bande *selecteur = nullptr;
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

/// Sets what the option gives, `bande` being the text of its selector, if it has one.
void Applique(const Option_Diplome &option, const QString &bande, Etat_Commun &etat);

} // namespace diplomes
