#pragma once

#include "plateforme/Lignes_Texte.h"

#include <QString>

#include <optional>

/// True if a line holds "<SIG:"; the lines are in upper case.
bool A_Des_References(const Lignes_Texte &lignes);

/// Goes once through the lines of an ADIF file, which are in upper case, and gives its records: the lines up to the one
/// that brings "<EOR>", put together without a separator. The first record begins on the line behind the one that holds
/// "<EOH>"; a file without that has none.
class Enregistrements_ADIF {
public:
    /// `lignes` must outlive the reader.
    explicit Enregistrements_ADIF(const Lignes_Texte &lignes);

    /// The next record, valid until the next call. What stands behind the last "<EOR>" is a record too, unless it is
    /// empty.
    std::optional<QStringView> Suivant();

    /// The number of lines gone through.
    [[nodiscard]] std::size_t Lues() const { return lues_; }

private:
    const Lignes_Texte &lignes_;
    std::size_t lues_ = 0;
    QString tampon_;
};
