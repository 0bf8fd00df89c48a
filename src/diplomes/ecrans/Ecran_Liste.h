#pragma once

#include "diplomes/modele/Liste_Diplome.h"
#include "ecrans/Ecran.h"

#include <functional>

class Liste_Fixe;
class QBoxLayout;
class QLabel;
struct Poste;

namespace diplomes {

/// The list of any award: filled when it is made, and not again while it is open. It is saved and printed under the
/// texts that hold when its buttons are pressed.
class Ecran_Liste : public Ecran {
    Q_OBJECT

public:
    /// `liste` must outlive the screen. Throws Erreur_Execution as Charge_Liste.
    Ecran_Liste(Poste &poste, const Liste_Diplome &liste);

private:
    void Montre_Etat();
    QBoxLayout *Boutons();
    void Ajoute_Bouton(QBoxLayout *boutons, const QString &nom, const QString &texte,
                       const std::function<void()> &presse);

    Poste &poste_;
    const Liste_Diplome &liste_;
    Etat_Liste etat_;
    QLabel *entete_;
    QLabel *colonnes_;
    QLabel *compte_;
    Liste_Fixe *rangs_;
};

} // namespace diplomes
