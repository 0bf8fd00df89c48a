#pragma once

#include "consultation/Fiche_Detail.h"
#include "ecrans/Ecran.h"

/// The common form of the screens that show the record of the selected QSO's reference, read-only. The look-up runs
/// once, when the screen opens.
class Ecran_Detail : public Ecran {
    Q_OBJECT

public:
    Ecran_Detail(Poste &poste, const Fiche_Detail &fiche);
};
