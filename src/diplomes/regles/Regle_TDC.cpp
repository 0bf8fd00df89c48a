#include "diplomes/regles/Regle_TDC.h"

#include "listes/Index_Liste.h"
#include "listes/Table_Recherches.h"
#include "log/Ligne_Log.h"

namespace diplomes {

namespace {

bool Est_Sur_La_Ligne(QStringView ligne_log, QStringView ligne_de_tours, Index_Liste &tours)
{
    const Issue_Recherche issue = tours.Cherche(Lit_Rogne(ligne_log, colonnes_log::Ref));
    return issue.trouvee && issue.sorties.nom == ligne_de_tours;
}

} // namespace

std::vector<QStringView> Lignes_TDC(const Lectures &lues, QStringView ligne_de_tours)
{
    Index_Liste tours(recherches::Ligne_TDC, lues.references);
    std::vector<QStringView> retenues;
    for (const QStringView ligne : lues.log)
        // Looked up for every line, confirmed or not: a faulty list is a failure either way.
        if (Est_Sur_La_Ligne(ligne, ligne_de_tours, tours) && Est_Confirme(ligne))
            retenues.push_back(ligne);
    return retenues;
}

Verdict Juge_TDC(const Niveau_Diplome &niveau, Comptes comptes)
{
    return comptes.n == niveau.seuil_n ? Verdict::Atteint : Verdict::Manque;
}

} // namespace diplomes
