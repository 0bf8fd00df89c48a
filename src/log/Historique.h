#pragma once

#include <QString>

/// The version of the program, as titles and settings show it.
extern const QStringView version_vorlain;

/// The history of the versions, each line behind a line break.
QString Historique();
