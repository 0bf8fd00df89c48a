#pragma once

#include <string>

/// Reads the bytes as an ADIF file in every way the import has and says what is wrong with the result: a line that has
/// not its 111 columns, or a difference to the slow reading. Empty if nothing is.
std::string Defaut_De_L_Import(const std::string &octets);
