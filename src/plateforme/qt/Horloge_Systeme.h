#pragma once

#include "plateforme/Horloge.h"

class Horloge_Systeme : public Horloge {
public:
    [[nodiscard]] QDateTime Utc() const override { return QDateTime::currentDateTimeUtc(); }
    [[nodiscard]] QDateTime Locale() const override { return QDateTime::currentDateTime(); }
};
