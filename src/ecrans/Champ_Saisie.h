#pragma once

#include <QLineEdit>

/// A text field that takes only what the files can hold: a typed or pasted character outside Windows-1252 and a line
/// break do not enter.
class Champ_Saisie : public QLineEdit {
    Q_OBJECT

public:
    explicit Champ_Saisie(QWidget *parent = nullptr);
    /// A field about `caracteres` wide, in the font's average width.
    Champ_Saisie(int caracteres, QWidget *parent);
};
