#pragma once

#include <QStringView>

#include <array>
#include <cstddef>

namespace diplomes {

/// Indices of a table by department number: 0 to 95, and Corsica behind them.
inline constexpr std::size_t taille_departements = 98;

/// The department of a line as the sheets read it: four columns, trimmed, folded.
QStringView Departement_De_Fiche(QStringView ligne_log);

/// The index of a department text. Throws Erreur_Execution if it is no whole number from 0 to 97: "2A" must be folded
/// before.
std::size_t Indice_Departement(QStringView dpt);

/// The departments seen.
class Departements {
public:
    /// Throws as Indice_Departement.
    void Marque(QStringView dpt) { vus_[Indice_Departement(dpt)] = true; }
    /// Index 0 is never counted.
    [[nodiscard]] int Nombre() const;

private:
    std::array<bool, taille_departements> vus_ = {};
};

} // namespace diplomes
