#pragma once

#include <QObject>

#include <functional>

class QInputMethodEvent;
class QKeyEvent;
class QWidget;

/// The keys of one entry field, combo or check box: Enter moves on instead of reaching the control, and small letters
/// `a` to `z` become capitals as they are typed.
class Chaine_Entree : public QObject {
    Q_OBJECT

public:
    struct Reactions {
        /// Return or the keypad's Enter; an auto-repeat is dropped. The event never reaches the control.
        std::function<void()> entree;
        /// Asked before any other key; false drops it.
        std::function<bool()> accepte = [] { return true; };
        /// Before a key that types or erases a character takes effect; true for Backspace.
        std::function<void(bool retour_arriere)> avant = [](bool) {};
        /// After the control took a key.
        std::function<void()> apres = [] {};
    };

    /// Watches `controle` as long as it lives.
    Chaine_Entree(QWidget *controle, Reactions reactions);

protected:
    bool eventFilter(QObject *objet, QEvent *evenement) override;

private:
    bool Traite(QKeyEvent &touche);
    /// A character that a dead key or an input method has composed comes without a key of its own.
    bool Traite_Composition(const QInputMethodEvent &composition);
    /// Hands an event to the control, past this filter.
    void Transmet(QEvent &evenement);

    QWidget *controle_;
    Reactions reactions_;
    bool transmet_ = false;
};

/// True for a key that acts on a field: one that types, erases or moves. Tab, Escape, function keys, modifiers alone
/// and menu keys (Alt, Ctrl) are not.
bool Agit_Sur_Un_Champ(const QKeyEvent &touche);
