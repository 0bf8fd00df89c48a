#pragma once

#include <QString>

/// Shows the screens of the program by their name. What becomes of one that is open already is said where it is
/// registered: it comes forward as it stands, or it is made anew.
class Ecrans {
public:
    virtual ~Ecrans() = default;
    /// Opens a screen that leaves the others free; a name that is not registered does nothing.
    virtual void Montre(const QString &nom) = 0;
    /// Opens a screen and returns when it has been closed.
    virtual void Montre_Modal(const QString &nom) = 0;
    /// False for a name without a screen: its menu entry is then disabled.
    [[nodiscard]] virtual bool Connait(const QString &nom) const = 0;
    /// Another log stands on the main screen, by its award or by its year: the open screens that follow it do so.
    virtual void Suit_Le_Log() = 0;
    /// The same for the logs of another station; the screens that show logs of the former one close.
    virtual void Suit_La_Station() = 0;
};
