#pragma once

#include "diplomes/modele/Choix_Diplome.h"
#include "ecrans/Ecran.h"

#include <map>

class QButtonGroup;
class QComboBox;
class QWidget;
struct Poste;

namespace diplomes {

/// The choice screen of any award that is entered through one. It stays open behind the sheet.
class Ecran_Choix : public Ecran {
    Q_OBJECT

public:
    /// `choix` must outlive the screen.
    Ecran_Choix(Poste &poste, const Choix_Diplome &choix);

private:
    QWidget *Cadre(const Groupe_Options &groupe, QButtonGroup *options);
    QWidget *Bouton_Afficher(const QButtonGroup *options);
    QWidget *Selecteur(const Option_Diplome &option);
    void Montre_Selecteur(int indice);
    void Affiche(int indice);

    Poste &poste_;
    const Choix_Diplome &choix_;
    std::map<int, QComboBox *> selecteurs_; ///< by the index of their option
};

} // namespace diplomes
