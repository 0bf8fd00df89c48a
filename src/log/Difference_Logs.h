#pragma once

#include "plateforme/Lignes_Texte.h"

#include <vector>

/// How a log would change if it became `copie` again, as bags of lines: their order does not count.
struct Difference_Logs {
    std::vector<std::size_t> reviendraient; ///< ranks in the copy, counted from 0
    std::vector<std::size_t> partiraient;   ///< ranks in the log as it is
};

Difference_Logs Difference(const Lignes_Texte &copie, const Lignes_Texte &actuel);
