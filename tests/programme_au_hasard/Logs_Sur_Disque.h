#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <map>
#include <set>
#include <vector>

// The logs as they lie on the disk, read without any code of the program.

/// The bytes of every log and of every copy that an import puts aside, by file name.
using Photo = std::map<QString, QByteArray>;
Photo Photographie(const QString &dossier);

/// The names whose bytes differ, came or went.
std::set<QString> Differents(const Photo &avant, const Photo &apres);

/// The lines of a file of a photo; none for a file that is not there.
QStringList Lignes(const Photo &photo, const QString &nom);
/// What stands behind the number in the list of the main screen for each line of a log.
QStringList Rangees(const Photo &photo, const QString &nom);

/// "F9ZZY_DFCF.log"; `annee` is looked at for the two challenges only.
QString Nom_Du_Log(const QString &station, const QString &code, const QString &annee);

/// The lines that are in `lignes` once more than in `autres`.
QStringList En_Plus(const QStringList &lignes, QStringList autres);
