#pragma once

#include "ecrans/Ecran.h"

#include <vector>

struct Poste;

namespace diplomes {

/// Every sheet, list and choice screen of the award tables, and the screens of single awards. `poste` must outlive the
/// makers.
std::vector<Inscription> Ecrans_Diplomes(Poste &poste);

} // namespace diplomes
