#pragma once

#include "log/Diplome.h"
#include "plateforme/Lignes_Texte.h"

#include <QString>

#include <functional>
#include <optional>

/// Gives the new form of a TDC reference of the oldest form, or nullopt.
using Conversion_TDC = std::function<std::optional<QString>(QStringView ancienne)>;

/// A log with its references in their present forms, each line composed anew from its fields.
struct Log_Migre {
    QString texte;
    /// A reference is another one now: the file must be written again. Blanks around one that go do not ask for it.
    bool a_reecrire = false;
};

/// nullopt if every reference of a log of an award has its present form.
std::optional<Log_Migre> Migre(std::optional<Diplome> diplome, const Lignes_Texte &lignes,
                               const Conversion_TDC &conversion);
