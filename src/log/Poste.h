#pragma once

#include "plateforme/Ports.h"

class Ecran_Principal;
struct Etat_Commun;

/// The operating position: the ports, the common state and the main screen, as operations take them.
struct Poste : Ports {
    Etat_Commun &etat;
    Ecran_Principal &ecran;
};
