#include "diplomes/regles/Regle_DAF.h"

#include "diplomes/regles/Lignes_Retenues.h"
#include "log/Etat_Commun.h"

namespace diplomes {

bool Confirme_Mode_Choisi(QStringView ligne_log, const Etat_Commun &etat)
{
    if (etat.code_categorie == u"Mixte")
        return Confirme(ligne_log, etat);
    if (etat.code_categorie == u"Phone")
        return Confirme_SSB(ligne_log, etat);
    return etat.code_categorie == u"CW" && Confirme_CW(ligne_log, etat);
}

Verdict Juge_DAF(const Niveau_Diplome &niveau, Comptes comptes)
{
    if (comptes.n >= niveau.seuil_n && comptes.d > 3)
        return Verdict::Atteint;
    // The last tier compares the departments with its number of abbeys, so it is always missed or reached.
    const int compare = niveau.seuil_n == 250 ? comptes.d : comptes.n;
    return compare < niveau.seuil_n || comptes.d < 3 ? Verdict::Manque : Verdict::Inchange;
}

} // namespace diplomes
