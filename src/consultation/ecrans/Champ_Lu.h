#pragma once

#include "consultation/Fiche_Detail.h"

class QFormLayout;
class QLineEdit;

/// Adds a row with a field that shows a text and cannot be changed, `caracteres` wide at least; the text can be
/// selected and copied.
QLineEdit *Ajoute_Champ_Lu(QFormLayout &formulaire, const Champ_Detail &champ, int caracteres);

/// Shows a text from its beginning, also one that is longer than the field.
void Montre_Debut(QLineEdit &champ, const QString &texte);
