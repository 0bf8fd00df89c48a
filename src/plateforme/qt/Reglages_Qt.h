#pragma once

#include "plateforme/Reglages.h"

#include <QSettings>

/// The settings in the platform's native store: application = organisation = "Vorlain", and "Trelune" for the sibling.
class Reglages_Qt : public Reglages {
public:
    Reglages_Qt();
    [[nodiscard]] QString Lit(const QString &section, const QString &cle, const QString &defaut) const override;
    void Ecrit(const QString &section, const QString &cle, const QString &valeur) override;
    [[nodiscard]] QString Lit_Trelune(const QString &section, const QString &cle, const QString &defaut) const override;

private:
    QSettings vorlain_;
    QSettings trelune_;
};
