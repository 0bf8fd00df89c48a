#pragma once

#include "plateforme/Telechargement.h"

#include <map>
#include <vector>

/// Serves the bodies of a table and records the addresses asked for; an address outside the table has no body.
class Telechargement_Faux : public Telechargement {
public:
    [[nodiscard]] QByteArray Corps(const QString &adresse) override
    {
        adresses.push_back(adresse);
        const auto place = corps.find(adresse);
        return place == corps.end() ? QByteArray() : place->second;
    }

    std::map<QString, QByteArray> corps;
    std::vector<QString> adresses;
};
