#pragma once

#include "diplomes/modele/Etat_Challenge.h"
#include "ecrans/Ecran.h"

class QGridLayout;
struct Poste;

namespace diplomes {

/// The board of a canal: the works contacted and the four steps. Filled when it is made.
class Ecran_Challenge : public Ecran {
    Q_OBJECT

public:
    /// Throws Erreur_Execution as Charge_Challenge.
    explicit Ecran_Challenge(Poste &poste);

private:
    void Montre_Palier(const Palier &palier, QGridLayout *grille);
    QWidget *Rangs();

    Poste &poste_;
    Etat_Challenge etat_;
};

} // namespace diplomes
