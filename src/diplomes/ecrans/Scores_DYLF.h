#pragma once

#include "ecrans/Ecran.h"

struct Poste;

namespace diplomes {

/// The score table of the female operators: the lines and the points of each band class and mode, and their sums. It is
/// worked out when it is made, and not again while it is open.
class Scores_DYLF : public Ecran {
    Q_OBJECT

public:
    /// Throws Erreur_Execution for an absent log.
    explicit Scores_DYLF(const Poste &poste);
};

} // namespace diplomes
