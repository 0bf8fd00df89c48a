#pragma once

#include "consultation/ecrans/Ecran_Detail.h"

/// What Liste_FFF.csv says of the park or reserve of the selected QSO.
class Detail_FFF : public Ecran_Detail {
    Q_OBJECT

public:
    explicit Detail_FFF(Poste &poste) : Ecran_Detail(poste, fiche_detail_fff) {}
};
