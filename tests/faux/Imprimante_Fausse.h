#pragma once

#include "plateforme/Imprimante.h"

/// Records what was printed, one entry a document; refuses with `refus` when a test sets it.
class Imprimante_Fausse : public Imprimante {
public:
    [[nodiscard]] std::optional<QString> Imprime(const QString &titre, const std::vector<QString> &lignes) override
    {
        if (!refus) {
            titres.push_back(titre);
            documents.push_back(lignes);
        }
        return refus;
    }

    std::vector<QString> titres;
    std::vector<std::vector<QString>> documents;
    std::optional<QString> refus;
};
