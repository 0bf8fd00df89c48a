#pragma once

#include "log/Diplome.h"
#include "log/Ligne_Log.h"
#include "plateforme/Lignes_Texte.h"

#include <span>

class Index_Liste;
struct Poste;
struct Recherche;

/// One entry of the menu that writes the names of a log anew from its list.
struct Maj_Nom {
    QStringView menu;
    Diplome diplome; ///< the award it is offered for
    const Recherche *recherche;
    /// The new Nom (for some awards also Dpt) of a QSO; it gets `Ref` trimmed.
    void (*renomme)(Champs_QSO &champs, QStringView ref, Index_Liste &liste);
    QStringView avertissement; ///< before anything else; empty for most
    QStringView refus;
    QStringView cloture;
};

/// DOHF, DFCF, DPLF, FFF, PC.
std::span<const Maj_Nom> Majs_Nom();

/// The text of a log with its names renewed. Every line is put together again in its 111 columns. Throws
/// Erreur_Execution as the look-ups do; a list that no line asks for is not opened.
QString Texte_Renomme(const Lignes_Texte &log, const Maj_Nom &maj, Index_Liste &liste);

/// Renews the names of the current log, if it is that of the row's award; else refuses in words. Throws
/// Erreur_Execution with the log as it was.
void Maj_Noms(Poste &poste, const Maj_Nom &maj);
