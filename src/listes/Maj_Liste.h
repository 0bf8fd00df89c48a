#pragma once

#include <QStringView>

#include <span>

struct Poste;

/// One entry of the menu that fetches a list.
struct Maj {
    QStringView menu;
    QStringView serveur; ///< key of the host
    QStringView chemin;  ///< on the server
    QStringView fichier;
    QStringView cle; ///< of the setting that remembers the revision, per station
    QStringView defaut;
    QStringView (*revision)(QStringView premiere_ligne);
    QStringView identique;  ///< the revision and ")" follow
    QStringView differente; ///< the revision follows
};

/// DOHF, TDC, FFF, DFCF, DCF, DPLF, PC.
std::span<const Maj> Majs_Liste();

/// Fetches the list, tells whether its revision differs from the one remembered and remembers it. Every step runs
/// whatever became of the one before: without a connection the list that is there is told.
void Maj_Liste(Poste &poste, const Maj &maj);
