#pragma once

#include <vector>

class QPrinter;

/// The pages that the user chose of `nombre`, counted from 0, in the order in which they leave: what the printer or its
/// server does by itself (copies, order) is left to it. Empty if the chosen range lies behind the last page.
std::vector<int> Feuilles(const QPrinter &imprimante, int nombre);
