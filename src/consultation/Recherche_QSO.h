#pragma once

#include "plateforme/Lignes_Texte.h"

#include <QString>

#include <optional>
#include <vector>

struct Poste;

/// What a search compares; the values are the places of the options.
enum class Recherche_Par { Indicatif, Reference, Dpt };

/// Why a text cannot be looked for; nullopt if it can.
std::optional<QString> Refus_Recherche(Recherche_Par par, QStringView texte);

/// The text without the line break of an earlier Enter in front of it.
QString Sans_Saut_De_Ligne(const QString &texte);

/// True if an entry of Liste_QSO has `texte`: anywhere in its call sign (of which only the first ten characters are
/// looked at) or in its reference, both against the text in capitals; or as its department, letter for letter.
bool QSO_Repond(QStringView ligne_affichage, Recherche_Par par, QStringView texte);

/// The entries of Liste_QSO that have `texte`, in their order. A text that is refused, or that no entry has, is told in
/// a box; nullopt if it was refused.
std::optional<std::vector<QString>> Recherche_QSO(Poste &poste, Recherche_Par par, const QString &texte);

/// Selects the entry of Liste_QSO with the number of a hit; a number that the log no longer has selects nothing.
void Retourne_Au_QSO(Poste &poste, QStringView ligne_affichage);
