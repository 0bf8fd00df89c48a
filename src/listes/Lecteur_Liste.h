#pragma once

#include "plateforme/Lignes_Texte.h"

#include <QStringView>

#include <array>
#include <optional>

/// One record of a list as look-ups read it: the fields of a semicolon line, or the lines of a lighthouse. The texts
/// are views into the list.
struct Fiche_Liste {
    std::array<QStringView, 10> champs;

    /// Counted from 1, as the fields are named.
    QStringView operator[](std::size_t champ) const { return champs[champ - 1]; }
};

/// How one reader goes through its list.
struct Lecture {
    enum class Forme { Points_Virgules, Cinq_Lignes };

    QStringView fichier;
    Forme forme = Forme::Points_Virgules;
    std::size_t lignes_passees = 0;
    bool vides_ignorees = false;
    std::size_t separateurs = 0; ///< that each line must have
    /// A line whose first field is empty is the end of the data, however few separators it has.
    bool finit_au_vide = false;
    /// The record that is the end of the data, and the one that is the last.
    bool (*finit_avant)(const Fiche_Liste &fiche) = nullptr;
    bool (*finit_apres)(const Fiche_Liste &fiche) = nullptr;
};

/// Gives the records of a list in the order of a scan.
class Lecteur_Liste {
public:
    Lecteur_Liste(const Lecture &lecture, Lignes_Texte lignes);

    /// nullopt at the end. Throws Erreur_Execution at a line with too few separators, and again at each further call: a
    /// scan does not get past it.
    std::optional<Fiche_Liste> Suivante();

private:
    [[nodiscard]] bool Coupe(Fiche_Liste &fiche) const;
    [[nodiscard]] bool Commence_Par_Un_Vide() const;
    void Saute_Vides();
    [[nodiscard]] std::size_t Pas() const;

    Lecture lecture_;
    Lignes_Texte lignes_;
    std::size_t rang_;
};
