#pragma once

#include <QStringView>

#include <cstddef>

/// The whole number that a text holds, blanks around it allowed.
/// Throws Erreur_Execution (Cause::Type) for an empty text or one that is no whole number.
int Entier(QStringView texte);

/// The number that the digits at the start of a text form, blanks before them passed over: "2A" is 2. A text that
/// begins with no digit is 0.
int Entier_De_Tete(QStringView texte);

/// `valeur` as an index of a table of `taille` entries.
/// Throws Erreur_Execution (Cause::Indice) below 0 and from `taille` on.
std::size_t Indice(int valeur, std::size_t taille);
