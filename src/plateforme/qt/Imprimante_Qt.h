#pragma once

#include "plateforme/Imprimante.h"

class QPrinter;

/// The printer by Qt's own print dialogue, over the window in front.
class Imprimante_Qt : public Imprimante {
public:
    [[nodiscard]] std::optional<QString> Imprime(const QString &titre, const std::vector<QString> &lignes) override;
};

/// Prints the lines as the printer was set, without a dialogue. Gives what kept them from paper or from the file, in
/// words; the file is then what it was before.
[[nodiscard]] std::optional<QString> Imprime_Lignes(QPrinter &imprimante, const std::vector<QString> &lignes);
