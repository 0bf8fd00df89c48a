#pragma once

#include <QComboBox>

/// A combo of an entry screen: the wheel goes past it, so that a notch never changes the text of a running entry.
class Combo : public QComboBox {
    Q_OBJECT

public:
    explicit Combo(QWidget *parent = nullptr);

    void hidePopup() override;

Q_SIGNALS:
    /// An entry was chosen in the open list, by mouse or keyboard, the one that was shown before included. A key in the
    /// closed combo chooses nothing.
    void Choisie();

protected:
    void keyPressEvent(QKeyEvent *touche) override;
    void wheelEvent(QWheelEvent *molette) override;

private:
    /// The list has just closed, and no event has come since.
    bool vient_de_se_fermer_ = false;
};

/// A combo whose text is free: nothing typed enters the list, and nothing is completed behind the operator's back.
Combo *Combo_Libre(QWidget *parent);

/// The place of the combo's text among its entries; -1 for a free text.
int Indice_Du_Texte(const QComboBox &combo);
