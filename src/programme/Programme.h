#pragma once

#include "log/Etat_Commun.h"
#include "plateforme/Vue_Web.h"
#include "plateforme/disque/Dossier_Disque.h"
#include "plateforme/disque/Reglages_Qt.h"
#include "plateforme/qt/Boites_Qt.h"
#include "plateforme/qt/Imprimante_Qt.h"
#include "plateforme/qt/Telechargement_Qt.h"
#include "programme/Registre.h"
#include "saisie/ecrans/Main.h"

class Horloge;

/// The whole program on one folder: the real ports, the common state, the screens.
class Programme {
public:
    Programme(const QString &repertoire, const Horloge &horloge);

    /// No station was ever set: an installation that was cut off is still to be ended.
    [[nodiscard]] bool Est_Neuf();
    /// Lays the starter files, as an installer would.
    void Installe();
    /// Runs the start-up; the main screen is then open.
    void Ouvre();
    /// Asks for the import of a file, full path; a yes opens the screen ADIF with it chosen. A file that is not there
    /// is told, and that a station is needed first.
    void Propose(const QString &fichier_adif);

    [[nodiscard]] Main &Ecran() { return ecran_; }
    [[nodiscard]] Registre &Les_Ecrans() { return registre_; }

private:
    Boites_Qt boites_;
    Dossier_Disque dossier_;
    Reglages_Qt reglages_;
    Telechargement_Qt telechargement_;
    Registre registre_;
    Imprimante_Qt imprimante_;
    std::unique_ptr<Vues_Web> vues_web_;
    Etat_Commun etat_;
    Main ecran_;
};
