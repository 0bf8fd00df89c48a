#pragma once

#include "ecrans/Ecran.h"

#include <memory>

class Vue_Web;
struct Poste;

/// A screen with a web view, WebBrowser1.
class Ecran_Web : public Ecran {
    Q_OBJECT

public:
    Ecran_Web(Poste &poste, const QString &nom, const QString &titre);
    ~Ecran_Web() override;

protected:
    [[nodiscard]] Poste &Le_Poste() { return poste_; }
    [[nodiscard]] QWidget *Controle_Web();
    /// Sends the view to the page address of the common state; without one it says that no host is configured.
    void Montre_Page();

private:
    Poste &poste_;
    std::unique_ptr<Vue_Web> vue_;
};
