#pragma once

#include <QString>

#include <optional>

/// Why the print server refused the job that this thread handed in last, in its own words; nullopt if it took it, or
/// where there is none. QPrinter itself calls a refused job printed.
std::optional<QString> Refus_Du_Serveur();
