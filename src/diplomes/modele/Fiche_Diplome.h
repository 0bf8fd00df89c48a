#pragma once

#include "diplomes/modele/Choix.h"
#include "diplomes/modele/Etat_Fiche.h"
#include "diplomes/modele/Gabarit.h"
#include "diplomes/modele/Lectures.h"

#include <QStringView>

#include <array>
#include <cstddef>
#include <optional>
#include <span>

struct Etat_Commun;

namespace diplomes {

/// What a sheet counts: lines of the log and the departments they come from.
struct Comptes {
    int n = 0;
    int d = 0;
};

/// Whether a line of a log counts for a tier, or stands in a list.
using Predicat = bool (*)(QStringView ligne_log, const Etat_Commun &etat);

/// Which lines count. Departments are counted, and must then be numbers, only where a tier asks for them.
struct Regle_Compte {
    Predicat compte;
    bool departements = false;
};

/// A label of a tier in the three states of the tier. The texts may name {n}, {d}, {seuil_n}, the missing numbers
/// {manque_n} and {manque_d} (never below 0), the plain differences {reste_n} and {reste_d}, and the shared texts.
struct Texte_Detail {
    QStringView nom = {};
    Gabarit_Niveau manque = {};
    Gabarit_Niveau atteint = {};
    Gabarit_Niveau inchange = {}; ///< as the screen was drawn
};

using Details = std::array<Texte_Detail, 5>;

/// A tier of a sheet. It is reached when both counts are at least their thresholds; 0 asks for nothing.
struct Niveau_Diplome {
    QStringView etat = {};       ///< name of the status label
    Gabarit_Niveau attente = {}; ///< its text at load
    Gabarit_Niveau atteint = {};
    Gabarit_Niveau manque = {}; ///< its text when the tier is not reached, if that of the load does not stay
    int seuil_n = 0;
    int seuil_d = 0;
    std::size_t regle = 0; ///< which of the sheet's rules counts for it
    Details detail = {};
    QStringView bouton = {};
    std::optional<Choix> choix = {};       ///< what the button sets; a button without it does nothing
    std::array<QStringView, 2> ouvre = {}; ///< the buttons that the tier enables, if not its own alone
};

enum class Verdict {
    Atteint,
    Manque,
    Inchange ///< neither: all labels stay as the screen was drawn
};

struct Fiche_Diplome;

/// Reached when every count is at least its threshold.
Verdict Juge(const Niveau_Diplome &niveau, Comptes comptes);

/// The sheet of an award as data. What an award does in its own way is a function in one of the last four places.
struct Fiche_Diplome {
    QStringView ecran;
    Sources sources;
    Gabarit_Ecran titre;  ///< of the window
    Gabarit_Ecran entete; ///< the heading
    QStringView liste;    ///< the screen that a tier's button shows
    std::span<const Regle_Compte> regles;
    std::span<const Niveau_Diplome> niveaux; ///< in the order of the screen
    Verdict (*juge)(const Niveau_Diplome &niveau, Comptes comptes) = Juge;
    /// Puts right what is particular in the labels.
    void (*retouche)(Etat_Fiche &etat) = nullptr;
    /// Runs between what a button sets and the list.
    void (*avant_liste)(Etat_Commun &etat) = nullptr;
    /// Works the sheet out, where that is not done tier by tier from the counts of its rules.
    Etat_Fiche (*evalue)(const Fiche_Diplome &fiche, const Lectures &lues, const Etat_Commun &etat) = nullptr;
};

} // namespace diplomes
