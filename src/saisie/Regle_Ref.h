#pragma once

#include "log/Notice.h"
#include "saisie/Refus.h"

#include <QStringView>

/// nullptr for an award without references and without an award.
const Regle_Ref *Regle_Ref_De(std::optional<Diplome> diplome);

/// The award's own check of a reference: length, and for some awards the characters.
/// `diplome` has references.
Refus Refus_Forme_Ref(Diplome diplome, QStringView ref);

/// The department that a reference itself holds; not for Source_Dpt::Recherche and Inchange.
QString Dpt_De_Ref(Source_Dpt source, QStringView ref);
