#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace diplomes {

enum class Teinte {
    Ordinaire,
    Attente, ///< red
    Atteint  ///< green
};

/// One label as the screen shows it.
struct Etiquette {
    QString nom;
    QString texte;
    Teinte teinte = Teinte::Ordinaire;
};

/// A button "Voir la liste"; without a name there is none.
struct Bouton_Etat {
    QString nom = {};
    bool actif = false;
};

/// One tier: its status, the labels of its numbers from left to right, its button and the part of it that is done, from
/// 0 to 1, where that can be told.
struct Etat_Niveau {
    Etiquette etat;
    std::vector<Etiquette> detail;
    Bouton_Etat bouton;
    std::optional<double> avancement;
};

/// All that a sheet shows, in the order of the screen.
struct Etat_Fiche {
    QString titre;  ///< of the window
    QString entete; ///< the heading Label2
    std::vector<Etat_Niveau> niveaux;
};

/// The label of that name among the statuses and the details; nullptr if there is none.
Etiquette *Cherche_Etiquette(Etat_Fiche &etat, QStringView nom);

} // namespace diplomes
