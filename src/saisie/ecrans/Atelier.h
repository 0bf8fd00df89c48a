#pragma once

#include "saisie/ecrans/Controles.h"

class Combo;
class QCheckBox;
class QGroupBox;
class QLabel;
class QPushButton;

/// Makes the controls of one part of the main screen, each under its enumerator's name.
class Atelier {
public:
    Atelier(Controles &controles, QWidget *parent) : controles_(controles), parent_(parent) {}

    /// A label whose text changes, and one that stands as it is.
    QLabel *Etiquette(Controle controle);
    QLabel *Legende(const QString &nom, const QString &texte);
    QLineEdit *Champ(Controle controle, int caracteres);
    Combo *Liste(Controle controle);
    QCheckBox *Case(Controle controle, const QString &texte);
    /// A button with its caption, and one whose caption changes.
    QPushButton *Bouton(Controle controle, const QString &texte);
    QPushButton *Bouton_Variable(Controle controle);

private:
    Controles &controles_;
    QWidget *parent_;
};
