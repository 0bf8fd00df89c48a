#pragma once

#include "log/Diplome.h"
#include "plateforme/Lignes_Texte.h"

#include <QString>

#include <functional>
#include <vector>

struct Poste;

/// Gives the name of a castle for the five characters of its reference.
using Nom_De_Site = std::function<QString(QStringView site)>;

/// The lines of `challenge`, Ch_DFCF or Ch_DMF, from the log of the sibling program: each of its QSOs of the year (two
/// digits) and of the challenge's kind, with the letter "A" behind its site, or the first line that the challenge has
/// for the site. An old line of Ch_DFCF without a name gives way to the new one. `nom` is asked for Ch_DFCF only.
std::vector<QString> Activations_Trelune(Diplome challenge, const Lignes_Texte &trelune, const Lignes_Texte &anciennes,
                                         QStringView annee, const Nom_De_Site &nom);

/// Makes the log of the current challenge, the one that Liste_QSO shows, anew from the log of the sibling program. A
/// challenge line without a line there goes: the sibling is the reference.
void Fusion_Trelune(Poste &poste);
