#pragma once

class Boites;
class Dossier;
class Ecrans;
class Horloge;
class Imprimante;
class Reglages;
class Telechargement;
class Vues_Web;

/// What the program needs of the platform, handed by reference to whoever works with it.
struct Ports {
    Dossier &dossier;
    Reglages &reglages;
    const Horloge &horloge;
    Boites &boites;
    Ecrans &ecrans;
    Imprimante &imprimante;
    Telechargement &telechargement;
    Vues_Web &vues_web;
};
