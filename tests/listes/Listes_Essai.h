#pragma once

#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "listes/Reference_Trouvee.h"
#include "plateforme/Windows_1252.h"

#include <gtest/gtest.h>

#include <ostream>
#include <vector>

/// A list file of the given lines, as a server would send it.
inline void Pose_Liste(const Poste_Essai &essai, const QString &nom, const std::vector<QString> &lignes)
{
    QString texte;
    for (const QString &ligne : lignes)
        texte += ligne + QStringLiteral("\r\n");
    essai.fichiers.Pose(nom, Encode_1252(texte));
}

inline bool operator==(const Reference_Trouvee &une, const Reference_Trouvee &autre)
{
    return une.nom == autre.nom && une.dpt == autre.dpt;
}

inline void PrintTo(const Reference_Trouvee &reference, std::ostream *flux)
{
    const auto montre = [](const std::optional<QString> &texte) {
        return texte ? '"' + texte->toStdString() + '"' : std::string("unchanged");
    };
    *flux << "nom " << montre(reference.nom) << ", dpt " << montre(reference.dpt);
}
