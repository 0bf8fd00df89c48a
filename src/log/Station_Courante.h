#pragma once

#include "log/Diplome.h"

#include <QString>

/// The mark of a first installation, and the year of a challenge that was not chosen yet.
inline constexpr QStringView indicatif_absent = u"FXXXX";
inline constexpr QStringView annee_absente = u"2000";

/// Whose log is open, and which.
struct Station_Courante {
    /// Current call sign in its stored form, `_` for `/`.
    QString indicatif = indicatif_absent.toString();
    /// Current award: the one last opened with Enter in Dip_A, not the text that Dip_A shows. Only a start with a free
    /// text left in Dip_A has none.
    std::optional<Diplome> diplome;
    QString annee_ch_dfcf = annee_absente.toString();
    QString annee_ch_dmf = annee_absente.toString();

    /// The current year of a challenge; any other award has none.
    [[nodiscard]] std::optional<QStringView> Annee(std::optional<Diplome> challenge) const;
    QString &Annee_Challenge(Diplome challenge);

    /// The log of an award for this call sign and the years in force.
    [[nodiscard]] QString Log(std::optional<Diplome> de) const;
    [[nodiscard]] QString Log_Courant() const { return Log(diplome); }
};
