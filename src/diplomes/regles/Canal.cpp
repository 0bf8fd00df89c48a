#include "diplomes/regles/Canal.h"

#include "listes/Index_Liste.h"
#include "log/Etat_Commun.h"
#include "log/Ligne_Log.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace diplomes {

namespace {

namespace col = colonnes_log;

/// The field of the list that holds the number of the canal.
constexpr std::size_t champ_canal = 6;

QString Cle(const QString &ref, QStringView canal)
{
    return ref + u';' + canal;
}

/// A work by its reference and its canal: `ref` is "45EC102;3". The heading line is read as any other.
constexpr Recherche ouvrage_du_canal{
    .lecture = {.fichier = u"Liste_Ouvrages.csv", .separateurs = 10},
    .cle = [](const Fiche_Liste &fiche) -> std::optional<QString> {
        return Cle(fiche[1].toString().remove(u'-'), fiche[champ_canal]);
    },
    .cle_cherchee = [](QStringView ref) -> std::optional<QString> { return ref.toString(); },
    .presente = [](const Fiche_Liste &, QStringView) { return Reference_Trouvee{}; },
    .absente = [](const std::optional<Fiche_Liste> &, QStringView) { return Reference_Trouvee{}; }};

QString Rang(std::size_t numero, QStringView ligne)
{
    return QString::number(numero).rightJustified(5) + u"  " + Lit(ligne, col::Ref) + u"  " + Lit(ligne, col::Nom) +
           u"  " + Lit(ligne, col::Date) + u"  " + Lit(ligne, col::Ind) + u"  " + Lit(ligne, col::QSL);
}

} // namespace

const Sources sources_du_canal = {.diplome = Diplome::DOHF, .references = &ouvrage_du_canal};

std::array<Palier, 4> Paliers(int contactes, int ouvrages)
{
    // clang-format off
    std::array<Palier, 4> paliers = {{
        {u"P25", u"Palier 25%", u"Label8", u"ADIF1"},
        {u"P50", u"Palier 50%", u"Label14", u"ADIF2"},
        {u"P75", u"Palier 75%", u"Label13", u"ADIF3"},
        {u"P100", u"Palier 100%", u"Label12", u"ADIF4"},
    }};
    // clang-format on
    int pour_cent = 0;
    for (Palier &palier : paliers) {
        pour_cent += 25;
        // A quarter of a work is asked for too, but what is missing is told in whole works below it.
        const double seuil = ouvrages * pour_cent / 100.;
        palier.atteint = contactes >= seuil;
        palier.manque = static_cast<int>(std::floor(seuil - contactes));
        if (pour_cent < 100)
            palier.manque = std::max(0, palier.manque);
    }
    return paliers;
}

Etat_Challenge Evalue_Challenge(const Lectures &lues, const Etat_Commun &etat)
{
    Index_Liste ouvrages(ouvrage_du_canal, lues.references);
    const QString canal = QString::number(etat.numero_canal);
    std::vector<QString> rangs;
    for (const QStringView ligne : lues.log)
        if (ouvrages.Cherche(Cle(Lit_Rogne(ligne, col::Ref).toString(), canal)).trouvee)
            rangs.push_back(Rang(rangs.size() + 1, ligne));
    const auto paliers = Paliers(static_cast<int>(rangs.size()), etat.nb_ouvrages_canal);
    return {u"Challenge oeuvres du " + etat.canal_challenge, std::move(rangs), paliers};
}

} // namespace diplomes
