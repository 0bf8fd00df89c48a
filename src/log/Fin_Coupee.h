#pragma once

#include <QString>

#include <optional>

/// What becomes of a log whose last QSO was cut off while it was written.
struct Fin_Reparee {
    QString texte;   ///< the log, each of its lines whole
    QString message; ///< for the operator; "%1" stands for the log
};

/// nullopt if the last line has its end, or all its columns, or is not the beginning of a QSO behind a whole one. A
/// last line that lost its end and something before it is completed with blanks if it still tells when and on which
/// band the QSO was, else taken away.
std::optional<Fin_Reparee> Repare_La_Fin(const QString &texte);
