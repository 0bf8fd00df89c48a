#pragma once

#include "log/Diplome.h"
#include "plateforme/Lignes_Texte.h"

#include <optional>

class Dossier;
struct Poste;

/// The text of a log. A last line that was cut off is mended on the disk too; where that cannot be done it is given as
/// it is, for another time.
QString Lit_Log(Poste &poste, const QString &nom);

/// The lines of a log as Liste_QSO shows them, and their text if the file must be written again for a reference that
/// is another one now.
struct Log_A_Jour {
    Lignes_Texte lignes;
    std::optional<QString> a_reecrire;
};

/// Carries references of earlier forms over. Throws Erreur_Execution if Liste_TDC.csv is needed and absent.
Log_A_Jour Met_A_Jour(const Dossier &dossier, std::optional<Diplome> diplome, Lignes_Texte lignes);

/// What the operator is told of a log that was written again for its references: for FFF alone.
void Annonce_Mise_A_Jour(Poste &poste, std::optional<Diplome> diplome);

/// Reloads Liste_QSO from the log of an award and enables Ind_A. References of earlier forms are carried over on the
/// way and the log is rewritten then. Throws Erreur_Execution if the log cannot be opened; the list is then empty.
void Charge_Log(Poste &poste, std::optional<Diplome> diplome);
