#pragma once

#include "log/Diplome.h"
#include "plateforme/Lignes_Texte.h"

#include <QString>

#include <vector>

struct Poste;

/// The lines of a challenge from those of its award: each source line of the year (two digits), with the letter "A"
/// behind its site, or the first line that the challenge has for the site.
std::vector<QString> Activations(const Lignes_Texte &source, const Lignes_Texte &challenge, QStringView annee);

/// Makes the log of the current challenge anew from the log of its award, DFCF or DMF. Where Dip_A names another
/// award, the operator is asked for one and nothing is written. A challenge line without a source
/// line of the year goes.
void Fusion_Activite(Poste &poste, Diplome de);
