#pragma once

#include "log/Champ.h"
#include "log/Diplome.h"
#include "plateforme/Lignes_Texte.h"

#include <QHash>
#include <QString>

#include <optional>
#include <vector>

struct Poste;

/// The site of a challenge line: its reference without the letter behind it.
inline constexpr Champ site_challenge{35, 5};

/// The lines of a challenge log by their sites, the first one of each. `lignes` must outlive it.
class Lignes_Par_Site {
public:
    explicit Lignes_Par_Site(const Lignes_Texte &lignes);

    [[nodiscard]] std::optional<QStringView> Pour(QStringView site) const;

private:
    QHash<QStringView, QStringView> lignes_;
};

/// The last two digits of the year of a challenge.
QStringView Annee_Courte(const Poste &poste, Diplome challenge);

/// Lines as the sorted work list keeps them, each with its CR LF.
QString Texte_En_Ordre(std::vector<QString> lignes);

/// Makes `lignes`, without doubles and sorted, the whole of the current challenge log and puts the entry screen to
/// rest.
void Acheve_Fusion(Poste &poste, const QString &nom, std::vector<QString> lignes);
