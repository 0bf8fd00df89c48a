#pragma once

#include "log/Diplome.h"

#include <QString>

namespace diplomes {

/// The screen that Mnu_Diplomes opens for the award in Dip_A: its sheet, or its choice screen. Empty without an
/// award.
QString Ecran_Du_Diplome(std::optional<Diplome> diplome);

} // namespace diplomes
