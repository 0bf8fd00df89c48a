#pragma once

#include <QString>

/// The operations of the program that a menu entry or a button runs by name.
class Commandes {
public:
    virtual ~Commandes() = default;
    /// A name that is not registered does nothing.
    virtual void Execute(const QString &nom) = 0;
    [[nodiscard]] virtual bool Connait_Commande(const QString &nom) const = 0;
};
