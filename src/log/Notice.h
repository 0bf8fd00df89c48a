#pragma once

#include "log/Diplome.h"

#include <QStringView>

#include <optional>

/// How the entry screen is dressed for an award. nullopt leaves a text as the award before it left it.
struct Habillage {
    QStringView frame3; ///< for the challenges without the year, which goes behind it
    QStringView detail = u"";
    std::optional<QStringView> detail_1 = u"";
    std::optional<QStringView> nom_l = u"Nom activité";
    QStringView label1 = u"Référence";
    QStringView type_ref;
};

/// Where the department of a reference comes from.
enum class Source_Dpt {
    Inchange,
    Vide,
    Recherche,
    Deux_Premiers,
    Derriere_Lettres, ///< the two digits behind the letters: from the fourth character for GVM, else from the third
};

/// The name that the award's list has for a reference, on its way to Nom_A.
struct Nom_Recherche {
    bool en_capitales = true;
    std::optional<qsizetype> coupe = {}; ///< characters that are kept; all of them without it
};

/// The rule of an award for its references.
struct Regle_Ref {
    qsizetype minimum; ///< characters
    qsizetype maximum;
    QStringView refus_longueur;
    Source_Dpt dpt;
    std::optional<Nom_Recherche> nom = {};
    QStringView prefixe = {};        ///< the start of the site's name in a new entry
    bool prefixe_en_edition = false; ///< the prefix overwrites a stored name too
};

/// What the button Detail answers: the screen that opens, or the command that runs; neither where it is inactive.
struct Reponse_Detail {
    QStringView ecran = {};
    QStringView commande = {};
    bool sans_qso = false; ///< it asks for no selected QSO
};

/// Where the rules of an award are: the award whose site it is, and the path there.
struct Reglement {
    Diplome site;
    QStringView chemin;
};

/// All that is plain data about an award. What a library works out by award stands in a Par_Diplome of its own.
struct Notice {
    QStringView code; ///< as Dip_A, the file names and the ADIF references have it
    Habillage habillage;
    std::optional<Regle_Ref> ref; ///< none for the awards without references
    Reponse_Detail detail = {};
    Reglement reglement;
    bool dpt_libre = false; ///< Dpt_A takes any text and none
    /// For the two challenges, whose log bears a year: the award whose sites they take up.
    std::optional<Diplome> source = {};
    bool ajoute = false; ///< it came with a later version: a station of before has no log for it
};

const Notice &Notice_De(Diplome diplome);
