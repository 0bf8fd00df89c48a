#pragma once

#include "diplomes/modele/Lectures.h"

struct Poste;

namespace diplomes {

/// The files as they are now; a log without lines looks nothing up, and no list is opened for it. Throws
/// Erreur_Execution for an absent file.
Lectures Lit_Sources(const Poste &poste, const Sources &sources);

} // namespace diplomes
