#pragma once

#include "programme_au_hasard/Ecran_Vu.h"
#include "programme_au_hasard/Hasard.h"

#include <QWidget>

#include <functional>

/// What a gesture of the entry screen makes of the log that it names.
enum class Effet { Autre, Range, Supprime };

/// One gesture of the operator, and the logs that the screen in front of him named when he made it.
struct Geste {
    QString recit;
    std::function<void()> fait = {};
    std::set<QString> nommes = {};
    Effet effet = Effet::Autre;
    bool ouvre_dip = false;      ///< Enter in Dip_A, or a choice in its open list: the award that is open then is named
    bool sur_les_combos = false; ///< the wheel: no combo may change
    QString montre = {};         ///< the screen that has to name the award that is open then
};

/// The driver of the main screen and of the windows around it.
class Operateur {
public:
    Operateur(QWidget &principal, Hasard &hasard) : principal_(principal), hasard_(hasard) {}

    Geste Prochain(const Ecran_Vu &vu);

private:
    Geste Saisit(const Ecran_Vu &vu);
    Geste Ouvre_Un_Diplome(const Ecran_Vu &vu);
    Geste Dans_La_Liste();
    Geste Un_Bouton(const Ecran_Vu &vu, const QString &nom);
    Geste Une_Touche();
    Geste Tourne_La_Molette();
    Geste Ouvre_Un_Combo(const Ecran_Vu &vu);
    Geste Un_Menu(const Ecran_Vu &vu);
    Geste Une_Fenetre(const Ecran_Vu &vu);
    Geste Dans_La_Fenetre(QWidget &fenetre, const Ecran_Vu &vu);
    Geste Presse(QWidget &fenetre, QWidget &bouton, const Ecran_Vu &vu);

    /// What the operator would type in an entry field.
    QString Texte_Pour(const QString &champ, const Ecran_Vu &vu);

    QWidget &principal_;
    Hasard &hasard_;
    int suite_de_saisie_ = 0; ///< gestures that go on with the entry of one QSO
    QString log_des_cartes_;  ///< the log that Multi_QSL was last asked to search
};
