#pragma once

#include <QString>

#include <functional>
#include <vector>

class QWidget;
struct Poste;

/// A screen by its name, for the register.
struct Ecran_A_Inscrire {
    QString nom;
    std::function<QWidget *()> fabrique;
};

/// Every sheet, list and choice screen of the award tables, and the screens of single awards. `poste` must outlive the
/// makers.
std::vector<Ecran_A_Inscrire> Ecrans_Diplomes(Poste &poste);
