#pragma once

#include <QStringView>

#include <span>

/// What an entry of the menu tree does.
enum class Genre_Entree {
    Menu,        ///< opens a menu; the entries behind it up to the next Menu or Barre belong to it
    Barre,       ///< stands in the menu bar itself and opens a screen or runs a command
    Sous_Menu,   ///< the Option entries behind it belong to it
    Option,      ///< checkable, the main screen's own
    Propre,      ///< an action of the main screen itself
    Ecran,       ///< opens the screen `cible`
    Ecran_Modal, ///< the same, blocking
    Commande,    ///< runs the command `cible`
    Barre_Ecran, ///< Barre with a screen
    Separateur,
};

struct Entree_Menu {
    Genre_Entree genre;
    QStringView nom; ///< the action's name
    QStringView libelle;
    QStringView cible; ///< screen or command
};

/// The whole menu tree in its order.
std::span<const Entree_Menu> Menu_Principal();
