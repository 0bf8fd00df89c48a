#pragma once

#include "ecrans/Ecran.h"

class Champ_Saisie;
class Liste_Fixe;
class QPushButton;
struct Poste;

/// The QSOs with one activator in the logs of all awards.
class Affiche_Toutes_Activites : public Ecran {
    Q_OBJECT

public:
    explicit Affiche_Toutes_Activites(Poste &poste);

private:
    void Dispose();
    void Indicatif_Entre();
    void Affiche();

    Poste &poste_;
    Champ_Saisie *indicatif_;
    Liste_Fixe *liste_;
    QPushButton *affiche_;
    QPushButton *quitter_;
};
