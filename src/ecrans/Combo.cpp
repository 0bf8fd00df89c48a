#include "ecrans/Combo.h"

#include "ecrans/Champ_Saisie.h"

#include <QAbstractItemView>
#include <QWheelEvent>

#include <utility>

Combo::Combo(QWidget *parent) : QComboBox(parent)
{
    // A choice in the list is told right behind its closing, within the same event. `activated` alone would not do:
    // arrow keys and a typed text that is left emit it too.
    connect(this, &QComboBox::activated, this, [this] {
        if (std::exchange(vient_de_se_fermer_, false))
            Q_EMIT Choisie();
    });
}

void Combo::hidePopup()
{
    const bool ouverte = view()->isVisible();
    QComboBox::hidePopup();
    vient_de_se_fermer_ = ouverte;
    QMetaObject::invokeMethod(
        this, [this] { vient_de_se_fermer_ = false; }, Qt::QueuedConnection);
}

void Combo::keyPressEvent(QKeyEvent *touche)
{
    vient_de_se_fermer_ = false;
    QComboBox::keyPressEvent(touche);
}

void Combo::wheelEvent(QWheelEvent *molette)
{
    // An open list is a window of its own, with a wheel of its own.
    molette->ignore();
}

Combo *Combo_Libre(QWidget *parent)
{
    auto *combo = new Combo(parent);
    combo->setEditable(true);
    combo->setLineEdit(new Champ_Saisie(combo));
    combo->setInsertPolicy(QComboBox::NoInsert);
    combo->setCompleter(nullptr);
    return combo;
}

int Indice_Du_Texte(const QComboBox &combo)
{
    return combo.findText(combo.currentText(), Qt::MatchExactly | Qt::MatchCaseSensitive);
}
