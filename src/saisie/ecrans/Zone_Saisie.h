#pragma once

#include "saisie/Vue_Saisie.h"

#include <QWidget>

#include <map>

/// The controls of the main screen by their enumerator.
using Controles = std::map<Controle, QWidget *>;

/// The band above the entry: station, clocks and mode of entry.
QWidget *Bandeau_Station(Controles &controles, QWidget *parent);

/// The entry fields in the order of the chain, and the buttons beneath them, in the frame that names the award.
QWidget *Zone_Saisie(Controles &controles, QWidget *parent);

/// The entry fields of the chain, Dip_A to QSL_A.
constexpr bool Est_Champ(Controle controle)
{
    return controle <= Controle::QSL_A;
}
