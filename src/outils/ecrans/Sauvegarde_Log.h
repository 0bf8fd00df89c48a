#pragma once

#include "ecrans/Ecran.h"

class QLineEdit;
struct Poste;

/// Sets the folder of the weekly backup of the current station.
class Sauvegarde_Log : public Ecran {
    Q_OBJECT

public:
    explicit Sauvegarde_Log(Poste &poste);

    /// Shows the folder of the station, unless the operator is typing another.
    void Suit_Le_Log() override;

private:
    void Nouveau_Repertoire();
    void Enregistre();

    Poste &poste_;
    QLineEdit *le_chemin_;
};
