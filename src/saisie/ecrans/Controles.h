#pragma once

#include "saisie/Saisie.h"

#include <functional>
#include <map>

class QLineEdit;
class QWidget;

/// How the screen takes hold of one of its controls.
struct Prise {
    QWidget *widget = nullptr; ///< nullptr for an entry of a menu
    /// Where the text of a field or combo is typed; nullptr for other controls.
    QLineEdit *ligne = nullptr;
    std::function<void(const QString &texte)> ecrit = nullptr; ///< for a control whose text changes
    std::function<void(bool coche)> coche = nullptr;
};

/// The controls of the main screen: they show the entry's values, and hand it what is typed and ticked in them.
class Controles {
public:
    explicit Controles(Saisie &saisie) : saisie_(saisie) {}

    /// A control that stands on the screen from now on, with the text that the entry holds for it.
    void Pose(Controle controle, const Prise &prise);
    [[nodiscard]] Saisie &La_Saisie() const { return saisie_; }
    [[nodiscard]] QWidget *Widget(Controle controle) const { return prises_.at(controle).widget; }
    /// The control that a widget is, if it is one.
    [[nodiscard]] std::optional<Controle> Qui_Est(const QWidget *widget) const;
    /// Shows what has changed in the entry.
    void Montre(Controle controle, Aspect aspect) const;

private:
    void Place_Curseur(Controle controle) const;

    Saisie &saisie_;
    std::map<Controle, Prise> prises_;
};
