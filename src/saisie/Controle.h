#pragma once

#include <QObject>
#include <QString>

namespace controles {

Q_NAMESPACE

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
    Recherche,
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
    // The option menus.
    Mnu_Date_Auto_Oui,
    Mnu_Date_Auto_Non,
    Mnu_Sep_Oui,
    Mnu_Sep_Non,
    // The screen itself, whose text is its title.
    Main,
};
Q_ENUM_NS(Controle)

} // namespace controles

using controles::Controle;

inline constexpr std::size_t nombre_controles = static_cast<std::size_t>(Controle::Main) + 1;

/// The control's name on the screen.
QString Nom(Controle controle);

/// The entry fields of the chain, Dip_A to QSL_A.
constexpr bool Est_Champ(Controle controle)
{
    return controle <= Controle::QSL_A;
}
