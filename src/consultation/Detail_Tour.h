#pragma once

#include "consultation/Fiche_Detail.h"

/// The fields of Detail_TDC in their order on the screen.
extern const std::span<const Champ_Detail> champs_detail_tdc;

/// The reference on the entry line, cut to the six characters that the towers have ("11-008").
QString Reference_Tour(const Poste &poste);

/// The texts of one tower by Liste_TDC.csv; for a reference that is not there Ref_I alone, which tells it. Throws
/// Erreur_Execution if the list is absent, or for a line on the way with fewer than seven separators.
Textes_Detail Charge_Tour(const Poste &poste, QStringView reference);

/// Shows the web page of a tower, whose texts the screen holds; an address without a host is empty.
void Voir_Site(Poste &poste, const Textes_Detail &tour);
