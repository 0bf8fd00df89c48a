#pragma once

#include "plateforme/Lignes_Texte.h"

#include <QString>

class Dossier;

/// Liste_Prenom.txt remembers department and first name of each call sign, for all awards and stations:
/// call sign in columns 1-12, department in 14-15, first name from 17 to the end of the line.
inline constexpr QStringView fichier_prenoms = u"Liste_Prenom.txt";

struct Prenom_Trouve {
    QString prenom; ///< upper case; empty if the call sign is not in the list
    QString dpt;
    /// The list knows no department or no first name: it must be updated at the commit.
    bool nouveau = true;
};

/// The first line whose call sign, trimmed, equals `ind`.
Prenom_Trouve Cherche_Prenom_Dans(const Lignes_Texte &lignes, QStringView ind);
/// `ligne` takes the place of every line with the same first 12 characters; if none has them, it goes to the end.
QString Texte_Maj_Prenom(const Lignes_Texte &lignes, QStringView ligne);

/// The same on the file. An absent list throws Erreur_Execution.
Prenom_Trouve Cherche_Prenom(const Dossier &dossier, QStringView ind);
void Maj_Prenom(Dossier &dossier, QStringView ligne);
