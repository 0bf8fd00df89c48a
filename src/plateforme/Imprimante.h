#pragma once

#include <QString>

#include <optional>
#include <vector>

/// The printer.
class Imprimante {
public:
    virtual ~Imprimante() = default;
    /// Lets the user choose the printer, then prints the lines from top to bottom in a fixed-pitch bold font of 9
    /// points, over as many pages as they need; `titre` names the job. A dismissed choice does not stop the printing,
    /// the end of the screen it was opened from does. Gives what kept the lines from paper, in words for the user;
    /// nullopt when they were printed, or when there is nobody left to tell.
    [[nodiscard]] virtual std::optional<QString> Imprime(const QString &titre, const std::vector<QString> &lignes) = 0;
};
