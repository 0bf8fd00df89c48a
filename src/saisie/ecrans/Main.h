#pragma once

#include "log/Poste.h"
#include "saisie/Ecran_Du_Log.h"
#include "saisie/Saisie.h"
#include "saisie/ecrans/Controles.h"

#include <QMainWindow>
#include <QTimer>

class Commandes;
class Liste_Fixe;

/// The main screen: menu, entry, and the QSOs of the award that is open. It shows the entry's values and hands keys,
/// clicks and texts on; it decides nothing.
class Main : public QMainWindow {
    Q_OBJECT

public:
    Main(const Ports &ports, Etat_Commun &etat);

    /// Builds the menus and wires the two reference buttons, once all screens and commands are registered.
    void Installe_Menus(Commandes &commandes);

    /// The operating position of the program, for whoever works on the logs.
    [[nodiscard]] Poste &Le_Poste() { return poste_; }
    [[nodiscard]] Saisie &La_Saisie() { return saisie_; }

    /// Shows the screen, whose clock runs from then on.
    void Ouvre();

protected:
    void closeEvent(QCloseEvent *evenement) override;

private:
    QWidget *Construit_Liste();
    void Montre_Les_Valeurs();
    void Relie_Champs();
    /// An award chosen in the open list opens as with Enter.
    void Relie_Dip();
    void Relie_Boutons();
    void Relie_Bouton(Controle bouton, const std::function<void()> &action);
    void Relie_Liste();
    void Relie_Options();
    void Relie_Menu(const QString &nom, const std::function<void()> &action);
    void Relie_Option(Controle option, const std::function<void()> &action);
    void Montre_Liste();
    void Suit_Le_Focus();
    /// Gives the current colour to the control with the focus, the finished colour to the one that had it.
    void Marque_Courant();

    Saisie saisie_;
    Ecran_Du_Log ecran_{saisie_};
    Poste poste_;
    Controles controles_{saisie_};
    Liste_Fixe *liste_ = nullptr;
    QWidget *courant_ = nullptr;
    QTimer seconde_;
    /// Ends the following of the focus before the fields go, which hand it on while they do.
    QObject suivi_du_focus_;
};
