#pragma once

#include <QString>

#include <optional>

/// What a look-up gives for a reference; nullopt leaves the caller's text as it was.
struct Reference_Trouvee {
    std::optional<QString> nom = {};
    std::optional<QString> dpt = {};
};
