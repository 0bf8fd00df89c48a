#pragma once

#include "log/Ecran_Principal.h"

#include <QString>

/// The controls of the main screen that the entry works on. The enumerator is the control's name.
enum class Controle {
    // The chain, in its order.
    Dip_A,
    Bande_A,
    Ind_A,
    Prenom_A,
    Ref_A,
    Dpt_A,
    Date_A,
    Heure_A,
    Mode_A,
    RSTR_A,
    RSTE_A,
    Nom_A,
    QSL_A,
    // Buttons.
    Valide_A,
    Efface_A,
    Annule_Saisie,
    Ajout_QSO,
    Detail,
    Detail_1,
    // Labels and frames.
    Frame3,
    Nom_L,
    Label1,
    Type_Ref,
    Mode_Aff,
    Label15,
    Label33, ///< UTC date of the last tick
    Label34, ///< local time of the last tick
    Label37, ///< UTC time of the last tick
    I_Station,
    Label_Liste_QSO,
};

/// The main screen as the entry works on it.
///
/// No step of the entry sets a colour: the control with the focus bears the current colour, all others the finished
/// one, and that is the screen's own doing.
class Vue_Saisie : public Ecran_Principal {
public:
    [[nodiscard]] virtual QString Texte(Controle controle) const = 0;
    virtual void Ecrit(Controle controle, const QString &texte) = 0;

    /// The place of a combo's text among its entries; -1 for a free text.
    [[nodiscard]] virtual int Indice_Combo(Controle combo) const = 0;
    /// The number of a combo's entries.
    [[nodiscard]] virtual int Nombre_Combo(Controle combo) const = 0;
    /// -1 empties the combo.
    virtual void Choisit(Controle combo, int indice) = 0;

    [[nodiscard]] virtual bool QSL_Coche() const = 0;
    virtual void Coche_QSL(bool coche) = 0;

    [[nodiscard]] virtual bool Est_Actif(Controle controle) const = 0;
    virtual void Active(Controle controle, bool actif) = 0;
    /// The control must be enabled. The text of a field or combo is selected, so that typing replaces it.
    virtual void Donne_Focus(Controle controle) = 0;
    void Va_A_Dip_A() override { Donne_Focus(Controle::Dip_A); }
    /// The cursor goes behind the text of a field or combo, and nothing is selected: typing adds to it.
    virtual void Curseur_A_La_Fin(Controle champ) = 0;

    /// The option menus: which of the two entries of each is checked.
    virtual void Coche_Saisie_Differee(bool differee) = 0;
    virtual void Coche_Separateur_Auto(bool automatique) = 0;

    virtual void Titre(const QString &titre) = 0;
    virtual void Montre_Ecran() = 0;
};
