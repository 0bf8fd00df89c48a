#pragma once

#include "plateforme/Boites.h"

/// The boxes as QMessageBox, modal over the window in front.
class Boites_Qt : public Boites {
public:
    void Message(const QString &texte) override;
    bool Question(const QString &texte) override;
};
