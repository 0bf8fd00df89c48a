#pragma once

#include "diplomes/modele/Fiche_Diplome.h"
#include "ecrans/Ecran.h"

class QGridLayout;
struct Poste;

namespace diplomes {

/// The progress sheet of any award: worked out when it is made, and not again while it is open.
class Ecran_Fiche : public Ecran {
    Q_OBJECT

public:
    /// `fiche` must outlive the screen. Throws Erreur_Execution as Charge_Fiche.
    Ecran_Fiche(Poste &poste, const Fiche_Diplome &fiche);

private:
    void Montre_Niveau(const Etat_Niveau &niveau, QGridLayout *grille);
    QWidget *Bouton(const Etat_Niveau &niveau);

    Poste &poste_;
    const Fiche_Diplome &fiche_;
};

} // namespace diplomes
