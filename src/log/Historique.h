#pragma once

#include <QString>

/// The version of the program, as titles and settings show it.
inline constexpr QStringView version_vorlain = u"V1.2.5c";

/// The history of the versions, each line behind a line break.
QString Historique();
