#pragma once

#include <QLockFile>
#include <QString>

#include <memory>

/// Repertoire_Appli: the folder in VORLAIN_REPERTOIRE, else the platform's application data folder.
QString Repertoire_Appli();

/// Makes the folder if it is absent and takes it for this program alone. nullptr if another program holds it.
/// Throws Erreur_Execution if the folder cannot be made or written.
std::unique_ptr<QLockFile> Prend_Repertoire(const QString &repertoire);
