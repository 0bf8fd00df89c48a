#pragma once

#include <QString>

#include <optional>

class Dossier;

/// The present form of a TDC reference of the oldest form, by Liste_TDC.csv: the last six characters of the department,
/// "-" and the post as the list has it (unpadded). nullopt if the list does not know it; an absent list throws
/// Erreur_Execution.
std::optional<QString> Ancienne_Ref_TDC(const Dossier &dossier, QStringView ancienne);
