#pragma once

#include "diplomes/modele/Classe_Bande.h"
#include "diplomes/modele/Fiche_Diplome.h"
#include "diplomes/modele/Gabarit.h"
#include "diplomes/modele/Lectures.h"
#include "diplomes/modele/Valeurs.h"
#include "log/Champ.h"

#include <QString>
#include <QStringView>

#include <optional>
#include <span>
#include <vector>

namespace diplomes {

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
    Gabarit_Ecran titre;
};

/// The file or the page of a tier. `valeur` is that of the selector; a row without one takes any value.
struct Sortie_De_Liste {
    std::optional<QStringView> valeur;
    Gabarit_Sortie fichier; ///< its name; empty for a page
    Gabarit_Sortie titre;
    QStringView colonnes;
};

/// The rows of the tier Excellence: one a department, from the last line of the log that stands for it.
struct Excellence {
    QStringView colonnes; ///< the header above them
    Forme_Rang rang;
};

struct Liste_Diplome;

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

/// The list of an award as data.
struct Liste_Diplome {
    QStringView ecran;
    Sources sources;
    QStringView nom;     ///< of the list box
    Gabarit_Ecran titre; ///< of the window, where no other is chosen
    Gabarit_Ecran entete;
    QStringView colonnes;
    Gabarit_Compte compte; ///< names {c}
    Forme_Rang rang;

    Predicat retient = nullptr;
    Departement departement = Departement::Ignore;
    /// The class of a line by its trimmed band and the class of the line before it, and the class that stands in the
    /// list.
    Classe_Bande (*classe)(QStringView bande, Classe_Bande avant) = nullptr;
    Gabarit_Ecran classe_voulue = {};
    const Excellence *excellence = nullptr;

    Gabarit_Ecran selecteur_titre = {}; ///< "{Bande_Liste}"
    std::span<const Titre_De_Liste> titres = {};

    Gabarit_Sortie selecteur = {}; ///< "{Code_Categorie}"
    std::span<const Sortie_De_Liste> fichiers = {};
    std::span<const Sortie_De_Liste> pages = {};
    qsizetype blancs_devant_numero = 4; ///< on the page
    qsizetype blancs_derriere_numero = 1;
    /// Gives the texts values of the award's own.
    void (*valeurs)(Valeurs &valeurs, const Etat_Commun &etat) = nullptr;

    /// The lines that the button ADIF writes to its file; without it there is no such button.
    Predicat adif = nullptr;
    /// Works the list out, where that is not a filter over lines.
    Etat_Liste (*evalue)(const Liste_Diplome &liste, const Lectures &lues, const Etat_Commun &etat) = nullptr;
};

} // namespace diplomes
