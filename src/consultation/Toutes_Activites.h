#pragma once

#include "plateforme/Lignes_Texte.h"

#include <QString>

#include <optional>
#include <vector>

struct Poste;

/// The heading above the list of all awards.
extern const QStringView entete_toutes_activites;

/// Why a call sign cannot be looked for; nullopt if it can.
std::optional<QString> Refus_Activateur(QStringView indicatif);

/// Adds the lines of one activator, behind two blanks. A line that holds `texte` anywhere, be it in its name or
/// reference, makes its station the activator, until another such line does; the lines of the activator are added.
void Ajoute_Activites(std::vector<QString> &entrees, const Lignes_Texte &log, QStringView texte,
                      std::optional<QString> &activateur);

/// Code and lines of every award of the current station, in the order of Dip_A; the years of the challenges are read
/// anew. Throws Erreur_Execution if one of the logs is absent.
std::vector<QString> Toutes_Activites(Poste &poste, QStringView texte);
