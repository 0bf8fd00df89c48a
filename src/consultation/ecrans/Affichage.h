#pragma once

#include "consultation/ecrans/Ecran_Web.h"

/// The page that another screen asked for, under the title that it gave.
class Affichage : public Ecran_Web {
    Q_OBJECT

public:
    explicit Affichage(Poste &poste);
};
