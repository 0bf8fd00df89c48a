#pragma once

#include "Operations.h"
#include "Terrain.h"

#include <QStringList>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// How a run ended.
struct Compte_Rendu {
    enum class Fin { Achevee, Erreur, Tuee, Perdue } fin = Fin::Perdue;
    QString erreur;       ///< what ended it
    QStringList messages; ///< what the operator was told
    QList<QByteArray> appels;
    std::int64_t millisecondes = 0;
};

/// Plays `geste` in a process of its own. Gives up after ten seconds.
Compte_Rendu Joue(const Terrain &terrain, Geste geste, Plan_De_Panne plan = {});

struct Bilan {
    std::size_t points = 0;
    std::size_t passes = 0;
    std::int64_t millisecondes = 0;
    std::vector<std::string> fautes;
};

/// Plays an operation through every failure at every file call, `part` of 20 of them.
Bilan Eprouve(const Operation &operation, int part);
