#pragma once

#include "diplomes/modele/Etat_Fiche.h"

class QLabel;

namespace diplomes {

/// A label of a sheet, in the colour of its state.
QLabel *Montre_Etiquette(const Etiquette &etiquette);

/// The heading of a sheet, a list or a choice screen: bold, 12 points.
QLabel *Grand_Titre(const QString &nom, const QString &texte);

} // namespace diplomes
