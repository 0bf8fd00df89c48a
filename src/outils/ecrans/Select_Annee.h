#pragma once

#include "ecrans/Ecran.h"

class Champ_Saisie;
class QPushButton;
struct Poste;

/// Asks for the year of the challenge that the common state names. The caller shows it modal.
class Select_Annee : public Ecran {
    Q_OBJECT

public:
    explicit Select_Annee(Poste &poste);

private:
    void Annee_Entree();
    void Valide();

    Poste &poste_;
    Champ_Saisie *new_annee_;
    QPushButton *validation_;
};
