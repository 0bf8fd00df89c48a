#include "consultation/Detail_Ouvrage.h"

#include "log/Ecran_Principal.h"
#include "log/Ligne_Affichage.h"
#include "log/Ligne_Liste.h"
#include "log/Poste.h"
#include "plateforme/Boites.h"
#include "plateforme/Dossier.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype largeur_reference = 7;
constexpr std::size_t champs_de_la_liste = 19;

// clang-format off
constexpr Champ_Detail champs[] = {
    {u"Ref_I", u"Référence"},
    {u"Nom_I", u"Nom de l'ouvrage"},
    {u"Type_I", u"Type d'ouvrage"},
    {u"Dpt_I", u"Département"},
    {u"Canal_I", u"Nom du cours d'eau / canal"},
    {u"Num_I", u"N° de l'ouvrage sur le canal"},
    {u"Dist_I", u"Longueur de l'ouvrage"},
    {u"Class_I", u"Categorie"},
    {u"Fonction_I", u"Fonction de l'ouvrage"},
    {u"Annee_I", u"Année de mise en service"},
    {u"Haut_I", u"Hauteur de l'ouvrage"},
    {u"Volume_I", u"Volume d'eau retenu par le barrage"},
    {u"V_Bati_I", u"Volume de bati pour le barrage"},
    {u"Large_I", u"Largeur du pont /sommet du barrage"},
    {u"Large_Pieg_I", u"Largeur de pied du barrage"},
    {u"Historique_I", u"Monument historique"},
    {u"Rem_I", u"Remarques"},
    {u"Internet_I", u"Lien internet"},
};

/// The field of the list, counted from 1, that fills a field of the screen.
constexpr struct { QStringView nom; std::size_t champ; } sources[] = {
    {u"Ref_I", 1},
    {u"Nom_I", 2},
    {u"Type_I", 3},
    {u"Dpt_I", 4},
    {u"Canal_I", 5},
    {u"Num_I", 7},
    {u"Dist_I", 8},
    {u"Class_I", 9},
    {u"Fonction_I", 11},
    {u"Annee_I", 12},
    {u"Haut_I", 13},
    {u"Volume_I", 14},
    {u"V_Bati_I", 15},
    {u"Large_I", 16},
    {u"Historique_I", 18},
    {u"Internet_I", 19},
};
// clang-format on

using Fiche_Ouvrage = std::array<QStringView, champs_de_la_liste>;

Textes_Detail Textes(const Fiche_Ouvrage &fiche)
{
    Textes_Detail textes;
    for (const auto &[nom, champ] : sources)
        textes[nom.toString()] = fiche[champ - 1].toString();
    return textes;
}

} // namespace

const std::span<const Champ_Detail> champs_detail_activite = champs;

QString Reference_Ouvrage(const Poste &poste)
{
    const Champ champ{colonnes_affichage::Ref.colonne, largeur_reference};
    return Lit(poste.ecran.QSO_Selectionne(), champ).toString();
}

std::optional<QString> Refus_Ouvrage(QStringView reference)
{
    if (reference.size() == largeur_reference)
        return std::nullopt;
    return u"7 caracteres pour la reference ex: 45EC001"_s;
}

Textes_Detail Charge_Detail(Poste &poste, QStringView reference)
{
    const Lignes_Texte lignes = poste.dossier.Lit_Lignes(u"Liste_Ouvrages.csv"_s);
    for (std::size_t rang = 1; rang < lignes.size(); ++rang) {
        const auto fiche = Champs_Liste<champs_de_la_liste>(lignes[rang]);
        if (fiche[0].toString().remove(u'-') == reference)
            return Textes(fiche);
    }
    poste.boites.Message(u"Référence non trouvée"_s);
    return {{u"Ref_I"_s, reference.toString()}};
}
