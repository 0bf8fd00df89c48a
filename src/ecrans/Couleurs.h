#pragma once

#include <QColor>

class QWidget;

/// The field in hand, and a field that is finished or idle.
inline constexpr QColor couleur_courante{192, 255, 192};
inline constexpr QColor couleur_finie{255, 255, 192};

/// Gives a control a background of its own in every state, with dark text on it: a disabled field keeps its colour, and
/// a dark theme does not put light letters on it.
void Colore(QWidget *controle, const QColor &fond);
