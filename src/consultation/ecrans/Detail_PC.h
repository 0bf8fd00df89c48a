#pragma once

#include "consultation/ecrans/Ecran_Detail.h"

/// What Liste_PC.csv says of the monument of the selected QSO.
class Detail_PC : public Ecran_Detail {
    Q_OBJECT

public:
    explicit Detail_PC(Poste &poste) : Ecran_Detail(poste, fiche_detail_pc) {}
};
