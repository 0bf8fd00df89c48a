#include "listes/References.h"

#include "listes/Champs_Des_Listes.h"
#include "listes/Table_Recherches.h"
#include "log/Champ.h"
#include "plateforme/Dossier.h"

using namespace Qt::StringLiterals;

namespace {

QStringView Categorie(QStringView ref)
{
    if (ref.endsWith(u'B'))
        return u" Basiliques ";
    if (ref.endsWith(u'C'))
        return u" Collégiales ";
    return u" Cathédrales ";
}

QString Entree_DCF(const Fiche_Liste &fiche)
{
    const QStringView ref = fiche[champs_dcf::Ref];
    return u' ' + ref + Categorie(ref) + fiche[champs_dcf::Nom] + u" à " + fiche[champs_dcf::Ville] + u" (" +
           fiche[champs_dcf::Dpt] + u')';
}

QString Entree_DPLF(const Fiche_Liste &fiche)
{
    const QString numero = Rogne(fiche[lignes_dplf::Numero]).toString().rightJustified(3, u'0');
    const QStringView dpt = fiche[lignes_dplf::Dpt];
    // Over ten characters, which no department has: here one of a single digit stands without its zero.
    const QStringView zero = dpt.size() > 10 ? u"0" : u"";
    return u"PB" + numero + u"  " + zero + dpt + u"  " + Complete(fiche[lignes_dplf::Nom], 40);
}

std::vector<QString> Entrees(const Dossier &dossier, const Lecture &lecture, QString (*entree)(const Fiche_Liste &))
{
    Lecteur_Liste lecteur(lecture, dossier.Lit_Lignes(lecture.fichier.toString()));
    std::vector<QString> entrees;
    while (const std::optional<Fiche_Liste> fiche = lecteur.Suivante())
        entrees.push_back(entree(*fiche));
    return entrees;
}

} // namespace

Vue_References Lit_References(const Dossier &dossier, std::optional<Diplome> diplome)
{
    // clang-format off
    if (diplome == Diplome::DCF)
        return {.titre = u"Liste des réferences DCF"_s,
                .entete = u"         Ref                      Nom de la Cathedrale "_s,
                .entrees = Entrees(dossier, recherches::Cherche_DCF.lecture, Entree_DCF)};
    if (diplome == Diplome::DPLF)
        return {.titre = u"Liste des réferences DPLF"_s,
                .entete = u"     Ref         Dpt                             Nom du Phare                            "_s,
                .entrees = Entrees(dossier, recherches::Cherche_DPLF.lecture, Entree_DPLF)};
    // clang-format on
    return {};
}
