#pragma once

#include "plateforme/Reglages.h"

#include <map>
#include <utility>

/// Settings that live as long as the test.
class Reglages_Memoire : public Reglages {
public:
    using Cle = std::pair<QString, QString>; ///< section, key

    [[nodiscard]] QString Lit(const QString &section, const QString &cle, const QString &defaut) const override
    {
        return Cherche(vorlain, section, cle, defaut);
    }
    void Ecrit(const QString &section, const QString &cle, const QString &valeur) override
    {
        vorlain[{section, cle}] = valeur;
    }
    [[nodiscard]] QString Lit_Trelune(const QString &section, const QString &cle, const QString &defaut) const override
    {
        return Cherche(trelune, section, cle, defaut);
    }

    std::map<Cle, QString> vorlain;
    std::map<Cle, QString> trelune;

private:
    static QString Cherche(const std::map<Cle, QString> &magasin, const QString &section, const QString &cle,
                           const QString &defaut)
    {
        const auto place = magasin.find({section, cle});
        return place == magasin.end() ? defaut : place->second;
    }
};
