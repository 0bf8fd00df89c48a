#include "consultation/Recherche_QSO.h"

#include "log/Ecran_Principal.h"
#include "log/Ligne_Affichage.h"
#include "log/Poste.h"
#include "plateforme/Boites.h"
#include "plateforme/Windows_1252.h"

using namespace Qt::StringLiterals;

namespace {

constexpr Champ numero{1, 7};
/// Begins two places ahead of the call sign, so its last two characters are not looked at.
constexpr Champ indicatif_cherche{8, 12};
constexpr qsizetype indicatif_maximum = 12;

} // namespace

std::optional<QString> Refus_Recherche(Recherche_Par par, QStringView texte)
{
    if (par == Recherche_Par::Indicatif && texte.size() > indicatif_maximum)
        return u"12 caracteres maxi pour l'indicatif"_s;
    if (!texte.isEmpty())
        return std::nullopt;
    switch (par) {
    case Recherche_Par::Indicatif:
        return u"Entrez un indicatif"_s;
    case Recherche_Par::Reference:
        return u"Entrez une référence"_s;
    case Recherche_Par::Dpt:
        return u"Entrez un departement"_s;
    }
    return std::nullopt;
}

QString Sans_Saut_De_Ligne(const QString &texte)
{
    return texte.startsWith(fin_de_ligne) ? texte.sliced(fin_de_ligne.size()) : texte;
}

bool QSO_Repond(QStringView ligne_affichage, Recherche_Par par, QStringView texte)
{
    switch (par) {
    case Recherche_Par::Indicatif:
        return Lit_Rogne(ligne_affichage, indicatif_cherche).contains(Majuscules_1252(texte));
    case Recherche_Par::Reference:
        return Lit_Rogne(ligne_affichage, colonnes_affichage::Ref).contains(Majuscules_1252(texte));
    case Recherche_Par::Dpt:
        return Lit(ligne_affichage, colonnes_affichage::Dpt) == texte;
    }
    return false;
}

std::optional<std::vector<QString>> Recherche_QSO(Poste &poste, Recherche_Par par, const QString &texte)
{
    if (const std::optional<QString> refus = Refus_Recherche(par, texte)) {
        poste.boites.Message(*refus);
        return std::nullopt;
    }
    const QString cherche = Sans_Saut_De_Ligne(texte);
    const Lignes_Texte &lignes = poste.ecran.Liste_QSO();
    std::vector<QString> trouves;
    for (std::size_t rang = 0; rang < lignes.size(); ++rang) {
        QString entree = Ligne_Affichage(rang + 1, lignes[rang]);
        if (QSO_Repond(entree, par, cherche))
            trouves.push_back(std::move(entree));
    }
    if (trouves.empty())
        poste.boites.Message(u"Pas de QSO trouvé"_s);
    return trouves;
}

void Retourne_Au_QSO(Poste &poste, QStringView ligne_affichage)
{
    const std::size_t place = Lit_Rogne(ligne_affichage, numero).toULongLong();
    if (place >= 1 && place <= poste.ecran.Liste_QSO().size())
        poste.ecran.Selectionne_QSO(place - 1);
}
