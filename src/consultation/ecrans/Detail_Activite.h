#pragma once

#include "ecrans/Ecran.h"

class Champ_Saisie;
class QHBoxLayout;
class QLineEdit;
class QPushButton;
struct Poste;

/// All that Liste_Ouvrages.csv says of one hydraulic work, its place on the map and its page.
class Detail_Activite : public Ecran {
    Q_OBJECT

public:
    explicit Detail_Activite(Poste &poste);

private:
    QPushButton *Bouton(const QString &nom, const QString &texte);
    QHBoxLayout *Demande();
    QHBoxLayout *Lien();
    [[nodiscard]] QLineEdit *Champ(const QString &nom) const;

    void Reference_Entree();
    void Charge();
    void Situe();
    void Ouvre_Lien();

    Poste &poste_;
    Champ_Saisie *reference_;
    QPushButton *ouvre_lien_;
};
