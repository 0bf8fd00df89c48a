#pragma once

#include "diplomes/Fiche_Diplome.h"
#include "diplomes/Gabarit.h"
#include "log/Champ.h"

#include <QString>
#include <QStringView>

#include <optional>
#include <span>
#include <vector>

/// A field of a log line in a row, with the blanks behind it.
struct Colonne {
    Champ champ;
    qsizetype blancs = 2;
};

/// The layout of a row. A field of a line that is too short stands as it is.
struct Forme_Rang {
    qsizetype blancs_devant;
    std::span<const Colonne> colonnes;
};

/// What a list does with the department of a line that stands in it.
enum class Departement {
    Ignore, ///< any text passes
    Brut,   ///< a number from 0 to 97, or the load fails; Corsica has none
    Indexe, ///< likewise, Corsica folded, and the row shows the department as logged
    Replie  ///< likewise, and the row shows the folded number
};

/// A title of the window, by the value of its selector.
struct Titre_De_Liste {
    QStringView valeur;
    QStringView titre;
};

/// The file or the page of a tier. `valeur` is that of the selector; a row without one takes any value.
struct Sortie_De_Liste {
    std::optional<QStringView> valeur;
    QStringView fichier; ///< its name; empty for a page
    QStringView titre;
    QStringView colonnes;
};

/// The rows of the tier Excellence: one a department, from the last line of the log that stands for it.
struct Excellence {
    QStringView colonnes; ///< the header above them
    Forme_Rang rang;
};

/// All that a list shows. `rangs` are in their order.
struct Etat_Liste {
    QString titre;    ///< of the window
    QString entete;   ///< the heading Label4
    QString colonnes; ///< the header Label2
    QString compte;   ///< the count Label3
    std::vector<QString> rangs;
    /// Lines between the rows and the signature, of the file and of the page.
    std::vector<QString> pied_enregistre = {};
    std::vector<QString> pied_imprime = {};
};

struct Liste_Diplome;

/// Reads the log of the list and keeps the lines of the tier. Throws Erreur_Execution for an absent log.
Etat_Liste Charge_Par_Lignes(const Poste &poste, const Liste_Diplome &liste);

/// A further button of a list. The screen shows `etat` again after it.
struct Bouton_De_Liste {
    QStringView nom;
    QStringView texte;
    void (*presse)(Poste &poste, const Liste_Diplome &liste, Etat_Liste &etat);
};

/// The list of an award as data. All texts may name the shared texts; those of files and pages also the day; `compte`
/// names {c}.
struct Liste_Diplome {
    QStringView ecran;
    Diplome diplome;   ///< of the log
    QStringView nom;   ///< of the list box
    QStringView titre; ///< of the window, where no other is chosen
    QStringView entete;
    QStringView colonnes;
    QStringView compte;
    Forme_Rang rang;

    Predicat retient = nullptr;
    Departement departement = Departement::Ignore;
    /// The class of a line by its trimmed band and the class of the line before it, and the class that stands in the
    /// list.
    QStringView (*classe)(QStringView bande, QStringView avant) = nullptr;
    QStringView classe_voulue = {};
    const Excellence *excellence = nullptr;

    QStringView selecteur_titre = {}; ///< "{Bande_Liste}"
    std::span<const Titre_De_Liste> titres = {};

    QStringView selecteur = {}; ///< "{Code_Categorie}"
    std::span<const Sortie_De_Liste> fichiers = {};
    std::span<const Sortie_De_Liste> pages = {};
    qsizetype blancs_devant_numero = 4; ///< on the page
    qsizetype blancs_derriere_numero = 1;
    /// Gives the selector and the texts of files and pages values of the award's own.
    void (*valeurs)(Valeurs &valeurs, const Etat_Commun &etat) = nullptr;

    std::span<const Bouton_De_Liste> boutons = {};
    /// The whole load, for a list that is not a filter over lines.
    Etat_Liste (*charge)(const Poste &poste, const Liste_Diplome &liste) = Charge_Par_Lignes;
};
