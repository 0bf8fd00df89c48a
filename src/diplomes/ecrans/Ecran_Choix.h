#pragma once

#include "diplomes/Choix_Diplome.h"
#include "ecrans/Ecran.h"

class QButtonGroup;
class QWidget;

/// The choice screen of any award that is entered through one. It stays open behind the sheet.
class Ecran_Choix : public Ecran {
    Q_OBJECT

public:
    /// `choix` must outlive the screen.
    Ecran_Choix(Poste &poste, const Choix_Diplome &choix);

private:
    QWidget *Cadre(const Groupe_Options &groupe, QButtonGroup *options);
    QWidget *Bouton_Afficher(const QButtonGroup *options);
    void Affiche(int indice);

    Poste &poste_;
    const Choix_Diplome &choix_;
};
