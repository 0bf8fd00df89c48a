#pragma once

#include <QWidget>

/// A screen: a top-level window of its own, which goes away when it is closed. Its objectName is its given name.
class Ecran : public QWidget {
    Q_OBJECT

public:
    Ecran(const QString &nom, const QString &titre);
};

/// Puts a window in the middle of the desktop, at the size its layout asks for.
void Centre(QWidget &fenetre);
