#pragma once

#include <QString>

struct Poste;

// The settings of the current station, section "Setup <call>".

QString Section_Station(QStringView indicatif);
QString Lit_Station(const Poste &poste, QStringView cle, QStringView defaut);
void Ecrit_Station(Poste &poste, QStringView cle, const QString &valeur);

// The settings that hold across stations, section "Setup ".

QString Lit_General(const Poste &poste, QStringView cle, QStringView defaut);
void Ecrit_General(Poste &poste, QStringView cle, const QString &valeur);

/// Takes the two challenge years of the current station into the common state.
void Lit_Annees_Challenge(Poste &poste);
