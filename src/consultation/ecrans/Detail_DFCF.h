#pragma once

#include "consultation/ecrans/Ecran_Detail.h"

/// What Liste_DFCF.csv says of the castle of the selected QSO.
class Detail_DFCF : public Ecran_Detail {
    Q_OBJECT

public:
    explicit Detail_DFCF(Poste &poste) : Ecran_Detail(poste, fiche_detail_dfcf) {}
};
