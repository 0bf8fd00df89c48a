#pragma once

#include "plateforme/Lignes_Texte.h"

#include <QString>

#include <map>
#include <span>

struct Poste;

/// Field name -> text, for the fields of a detail screen that take a text; the others stay as they are.
using Textes_Detail = std::map<QString, QString>;

struct Champ_Detail {
    QStringView nom;
    QStringView etiquette;
};

/// A screen that shows what a downloaded list says of one reference.
struct Fiche_Detail {
    QStringView ecran;
    QStringView fichier;
    qsizetype colonnes_ref; ///< of Ref in the Ligne_Affichage that count
    std::span<const Champ_Detail> champs;
    /// The texts of the record whose key is the reference; empty if there is none. Throws Erreur_Execution
    /// (Cause::Format_Liste) for a line whose fields cannot be cut.
    Textes_Detail (*trouve)(const Lignes_Texte &lignes, QStringView reference);
};

extern const Fiche_Detail fiche_detail_dfcf;
extern const Fiche_Detail fiche_detail_fff;
extern const Fiche_Detail fiche_detail_pc;

/// The reference of the selected QSO, as the screen looks for it: trimmed; empty without a selection.
QString Reference_Selectionnee(const Poste &poste, const Fiche_Detail &fiche);

/// Looks for a reference in the list as it is on the disk. One that is not there is told in a box, and Ref_I takes it.
/// Throws Erreur_Execution if the list is absent.
Textes_Detail Cherche_Detail(Poste &poste, const Fiche_Detail &fiche, QStringView reference);
