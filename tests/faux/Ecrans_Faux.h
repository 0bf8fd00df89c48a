#pragma once

#include "plateforme/Ecrans.h"

#include <functional>
#include <vector>

/// Records the screens asked for; a modal one runs `pendant_modal` in its place.
class Ecrans_Faux : public Ecrans {
public:
    void Montre(const QString &nom) override { montres.push_back(nom); }
    void Montre_Modal(const QString &nom) override
    {
        modaux.push_back(nom);
        if (pendant_modal)
            pendant_modal(nom);
    }
    [[nodiscard]] bool Connait(const QString &) const override { return true; }
    void Suit_Le_Log() override { suivis.push_back(QStringLiteral("Suit_Le_Log")); }
    void Suit_La_Station() override { suivis.push_back(QStringLiteral("Suit_La_Station")); }

    std::vector<QString> montres;
    std::vector<QString> modaux;
    std::vector<QString> suivis;
    std::function<void(const QString &)> pendant_modal;
};
