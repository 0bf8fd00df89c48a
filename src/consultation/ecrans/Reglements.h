#pragma once

#include "consultation/ecrans/Ecran_Web.h"

/// The rules of the current award on the site of its managers.
class Reglements : public Ecran_Web {
    Q_OBJECT

public:
    explicit Reglements(Poste &poste);
};
