#pragma once

#include "plateforme/Erreur_Execution.h"

#include <QStringView>

#include <array>
#include <optional>

/// The tags that the import looks for, in the order in which it works through them.
enum class Etiquette {
    CALL,
    STATE,
    NAME,
    SIG,
    QSO_DATE,
    TIME_ON,
    MODE,
    BAND,
    FREQ,
    RST_RCVD,
    RST_SENT,
    SIG_INFO,
    QSL_RCVD
};
inline constexpr std::size_t nombre_etiquettes = 13;

/// Where the tags stand in one record, found in one pass. A tag is taken at its first place and by the beginning of its
/// name ("<BAND_RX" is a BAND); SIG alone ends with its colon. The counts in the tags are ignored.
class Champs_ADIF {
public:
    explicit Champs_ADIF(QStringView enregistrement);

    [[nodiscard]] bool Contient(Etiquette etiquette) const { return Place(etiquette) >= 0; }

    /// What stands between the tag's ">" and the next "<", without the blanks around it; empty for a tag that is not
    /// there, nullopt for one whose value nothing ends. FREQ loses its last character, which should be a blank.
    [[nodiscard]] std::optional<QStringView> Valeur(Etiquette etiquette) const;

    /// The failure that a value without end is.
    static Erreur_Execution Sans_Fin(Etiquette etiquette);

private:
    [[nodiscard]] qsizetype Place(Etiquette etiquette) const { return places_[static_cast<std::size_t>(etiquette)]; }

    QStringView enregistrement_;
    std::array<qsizetype, nombre_etiquettes> places_;
};
