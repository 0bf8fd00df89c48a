#pragma once

#include <QDateTime>

/// The system's clock.
class Horloge {
public:
    virtual ~Horloge() = default;
    [[nodiscard]] virtual QDateTime Utc() const = 0;
    [[nodiscard]] virtual QDateTime Locale() const = 0;
};
