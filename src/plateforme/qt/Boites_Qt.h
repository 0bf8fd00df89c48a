#pragma once

#include "plateforme/Boites.h"

/// The boxes as QMessageBox, modal over the window in front. A question whose window is closed meanwhile is answered
/// "Non".
class Boites_Qt : public Boites {
public:
    void Message(const QString &texte) override;
    bool Question(const QString &texte) override;
};
