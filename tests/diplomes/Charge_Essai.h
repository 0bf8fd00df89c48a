#pragma once

#include "Fiche_Essai.h"
#include "diplomes/Charge_Fiche.h"
#include "diplomes/Charge_Liste.h"
#include "diplomes/Sorties_Liste.h"
#include "diplomes/tables/Tables.h"

#include <gtest/gtest.h>

#include <random>

using namespace diplomes;

// Sheets and lists over a log on the disk.

inline Etat_Fiche Fiche_De(Poste_Essai &essai, const Fiche_Diplome &fiche, const QString &log,
                           const Lignes_Essai &lignes)
{
    essai.fichiers.Pose(log, En_Octets(lignes));
    return Charge_Fiche(essai.poste, fiche);
}

inline Etat_Liste Liste_De(Poste_Essai &essai, const Liste_Diplome &liste, const QString &log,
                           const Lignes_Essai &lignes)
{
    essai.fichiers.Pose(log, En_Octets(lignes));
    return Charge_Liste(essai.poste, liste);
}

/// One of the texts, each as likely as the others.
inline QString Au_Hasard(std::mt19937 &hasard, const QStringList &textes)
{
    return textes[std::uniform_int_distribution<qsizetype>(0, textes.size() - 1)(hasard)];
}

/// The lines that a list sends to the printer.
inline std::vector<QString> Page_De(Poste_Essai &essai, const Liste_Diplome &liste, const Etat_Liste &etat)
{
    Imprime_Liste(essai.poste, liste, etat);
    return essai.imprimante.documents.back();
}
