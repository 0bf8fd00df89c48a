#pragma once

#include "consultation/Fiche_Detail.h"
#include "ecrans/Ecran.h"

/// What Liste_TDC.csv says of the tower of the selected QSO, and the way to its web page.
class Detail_TDC : public Ecran {
    Q_OBJECT

public:
    explicit Detail_TDC(Poste &poste);

private:
    Textes_Detail tour_;
};
