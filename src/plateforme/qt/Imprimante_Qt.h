#pragma once

#include "plateforme/Imprimante.h"

class QFont;
class QPrinter;

/// The printer by Qt's own print dialogue, over the window in front.
class Imprimante_Qt : public Imprimante {
public:
    [[nodiscard]] std::optional<QString> Imprime(const std::vector<QString> &lignes) override;
};

/// Prints the lines without a dialogue; false if the printer or its file refuses them.
bool Imprime_Lignes(QPrinter &imprimante, const std::vector<QString> &lignes);

/// Courier New, or a fixed-pitch font of the same measures, bold, of 9 points. If the widest line would not fit the
/// page the points give way, not the text.
QFont Police_D_Impression(QPrinter &imprimante, const std::vector<QString> &lignes);
