#pragma once

#include "ecrans/Ecran.h"

struct Poste;
class QLineEdit;
class QPushButton;
class Vue_Saisie;

/// The choice of the station's call sign.
class Station : public Ecran {
    Q_OBJECT

public:
    Station(Poste &poste, Vue_Saisie &vue);

private:
    void Valide();

    Poste &poste_;
    Vue_Saisie &vue_;
    QLineEdit *indicatif_;
    QPushButton *validation_;
};
