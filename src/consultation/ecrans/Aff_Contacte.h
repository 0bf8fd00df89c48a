#pragma once

#include "consultation/Contactes.h"
#include "ecrans/Ecran.h"

class Liste_Fixe;
class QComboBox;
class QLayout;
class QPushButton;

/// What the current log has contacted, one numbered row a reference.
class Aff_Contacte : public Ecran {
    Q_OBJECT

public:
    explicit Aff_Contacte(Poste &poste);

private:
    QPushButton *Bouton(const QString &nom, const QString &texte);
    QLayout *Choix_De_Bande();
    QLayout *Boutons();
    void Remplit(const QString &bande);

    Poste &poste_;
    /// The award that was current when the screen opened.
    const std::optional<Diplome> diplome_;
    QComboBox *bande_;
    Liste_Fixe *liste_;
    QPushButton *imprimer_;
    QPushButton *enregistrer_;
    Contactes contactes_;
};
