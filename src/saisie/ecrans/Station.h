#pragma once

#include "ecrans/Ecran.h"

struct Poste;
class QLineEdit;
class QPushButton;
class Saisie;

/// The choice of the station's call sign.
class Station : public Ecran {
    Q_OBJECT

public:
    Station(Poste &poste, Saisie &saisie);

private:
    void Valide();

    Poste &poste_;
    Saisie &saisie_;
    QLineEdit *indicatif_;
    QPushButton *validation_;
};
