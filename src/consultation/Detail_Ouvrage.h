#pragma once

#include "consultation/Fiche_Detail.h"

#include <optional>

/// The fields of Detail_Activite in their order on the screen, Rem_I and Large_Pieg_I among them, which nothing fills.
extern const std::span<const Champ_Detail> champs_detail_activite;

/// The reference of the entry that is selected in Liste_QSO: seven characters.
QString Reference_Ouvrage(const Poste &poste);

/// Why a reference cannot be looked for; nullopt if it can.
std::optional<QString> Refus_Ouvrage(QStringView reference);

/// The texts of one work by Liste_Ouvrages.csv. For a reference that is not there only Ref_I, and a box tells it.
/// Throws Erreur_Execution if the list is absent, or for a line on the way with fewer than nineteen separators.
Textes_Detail Charge_Detail(Poste &poste, QStringView reference);
