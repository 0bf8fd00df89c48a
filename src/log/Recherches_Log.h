#pragma once

#include "log/Diplome.h"
#include "plateforme/Lignes_Texte.h"

#include <QString>

struct Poste;

struct Trouvaille {
    bool oui = false;
    QString date; ///< JJ/MM/AA of the line found
};

/// The first line whose trimmed Ref equals `ref`: `77001R` is no repeat of `77001`.
Trouvaille Cherche_Ref_Dans(const Lignes_Texte &lignes, QStringView ref);
/// The first line whose trimmed Dpt, Bande and Mode are all equal to the given ones.
Trouvaille Cherche_Dpt_Bande_Mode_Dans(const Lignes_Texte &lignes, QStringView dpt, QStringView bande,
                                       QStringView mode);

/// The same over the log of an award, and over the log of the current award, as they are on the disk.
Trouvaille Cherche_Ref(const Poste &poste, std::optional<Diplome> diplome, QStringView ref);
Trouvaille Cherche_Dpt_Bande_Mode(const Poste &poste, QStringView dpt, QStringView bande, QStringView mode);
