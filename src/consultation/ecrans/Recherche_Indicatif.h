#pragma once

#include "consultation/Recherche_QSO.h"
#include "ecrans/Ecran.h"

#include <array>

class Champ_Saisie;
class Liste_Fixe;
class QGridLayout;
class QLabel;
class QRadioButton;

/// Finds QSOs of the current log; a double click on a hit goes back to it on the main screen.
class Recherche_Indicatif : public Ecran {
    Q_OBJECT

public:
    explicit Recherche_Indicatif(Poste &poste);

    /// Names the current award; hits are places in the log that was there before, and go.
    void Suit_Le_Log() override;

private:
    struct Choix {
        QRadioButton *option;
        Champ_Saisie *champ;
    };

    Choix Nouveau_Choix(QGridLayout &grille, Recherche_Par par, const QString &champ, const QString &texte);
    Liste_Fixe *Nouvelle_Liste();
    void Suit_Le_Focus(const QWidget *controle);
    void Recherche(Recherche_Par par);
    void Retourne(int rang);

    Poste &poste_;
    QLabel *titre_;
    std::array<Choix, 3> choix_{};
    Liste_Fixe *qso_effectues_;
    /// Ends the following of the focus before the fields go, which hand it on while they do.
    QObject suivi_du_focus_;
};
