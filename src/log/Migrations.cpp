#include "log/Migrations.h"

#include "log/Ligne_Log.h"

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

namespace col = colonnes_log;

/// Gives the new reference, or nullopt if it stays.
using Regle = std::function<std::optional<QString>(QStringView dpt, QStringView ref)>;

bool Commence_De_B_A_Z(QStringView ref)
{
    return !ref.isEmpty() && ref.front() >= u'B' && ref.front() <= u'Z';
}

std::optional<QString> Ref_DOHF(QStringView dpt, QStringView ref)
{
    if (!Commence_De_B_A_Z(ref))
        return std::nullopt;
    return dpt + ref.first(qMin(qsizetype{8}, ref.size()));
}

/// The forms without a dash: 3 to 5 characters, the first two being the department. Others lose the blanks before them.
std::optional<QString> Tiret_TDC(QStringView ref)
{
    const QStringView texte = Rogne(ref);
    switch (texte.size()) {
    case 3:
        return texte.first(2) + u"-00" + texte.last(1);
    case 4:
        return texte.first(2) + u"-0" + texte.last(2);
    case 5:
        return texte.first(2) + u'-' + texte.last(3);
    default:
        return ref.startsWith(texte) ? std::nullopt : std::optional(texte.toString());
    }
}

/// A reference that the list does not know takes the last conversion of this load, empty at first.
Regle Regle_TDC(const Conversion_TDC &conversion)
{
    return [conversion, nouvelle = QString()](QStringView, QStringView ref) mutable -> std::optional<QString> {
        if (!ref.startsWith(u"TC"))
            return Tiret_TDC(ref);
        if (std::optional<QString> trouvee = conversion(ref))
            nouvelle = *trouvee;
        const std::optional<QString> avec_tiret = Tiret_TDC(nouvelle);
        return avec_tiret ? avec_tiret : nouvelle;
    };
}

std::optional<QString> Ref_DCPF(QStringView dpt, QStringView ref)
{
    const auto depuis = [&](qsizetype colonne) { return Lit(ref, {colonne, 6}); };
    if (ref.startsWith(u"CA"))
        return dpt + u"CA" + depuis(3);
    for (const QStringView prefixe : {u"PPQ", u"PTC", u"PTQ", u"PTH", u"PTP"})
        if (ref.startsWith(prefixe))
            return dpt + u"PT" + depuis(4);
    for (const QStringView prefixe : {u"PDE", u"PDC", u"PDH", u"PDQ", u"PDL", u"PDP"})
        if (ref.startsWith(prefixe))
            return dpt + u"PA" + depuis(4);
    return std::nullopt;
}

std::optional<QString> Ref_FFF(QStringView, QStringView ref)
{
    const QStringView texte = Rogne(ref);
    if (texte.isEmpty() || texte.size() > 3)
        return std::nullopt;
    return texte.toString().rightJustified(4, u'0');
}

Regle Regle_Migration(std::optional<Diplome> diplome, const Conversion_TDC &conversion)
{
    if (diplome == Diplome::DOHF)
        return Ref_DOHF;
    if (diplome == Diplome::TDC)
        return Regle_TDC(conversion);
    if (diplome == Diplome::DCPF)
        return Ref_DCPF;
    if (diplome == Diplome::FFF)
        return Ref_FFF;
    return {};
}

struct Ref_Changee {
    std::size_t rang;
    QString ref;
};

std::vector<Ref_Changee> Refs_Changees(const Lignes_Texte &lignes, const Regle &regle)
{
    std::vector<Ref_Changee> changees;
    for (std::size_t rang = 0; rang < lignes.size(); ++rang)
        if (std::optional<QString> ref = regle(Lit(lignes[rang], col::Dpt), Lit(lignes[rang], col::Ref)))
            changees.push_back({rang, *std::move(ref)});
    return changees;
}

/// All lines composed anew, those of `changees`, which are in the order of the lines, with their new references.
QString Recomposees(const Lignes_Texte &lignes, const std::vector<Ref_Changee> &changees)
{
    QString texte;
    texte.reserve(static_cast<qsizetype>(lignes.size()) * (col::longueur + fin_de_ligne.size()));
    auto changee = changees.begin();
    for (std::size_t rang = 0; rang < lignes.size(); ++rang) {
        QString ligne = Recompose(lignes[rang]);
        if (changee != changees.end() && changee->rang == rang)
            ligne.replace(col::Ref.colonne - 1, col::Ref.largeur, Ajuste((changee++)->ref, col::Ref.largeur));
        texte.append(ligne).append(fin_de_ligne);
    }
    return texte;
}

} // namespace

std::optional<Log_Migre> Migre(std::optional<Diplome> diplome, const Lignes_Texte &lignes,
                               const Conversion_TDC &conversion)
{
    const Regle regle = Regle_Migration(diplome, conversion);
    if (!regle)
        return std::nullopt;
    const std::vector<Ref_Changee> changees = Refs_Changees(lignes, regle);
    if (changees.empty())
        return std::nullopt;
    const bool a_reecrire = std::any_of(changees.begin(), changees.end(), [&](const Ref_Changee &changee) {
        return changee.ref != Lit_Rogne(lignes[changee.rang], col::Ref);
    });
    return Log_Migre{Recomposees(lignes, changees), a_reecrire};
}
