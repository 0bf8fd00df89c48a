#pragma once

#include "Lecture_Lente.h"

/// The program's own reader over the bytes of a file, with the result in the form of the slow one.
namespace rapide {

lente::Essai Importe(const std::string &octets, const std::string &code, bool multi);

} // namespace rapide
