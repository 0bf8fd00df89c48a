#include "listes/Recherches_Liste.h"

#include "listes/Table_Recherches.h"
#include "plateforme/Boites.h"
#include "plateforme/Dossier.h"

using namespace Qt::StringLiterals;

namespace {

Issue_Recherche Cherche(const Recherche &recherche, const Dossier &dossier, QStringView ref)
{
    return Balaie(recherche, dossier.Lit_Lignes(recherche.lecture.fichier.toString()), ref);
}

} // namespace

QString Cherche_DFCF(const Dossier &dossier, QStringView ref)
{
    return *Cherche(recherches::Cherche_DFCF, dossier, ref).sorties.nom;
}

Reference_Trouvee Cherche_DCF(const Dossier &dossier, QStringView ref)
{
    return Cherche(recherches::Cherche_DCF, dossier, ref).sorties;
}

Reference_Trouvee Cherche_FFF(const Dossier &dossier, QStringView ref)
{
    return Cherche(recherches::Cherche_FFF, dossier, ref).sorties;
}

Reference_Trouvee Cherche_DPLF(const Dossier &dossier, QStringView ref)
{
    return Cherche(recherches::Cherche_DPLF, dossier, ref).sorties;
}

Reference_Trouvee Cherche_TDC(const Dossier &dossier, Boites &boites, QStringView ref)
{
    const Issue_Recherche issue = Cherche(recherches::Cherche_TDC, dossier, ref);
    // The text ends at its blank: no department follows.
    if (!issue.trouvee)
        boites.Message(u"Pas de tours Chappe dans le département "_s);
    return issue.sorties;
}

QString Ligne_TDC(const Dossier &dossier, QStringView ref)
{
    return Cherche(recherches::Ligne_TDC, dossier, ref).sorties.nom.value_or(QString());
}

Reference_Trouvee Cherche_Ouvrage(const Dossier &dossier, QStringView ref)
{
    return Cherche(recherches::Cherche_Ouvrage, dossier, ref).sorties;
}

Reference_Trouvee Cherche_PC(const Dossier &dossier, QStringView ref)
{
    return Cherche(recherches::Cherche_PC, dossier, ref).sorties;
}

Reference_Trouvee Nom_Ouvrage(const Dossier &dossier, QStringView ref)
{
    return Cherche(recherches::Nom_Ouvrage, dossier, ref).sorties;
}

QString Nom_DFCF(const Dossier &dossier, QStringView ref)
{
    return *Cherche(recherches::Nom_DFCF, dossier, ref).sorties.nom;
}

Reference_Trouvee Nom_DPLF(const Dossier &dossier, QStringView ref)
{
    return Cherche(recherches::Nom_DPLF, dossier, ref).sorties;
}

QString Nom_FFF(const Dossier &dossier, QStringView ref)
{
    return *Cherche(recherches::Nom_FFF, dossier, ref).sorties.nom;
}
