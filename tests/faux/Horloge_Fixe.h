#pragma once

#include "plateforme/Horloge.h"

#include <QTimeZone>

/// A clock that stands still: 15 November 2026, 14:48:30 UTC, one hour ahead locally, until a test moves it.
class Horloge_Fixe : public Horloge {
public:
    [[nodiscard]] QDateTime Utc() const override { return utc; }
    [[nodiscard]] QDateTime Locale() const override { return utc.toTimeZone(QTimeZone(3600)); }

    QDateTime utc{QDate(2026, 11, 15), QTime(14, 48, 30), Qt::UTC};
};
