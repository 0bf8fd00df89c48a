#pragma once

#include <QString>

struct Poste;

/// Fetches a file over the old one, which is not cut: behind a shorter body its tail stays. Without a body, or with an
/// empty address, the file stays and the operator is told. Throws Erreur_Execution if the disk refuses.
void Download(Poste &poste, const QString &adresse, const QString &fichier);
