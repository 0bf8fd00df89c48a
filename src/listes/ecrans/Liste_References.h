#pragma once

#include "ecrans/Ecran.h"

struct Poste;

/// The references of the current award's list, for DCF and DPLF.
class Liste_References : public Ecran {
    Q_OBJECT

public:
    explicit Liste_References(Poste &poste);
};
