#pragma once

#include "log/Catalogue.h"
#include "log/Poste.h"
#include "saisie/Vue_Saisie.h"
#include "saisie/ecrans/Zone_Saisie.h"

#include <QMainWindow>
#include <QTimer>

class Commandes;
class Liste_Fixe;
class QLabel;

/// The main screen: menu, entry, and the QSOs of the award that is open.
class Main : public QMainWindow, public Vue_Saisie {
    Q_OBJECT

public:
    Main(const Ports &ports, Etat_Commun &etat);

    /// Builds the menus and wires the two reference buttons, once all screens and commands are registered.
    void Installe_Menus(Commandes &commandes);

    /// The operating position with this screen in it, for whoever works on the logs.
    [[nodiscard]] Poste &Le_Poste() { return poste_; }

    void Remplit_Liste(Lignes_Texte lignes) override;
    [[nodiscard]] const Lignes_Texte &Liste_QSO() const override { return lignes_; }
    void Selectionne_Derniere() override;
    void Selectionne_QSO(std::size_t rang) override;
    [[nodiscard]] QString QSO_Selectionne() const override;
    void Active_Ind_A() override { Active(Controle::Ind_A, true); }
    [[nodiscard]] QString Dip_A() const override { return En_Forme_De_Code(Texte(Controle::Dip_A)); }
    [[nodiscard]] QString Ref_A() const override { return Texte(Controle::Ref_A); }
    [[nodiscard]] QString I_Station() const override { return Texte(Controle::I_Station); }
    void Efface() override;
    void Efface_Saisie() override;

    [[nodiscard]] QString Texte(Controle controle) const override;
    void Ecrit(Controle controle, const QString &texte) override;
    [[nodiscard]] int Indice_Combo(Controle combo) const override;
    [[nodiscard]] int Nombre_Combo(Controle combo) const override;
    void Choisit(Controle combo, int indice) override;
    [[nodiscard]] bool QSL_Coche() const override;
    void Coche_QSL(bool coche) override;
    [[nodiscard]] bool Est_Actif(Controle controle) const override;
    void Active(Controle controle, bool actif) override;
    void Donne_Focus(Controle controle) override;
    void Curseur_A_La_Fin(Controle champ) override;
    void Coche_Saisie_Differee(bool differee) override;
    void Coche_Separateur_Auto(bool automatique) override;
    void Titre(const QString &titre) override { setWindowTitle(titre); }
    void Montre_Ecran() override;

protected:
    void closeEvent(QCloseEvent *evenement) override;

private:
    QWidget *Construit_Liste();
    void Relie_Champs();
    /// An award chosen in the open list opens as with Enter.
    void Relie_Dip();
    void Relie_Boutons();
    void Relie_Bouton(const QString &nom, const std::function<void()> &action);
    void Relie_Liste();
    void Relie_Options();
    void Relie_Menu(const QString &nom, const std::function<void()> &action);
    void Coche_Paire(const QString &nom, bool coche);
    /// Gives the current colour to the control with the focus, the finished colour to the one that had it.
    void Marque_Courant(QWidget *controle);

    Poste poste_;
    Controles controles_;
    Liste_Fixe *liste_ = nullptr;
    Lignes_Texte lignes_;
    QWidget *courant_ = nullptr;
    QTimer seconde_;
    /// Ends the following of the focus before the fields go, which hand it on while they do.
    QObject suivi_du_focus_;
};
