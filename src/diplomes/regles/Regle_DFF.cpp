#include "diplomes/regles/Regle_DFF.h"

#include "diplomes/regles/Compte.h"
#include "diplomes/regles/Fiche_Des_Comptes.h"
#include "diplomes/regles/Lignes_Retenues.h"
#include "log/Etat_Commun.h"

#include <vector>

namespace diplomes {

namespace {

constexpr std::array<int, 5> seuils_vhf = {10, 30, 50, 100, 200};

bool Est_HF(const Etat_Commun &etat)
{
    return etat.code_categorie == u"HF";
}

} // namespace

bool Confirme_Bande_Choisie(QStringView ligne_log, const Etat_Commun &etat)
{
    return Est_HF(etat) ? Confirme_HF(ligne_log, etat) : Confirme_144(ligne_log, etat);
}

Etat_Fiche Evalue_DFF(const Fiche_Diplome &fiche, const Lectures &lues, const Etat_Commun &etat)
{
    const std::vector<Comptes> comptes = Compte(fiche.regles, lues.log, etat);
    if (Est_HF(etat))
        return Fiche_Des_Comptes(fiche, comptes, etat);
    std::vector<Niveau_Diplome> niveaux(fiche.niveaux.begin(), fiche.niveaux.end());
    for (std::size_t i = 0; i < niveaux.size(); ++i)
        niveaux[i].seuil_n = seuils_vhf.at(i);
    Fiche_Diplome variante = fiche;
    variante.niveaux = niveaux;
    return Fiche_Des_Comptes(variante, comptes, etat);
}

} // namespace diplomes
