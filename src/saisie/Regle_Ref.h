#pragma once

#include "log/Diplome.h"
#include "saisie/Refus.h"

#include <QStringView>

/// Where the department of a reference comes from.
enum class Source_Dpt {
    Inchange,
    Vide,
    Recherche,
    Deux_Premiers,
    Derriere_Lettres, ///< the two digits behind the letters: from the fourth character for GVM, else from the third
};

/// The rule of one award for its references.
struct Regle_Ref {
    Diplome diplome;
    qsizetype minimum; ///< characters
    qsizetype maximum;
    QStringView refus_longueur;
    Source_Dpt dpt;
    /// The name found in the award's list goes to Nom_A, in capitals except for DPLF and cut at `coupe` characters.
    bool nom_recherche;
    bool nom_en_capitales;
    qsizetype coupe;         ///< 0: not cut
    QStringView prefixe;     ///< the start of the site's name in a new entry
    bool prefixe_en_edition; ///< the prefix overwrites a stored name too
};

/// nullptr for an award without references and without an award.
const Regle_Ref *Regle_Ref_De(std::optional<Diplome> diplome);

/// The award's own check of a reference: length, and for some awards the characters.
Refus Refus_Forme_Ref(const Regle_Ref &regle, QStringView ref);

/// The department that a reference itself holds; not for Source_Dpt::Recherche and Inchange.
QString Dpt_De_Ref(Source_Dpt source, QStringView ref);
