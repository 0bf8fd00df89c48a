#pragma once

#include <QStringView>

/// The numbers that stand for Corsica where departments are counted.
inline constexpr int dep_2a = 96;
inline constexpr int dep_2b = 97;

/// "2A" and "2a" are 96, "2B" and "2b" are 97; any other text stands.
QStringView Departement_Replie(QStringView dpt);
