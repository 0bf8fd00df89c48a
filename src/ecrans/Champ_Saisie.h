#pragma once

#include <QLineEdit>

class QComboBox;

/// A text field that takes only what the files can hold: a typed or pasted character outside Windows-1252 and a line
/// break do not enter.
class Champ_Saisie : public QLineEdit {
    Q_OBJECT

public:
    explicit Champ_Saisie(QWidget *parent = nullptr);
    /// A field about `caracteres` wide, in the font's average width.
    Champ_Saisie(int caracteres, QWidget *parent);
};

/// A combo whose text is free: nothing typed enters the list, and nothing is completed behind the operator's back.
QComboBox *Combo_Libre(QWidget *parent);

/// The place of the combo's text among its entries; -1 for a free text.
int Indice_Du_Texte(const QComboBox &combo);
