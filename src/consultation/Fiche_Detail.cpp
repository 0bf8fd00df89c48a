#include "consultation/Fiche_Detail.h"

#include "listes/Champs_Des_Listes.h"
#include "log/Ecran_Principal.h"
#include "log/Ligne_Affichage.h"
#include "log/Ligne_Liste.h"
#include "log/Poste.h"
#include "plateforme/Boites.h"
#include "plateforme/Dossier.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

// clang-format off
constexpr Champ_Detail champs_detail_dfcf[] = {
    {u"Ref_I", u"Référence"},
    {u"Nom_I", u"Chateau"},
    {u"Date_I", u"Le"},
    {u"Act_I", u"Activé par"},
    {u"Ville_I", u"Commune"},
};

constexpr Champ_Detail champs_detail_fff[] = {
    {u"Ref_I", u"Référence"},
    {u"Pays_I", u"Pays"},
    {u"Nom_I", u"Nom"},
};

constexpr Champ_Detail champs_detail_pc[] = {
    {u"Ref_I", u"Référence"},
    {u"Nom_I", u"Type et nom du monument"},
    {u"Num_I", u"Numero de l'ouvrage"},
    {u"Dpt_I", u"Département"},
    {u"Ville_I", u"Ville"},
};
// clang-format on

/// A field by its number, counted from 1.
template <std::size_t N>
QString Texte(const std::array<QStringView, N> &champs, std::size_t numero)
{
    return champs[numero - 1].toString();
}

/// Field `numero` of a line, of which no more is cut than is needed to reach it.
template <std::size_t numero>
QString Champ_Seul(QStringView ligne)
{
    return Texte(Champs_Liste<numero>(ligne), numero);
}

/// The first line behind the heading whose key is the one looked for. In lists with more heading lines the others do
/// not match by themselves.
template <typename Cle>
QStringView Premiere_Ligne(const Lignes_Texte &lignes, QStringView cherchee, Cle cle)
{
    for (std::size_t rang = 1; rang < lignes.size(); ++rang)
        if (!lignes[rang].isEmpty() && cle(lignes[rang]) == cherchee)
            return lignes[rang];
    return {};
}

QString Cle_DFCF(QStringView ligne)
{
    return Champ_Seul<champs_dfcf::Ref>(ligne).remove(u'-');
}

QString Cle_PC(QStringView ligne)
{
    return Champ_Seul<champs_pc::Ref>(ligne).remove(u'-').right(5);
}

/// The list holds postal codes that lost their leading zero.
QString Code_Postal(QStringView code)
{
    return code.size() == 4 ? u'0' + code.toString() : code.toString();
}

Textes_Detail Trouve_DFCF(const Lignes_Texte &lignes, QStringView reference)
{
    const QStringView ligne = Premiere_Ligne(lignes, reference, Cle_DFCF);
    if (ligne.isEmpty())
        return {};
    const auto champs = Champs_Liste<5>(ligne);
    return {{u"Ref_I"_s, reference.toString()},
            {u"Nom_I"_s, Texte(champs, champs_dfcf::Nom)},
            {u"Date_I"_s, Texte(champs, champs_dfcf::Date)},
            {u"Act_I"_s, Texte(champs, champs_dfcf::Activateur)},
            {u"Ville_I"_s, Code_Postal(Reste_Liste(ligne, champs)) + u' ' + Texte(champs, champs_dfcf::Commune)}};
}

Textes_Detail Trouve_FFF(const Lignes_Texte &lignes, QStringView reference)
{
    const QString cherchee = u"FFF-" + reference;
    const QStringView ligne = Premiere_Ligne(lignes, cherchee, Champ_Seul<champs_fff::Ref>);
    if (ligne.isEmpty())
        return {};
    const auto champs = Champs_Liste<5>(ligne);
    // The country is taken from the field behind the one that the look-ups know as such.
    return {{u"Ref_I"_s, Texte(champs, champs_fff::Ref)},
            {u"Pays_I"_s, Texte(champs, 3)},
            {u"Nom_I"_s, Texte(champs, champs_fff::Nom)}};
}

Textes_Detail Trouve_PC(const Lignes_Texte &lignes, QStringView reference)
{
    const QStringView ligne = Premiere_Ligne(lignes, reference, Cle_PC);
    if (ligne.isEmpty())
        return {};
    const auto champs = Champs_Liste<7>(ligne);
    return {{u"Ref_I"_s, u"PC" + reference},
            {u"Nom_I"_s, Texte(champs, champs_pc::Nom)},
            {u"Num_I"_s, Texte(champs, champs_pc::Numero)},
            {u"Dpt_I"_s, Texte(champs, champs_pc::Dpt)},
            {u"Ville_I"_s, Texte(champs, champs_pc::Ville)}};
}

} // namespace

// clang-format off
const Fiche_Detail fiche_detail_dfcf{u"Detail_DFCF", u"Liste_DFCF.csv", 7, champs_detail_dfcf, Trouve_DFCF};
const Fiche_Detail fiche_detail_fff{u"Detail_FFF", u"Liste_FFF.csv", 10, champs_detail_fff, Trouve_FFF};
const Fiche_Detail fiche_detail_pc{u"Detail_PC", u"Liste_PC.csv", 10, champs_detail_pc, Trouve_PC};
// clang-format on

QString Reference_Selectionnee(const Poste &poste, const Fiche_Detail &fiche)
{
    const Champ champ{colonnes_affichage::Ref.colonne, fiche.colonnes_ref};
    return Lit_Rogne(poste.ecran.Ligne_Selectionnee(), champ).toString();
}

Textes_Detail Cherche_Detail(Poste &poste, const Fiche_Detail &fiche, QStringView reference)
{
    const Lignes_Texte lignes = poste.dossier.Lit_Lignes(fiche.fichier.toString());
    Textes_Detail trouves = fiche.trouve(lignes, reference);
    if (!trouves.empty())
        return trouves;
    poste.boites.Message(u"Référence non trouvée"_s);
    return {{u"Ref_I"_s, reference.toString()}};
}
