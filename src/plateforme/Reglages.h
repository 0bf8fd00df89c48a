#pragma once

#include <QString>

/// The per-user settings by section and key, all values text. A write is on the disk when it returns.
class Reglages {
public:
    virtual ~Reglages() = default;
    [[nodiscard]] virtual QString Lit(const QString &section, const QString &cle, const QString &defaut) const = 0;
    virtual void Ecrit(const QString &section, const QString &cle, const QString &valeur) = 0;
    /// The settings of the sibling program Trelune, which are never written here.
    [[nodiscard]] virtual QString Lit_Trelune(const QString &section, const QString &cle,
                                              const QString &defaut) const = 0;
};
