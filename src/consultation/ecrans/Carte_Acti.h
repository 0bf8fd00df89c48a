#pragma once

#include "ecrans/Ecran.h"

struct Poste;

/// The departments that the current log has reached, on the map and in numbers.
class Carte_Acti : public Ecran {
    Q_OBJECT

public:
    explicit Carte_Acti(Poste &poste);
};
