#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// What was asked for behind the program's name.
struct Ligne_Commande {
    /// A text to print and the status to end with, in the place of a start.
    struct Reponse {
        QString texte = {};
        int statut = 0;
    };
    std::optional<Reponse> reponse = {};
    /// Repertoire_Appli, an absolute path; empty if the line names none.
    QString repertoire = {};
    /// The ADIF file to import, an absolute path; empty if the line names none.
    QString fichier_adif = {};
};

/// The status for a line that is not understood.
inline constexpr int statut_mauvaise_commande = 2;

/// Reads the arguments, the first of which is the program's name. Options of Qt itself ("-platform") are passed over.
/// Needs no application, so that --help answers without a display.
Ligne_Commande Lit_Ligne_Commande(const QStringList &arguments);
