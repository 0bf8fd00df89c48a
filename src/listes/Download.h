#pragma once

#include <QString>

struct Poste;

enum class Sorte_Fichier { Liste, Version };

/// Fetches a file over the old one, which is not cut: behind a shorter body its tail stays. Without a body, or with an
/// empty address, the file stays and the operator is told. Throws Erreur_Execution if the disk refuses. A list is kept
/// as it stood; nothing is written where that fails and the operator gives up.
void Download(Poste &poste, const QString &adresse, const QString &fichier, Sorte_Fichier sorte);
