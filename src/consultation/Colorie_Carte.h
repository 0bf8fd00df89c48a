#pragma once

#include "plateforme/Lignes_Texte.h"

#include <QString>

#include <array>

struct Poste;

/// The colours of the boxes, red first.
enum class Couleur_Dep : unsigned {
    Non_Contacte = 0xFFFF80,
    Non_Confirme = 0xFFC0C0,
    Confirme = 0x80FF80, ///< on the map of one work: its department
};

/// Box 1 stands at 0. Box 96 is Corsica's 2A, box 97 its 2B.
inline constexpr std::size_t nombre_dep = 99;
using Couleurs_Carte = std::array<Couleur_Dep, nombre_dep>;

struct Bilan_Carte {
    int total = 0;
    int non_confirmes = 0;
    int confirmes = 0;
};

/// The text of a box, 1 to 99: two characters.
QString Texte_Dep(int numero);

/// How far a log has reached each department. A confirmation is never taken back by a later QSO. A line whose
/// department does not begin with a digit is passed over. Throws Erreur_Execution for one that is no number or has no
/// box.
Couleurs_Carte Colorie(const Lignes_Texte &log);

Bilan_Carte Compte(const Couleurs_Carte &couleurs);

/// The departments without a contact, of 96 whatever the award: below zero for a log with numbers that are none.
int Non_Contactes(const Bilan_Carte &bilan);

struct Carte_Contactee {
    Couleurs_Carte couleurs;
    Bilan_Carte bilan;
};

/// The log of the current award as it is on the disk. Throws Erreur_Execution if it is absent.
Carte_Contactee Colorie_Carte(const Poste &poste);

/// The box whose text is `departement` marked; none if no box has that text.
Couleurs_Carte Marque_Departement(QStringView departement);
