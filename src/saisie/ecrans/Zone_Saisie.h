#pragma once

class Controles;
class QWidget;

/// The band above the entry: station, clocks and mode of entry.
QWidget *Bandeau_Station(Controles &controles, QWidget *parent);

/// The entry fields in the order of the chain, and the buttons beneath them, in the frame that names the award.
QWidget *Zone_Saisie(Controles &controles, QWidget *parent);
