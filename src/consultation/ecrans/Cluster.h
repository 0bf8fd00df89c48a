#pragma once

#include "consultation/ecrans/Ecran_Web.h"

class QComboBox;

/// The spot ranking of one band or of many; the screen opens on the one shown last.
class Cluster : public Ecran_Web {
    Q_OBJECT

public:
    explicit Cluster(Poste &poste);

private:
    void Affiche();

    QComboBox *bande_;
};
