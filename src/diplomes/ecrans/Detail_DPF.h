#pragma once

#include "ecrans/Ecran.h"

struct Poste;

namespace diplomes {

/// The provinces with their departments, as a plain list.
class Detail_DPF : public Ecran {
    Q_OBJECT

public:
    explicit Detail_DPF(Poste &poste);
};

} // namespace diplomes
