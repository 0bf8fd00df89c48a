#pragma once

#include "log/Diplome.h"

#include <QString>

#include <vector>

class Dossier;

/// What Liste_References shows: a title, a header and one entry for each reference of a list.
struct Vue_References {
    QString titre = {};
    QString entete = {};
    std::vector<QString> entrees = {};
};

/// The references of Liste_DCF.csv for DCF and of Liste_DPLF.txt for DPLF; nothing for any other award. Throws
/// Erreur_Execution for an absent list and for a line with too few separators.
Vue_References Lit_References(const Dossier &dossier, std::optional<Diplome> diplome);
