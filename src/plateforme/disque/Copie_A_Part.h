#pragma once

#include "plateforme/Dossier.h"

/// Copies that stay beside the files they were made of. Full paths; each throws Erreur_Execution.

/// See Dossier::Garde. A file that will be replaced becomes a second name of itself where the file system has such,
/// which takes no room and no time; any other is copied.
Issue_Copie Garde_Fichier(const QString &source, const QString &cible, Avenir avenir);

/// Removes a copy that has another name.
void Separe_Fichier(const QString &copie);

/// The files that stand in a folder, links and folders aside.
std::vector<Fichier_Present> Fichiers_Du_Repertoire(const QString &repertoire);
