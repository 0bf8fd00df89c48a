#pragma once

#include "plateforme/Lignes_Texte.h"

#include <QString>

#include <functional>
#include <optional>

/// Gives the new form of a TDC reference of the oldest form, or nullopt.
using Conversion_TDC = std::function<std::optional<QString>(QStringView ancienne)>;

/// The text of a log of `code` whose references were carried over to their present forms, or nullopt if none had to be.
/// Lines whose reference stays are taken over as they are.
std::optional<QString> Migre(QStringView code, const Lignes_Texte &lignes, const Conversion_TDC &conversion);
