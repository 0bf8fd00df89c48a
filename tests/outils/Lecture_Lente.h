#pragma once

#include <QString>

#include <string>
#include <vector>

/// A slow import for comparison: each rule in turn, by searches in text that count places from 1 and copies of what
/// stands between them. It shares nothing with the reader it is compared to.
namespace lente {

struct Essai {
    std::vector<std::string> messages;
    std::vector<std::string> lignes;
    bool echec = false;
};

/// `octets` are the bytes of the file, Windows-1252.
Essai Importe(const std::string &octets, const std::string &code, bool multi);

} // namespace lente
