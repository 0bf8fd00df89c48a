#pragma once

#include "log/Diplome.h"
#include "plateforme/Lignes_Texte.h"

#include <QString>

#include <vector>

struct Poste;

/// The lines that hold `indicatif` anywhere and do not end with the mark of a card. The match is a plain search, so a
/// longer call sign, a name or a reference with the text counts; an empty text matches every line. An empty line is no
/// QSO.
std::vector<QString> Sans_Carte(const Lignes_Texte &lignes, QStringView indicatif);

/// The new text of a log: every line equal to one of `cochees` has the mark in the place of its last character.
QString Texte_Marque(const Lignes_Texte &lignes, const std::vector<QString> &cochees);

/// The QSOs of one correspondent and the log they were found in.
struct Cartes_Attendues {
    QString log;
    std::vector<QString> lignes;
};

/// Looks through the log of `diplome`; the years of the challenges are read anew. Throws Erreur_Execution if it is
/// absent.
Cartes_Attendues Cherche_Cartes(Poste &poste, Diplome diplome, QStringView indicatif);

/// Marks the ticked lines in `log` as it is on the disk now, so that a QSO stored since the search is kept. Reloads the
/// current award, of which the log may be another, and selects its last QSO. False, with nothing marked, if no copy of
/// the log could be kept and the operator gave up.
bool Marque_Cartes(Poste &poste, const QString &log, const std::vector<QString> &cochees);
