#pragma once

#include "plateforme/Reglages.h"
#include "plateforme/disque/Magasin_Reglages.h"

#include <QSettings>

/// The settings in the platform's native store: application = organisation = "Vorlain", and "Trelune" for the sibling.
/// Throws Erreur_Execution if the store is there and cannot be read: it is then no first installation.
class Reglages_Qt : public Reglages {
public:
    Reglages_Qt();
    [[nodiscard]] QString Lit(const QString &section, const QString &cle, const QString &defaut) const override;
    void Ecrit(const QString &section, const QString &cle, const QString &valeur) override;
    [[nodiscard]] QString Lit_Trelune(const QString &section, const QString &cle, const QString &defaut) const override;

private:
    /// Tells where the store is, and what the system's administrator has set. It never writes: QSettings replaces a
    /// store by what a full disk left of it.
    QSettings vorlain_;
    QSettings trelune_;
    Contenu_Reglages contenu_;
};
