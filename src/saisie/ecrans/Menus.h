#pragma once

#include <QString>

#include <functional>

class Commandes;
class Ecrans;
class QAction;
class QMenuBar;

/// Fills the menu bar with the whole menu tree; each entry is a QAction of its given name. An entry whose screen or
/// command is not registered is disabled.
void Construit_Menus(QMenuBar &barre, Ecrans &ecrans, Commandes &commandes);
