#pragma once

#include "plateforme/Lignes_Texte.h"

#include <QString>

struct Poste;

/// The text by which a Ligne_Log takes its place: "AAAAMMJJHHMM", blanks, call sign to reference, mode to QSL flag.
/// A year that is no number counts as 00.
QString Cle_De_Tri(QStringView ligne_log);

/// The text of the log in order of time, then of call sign and of what follows, without regard to case. Each
/// line is composed anew from its fields, and its date and time get their "/" and ":" back.
QString Texte_Trie(const Lignes_Texte &lignes);

/// Puts the log of the current award in that order.
void Trie_Log(Poste &poste);
