#pragma once

#include <QString>

#include <array>
#include <vector>

namespace diplomes {

/// A step of a canal board: its label, what is missing to it, and the button of its ADIF file.
struct Palier {
    QStringView etiquette;
    QStringView texte; ///< "Palier 25%", which the name of the file takes too
    QStringView etiquette_manque;
    QStringView bouton;
    bool atteint = false;
    int manque = 0;
};

/// All that the board of a canal shows. `rangs` are in the order of the log.
struct Etat_Challenge {
    QString entete;
    std::vector<QString> rangs;
    std::array<Palier, 4> paliers;
};

/// The header above the rows.
inline constexpr QStringView colonnes_challenge =
    u"   Nb    Ref           Nom de l'ouvrage               Date   Indicatif     QSL";

} // namespace diplomes
