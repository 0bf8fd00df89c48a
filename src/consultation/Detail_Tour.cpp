#include "consultation/Detail_Tour.h"

#include "listes/Champs_Des_Listes.h"
#include "log/Ecran_Principal.h"
#include "log/Etat_Commun.h"
#include "log/Ligne_Liste.h"
#include "log/Poste.h"
#include "log/Serveurs.h"
#include "plateforme/Dossier.h"
#include "plateforme/Ecrans.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype largeur_reference = 6;

// clang-format off
constexpr Champ_Detail champs[] = {
    {u"Ref_I", u"Référence"},
    {u"Nom_I", u"Nom de la Tour"},
    {u"Ex_Ref_I", u"Ancienne référence"},
    {u"Poste_I", u"N° du Poste"},
    {u"Num_I", u"N° de la Tour"},
    {u"Pays_I", u"Pays"},
    {u"Ligne_I", u"Nom de la ligne"},
    {u"Dpt_I", u"Département"},
};

/// The field of the list, counted from 1, that fills a field of the screen.
constexpr struct { QStringView nom; std::size_t champ; } sources[] = {
    {u"Poste_I", champs_tdc::Poste},
    {u"Num_I", champs_tdc::Numero},
    {u"Nom_I", champs_tdc::Nom},
    {u"Ligne_I", champs_tdc::Ligne},
    {u"Pays_I", champs_tdc::Pays},
    {u"Ex_Ref_I", champs_tdc::Ancienne_Ref},
    {u"Dpt_I", champs_tdc::Dpt},
};
// clang-format on

using Fiche_Tour = std::array<QStringView, 7>;

Textes_Detail Textes(const Fiche_Tour &fiche, QStringView reference)
{
    Textes_Detail textes{{u"Ref_I"_s, u"TDC " + reference}};
    for (const auto &[nom, champ] : sources)
        textes[nom.toString()] = fiche[champ - 1].toString();
    return textes;
}

QString Poste_Sur_Trois(const Fiche_Tour &fiche)
{
    return fiche[champs_tdc::Poste - 1].toString().rightJustified(3, u'0');
}

} // namespace

const std::span<const Champ_Detail> champs_detail_tdc = champs;

QString Reference_Tour(const Poste &poste)
{
    return poste.ecran.Ref_A().left(largeur_reference);
}

Textes_Detail Charge_Tour(const Poste &poste, QStringView reference)
{
    const QStringView dpt = reference.left(2);
    const QStringView numero = reference.right(3);
    const Lignes_Texte lignes = poste.dossier.Lit_Lignes(u"Liste_TDC.csv"_s);
    for (std::size_t rang = 1; rang < lignes.size(); ++rang) {
        if (lignes[rang].isEmpty())
            continue;
        const Fiche_Tour fiche = Champs_Liste<7>(lignes[rang]);
        if (fiche[champs_tdc::Dpt - 1] == dpt && Poste_Sur_Trois(fiche) == numero)
            return Textes(fiche, reference);
    }
    return {{u"Ref_I"_s, u"Référence non trouvée"_s}};
}

void Voir_Site(Poste &poste, const Textes_Detail &tour)
{
    const auto texte = [&](const QString &nom) { return tour.contains(nom) ? tour.at(nom) : QString(); };
    const QString page = u"/tour.php?NumTour=" + texte(u"Num_I"_s);
    poste.etat.adresse_page = Adresse_Serveur(poste, u"Tours", page);
    poste.etat.titre_page = u"Site web de la tour " + texte(u"Poste_I"_s) + u' ' + texte(u"Nom_I"_s);
    poste.ecrans.Montre(u"Affichage"_s);
}
