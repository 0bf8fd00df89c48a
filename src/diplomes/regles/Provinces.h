#pragma once

#include <QString>
#include <QStringView>

#include <array>
#include <cstddef>
#include <optional>

namespace diplomes {

inline constexpr std::size_t nombre_provinces = 22;

/// The rows of Detail_DPF. They are not what the award is worked out from: department 49 stands here alone.
extern const std::array<QStringView, nombre_provinces> textes_provinces;

/// The place of the province of a department, from 0; nullopt for a department in none. `dpt` is trimmed and in upper
/// case; no department at all is the Ile-de-France.
std::optional<std::size_t> Numero_Province(QStringView dpt);

/// Puts the name of the province of a department in `province`, 20 columns without accents. A department in none
/// leaves what stood there.
void Province_De_Departement(QStringView dpt, QString &province);

} // namespace diplomes
