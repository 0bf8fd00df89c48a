#include "diplomes/modele/Fiche_Diplome.h"

namespace diplomes {

Verdict Juge(const Niveau_Diplome &niveau, Comptes comptes)
{
    return comptes.n >= niveau.seuil_n && comptes.d >= niveau.seuil_d ? Verdict::Atteint : Verdict::Manque;
}

} // namespace diplomes
