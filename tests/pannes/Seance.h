#pragma once

#include "Terrain.h"
#include "faux/Poste_Essai.h"
#include "plateforme/disque/Reglages_Qt.h"
#include "prechargee/Pannes_Fichiers.h"
#include "saisie/Ecran_Du_Log.h"
#include "saisie/Saisie.h"

#include <optional>

/// The program without its screens: real files and real settings, boxes that are recorded and answered by the test.
struct Position {
    explicit Position(const QString &donnees);

    Dossier_Disque dossier;
    Reglages_Qt reglages;
    Horloge_Fixe horloge;
    Boites_Fausses boites;
    Ecrans_Faux ecrans;
    Imprimante_Fausse imprimante;
    Telechargement_Faux telechargement;
    Vues_Web_Fausses vues_web;
    Etat_Commun etat;
    Saisie saisie;
    Ecran_Du_Log ecran{saisie};
    Poste poste{{dossier, reglages, horloge, boites, ecrans, imprimante, telechargement, vues_web}, etat, ecran};
};

/// One run of the program in a process of its own. Calls are counted from Arme() on.
class Seance {
public:
    Seance(const Terrain &terrain, const Plan_De_Panne &plan);

    void Arme() const;
    /// The program, opened at the first call.
    Position &Le_Programme();
    [[nodiscard]] const Terrain &Le_Terrain() const { return terrain_; }
    /// What the operator was told so far, message after message.
    [[nodiscard]] QStringList Messages() const;
    void Dit(const QString &message) { messages_ += message; }

private:
    const Terrain &terrain_;
    Plan_De_Panne plan_;
    QByteArray surveilles_;
    QStringList messages_;
    std::optional<Position> programme_;
};
