#include "diplomes/modele/Fiche_Diplome.h"

Verdict Juge(const Niveau_Diplome &niveau, Comptes comptes)
{
    return comptes.n >= niveau.seuil_n && comptes.d >= niveau.seuil_d ? Verdict::Atteint : Verdict::Manque;
}
