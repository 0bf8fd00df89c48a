#pragma once

#include "log/Diplome.h"
#include "plateforme/Lignes_Texte.h"

#include <QString>

/// What the log operations ask of the main screen.
class Ecran_Principal {
public:
    virtual ~Ecran_Principal() = default;

    /// Liste_QSO shows one Ligne_Affichage a line of the log.
    virtual void Remplit_Liste(Lignes_Texte lignes) = 0;
    /// The log lines that Liste_QSO shows.
    [[nodiscard]] virtual const Lignes_Texte &Liste_QSO() const = 0;
    /// Selects the last entry and runs the list's click handling for it; an empty list selects nothing.
    virtual void Selectionne_Derniere() = 0;
    /// Selects the entry of that rank, counted from 0, and runs the list's click handling for it; a rank outside the
    /// list selects nothing.
    virtual void Selectionne_QSO(std::size_t rang) = 0;
    /// The Ligne_Affichage of the entry that is selected; empty if none is.
    [[nodiscard]] virtual QString QSO_Selectionne() const = 0;
    /// The Ligne_Affichage of the entry last clicked, or selected by the program, also after the list was filled anew;
    /// empty until the first click.
    [[nodiscard]] virtual QString Ligne_Selectionnee() const = 0;
    virtual void Active_Ind_A() = 0;

    /// The award that Dip_A names, which need not be the current one; nullopt for a text that is none.
    [[nodiscard]] virtual std::optional<Diplome> Dip_A() const = 0;
    /// Puts the focus there.
    virtual void Va_A_Dip_A() = 0;
    /// The text of Ref_A: the reference on the entry line.
    [[nodiscard]] virtual QString Ref_A() const = 0;
    /// The text of I_Station: the call sign as shown.
    [[nodiscard]] virtual QString I_Station() const = 0;
    /// Clears the entry back to rest, with the focus on Bande_A.
    virtual void Efface_Saisie() = 0;
};
