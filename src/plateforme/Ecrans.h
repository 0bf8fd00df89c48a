#pragma once

#include <QString>

/// Shows the screens of the program by their name. A screen that is already open comes forward and is not reloaded.
class Ecrans {
public:
    virtual ~Ecrans() = default;
    /// Opens a screen that leaves the others free; a name that is not registered does nothing.
    virtual void Montre(const QString &nom) = 0;
    /// Opens a screen and returns when it has been closed.
    virtual void Montre_Modal(const QString &nom) = 0;
    /// False for a name without a screen: its menu entry is then disabled.
    [[nodiscard]] virtual bool Connait(const QString &nom) const = 0;
};
