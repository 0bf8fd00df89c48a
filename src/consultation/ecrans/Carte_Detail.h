#pragma once

#include "ecrans/Ecran.h"

struct Poste;

/// The department of a hydraulic work on the map.
class Carte_Detail : public Ecran {
    Q_OBJECT

public:
    explicit Carte_Detail(Poste &poste);
};
