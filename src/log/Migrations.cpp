#include "log/Migrations.h"

#include "log/Ligne_Log.h"

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

/// The forms without a dash: 3 to 5 characters, the first two being the department.
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
        return std::nullopt;
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

Regle Regle_Migration(QStringView code, const Conversion_TDC &conversion)
{
    if (code == u"DOHF")
        return Ref_DOHF;
    if (code == u"TDC")
        return Regle_TDC(conversion);
    if (code == u"DCPF")
        return Ref_DCPF;
    if (code == u"FFF")
        return Ref_FFF;
    return {};
}

QString Avec_Ref(QStringView ligne, QStringView ref)
{
    Champs_QSO champs = Champs_Log(ligne);
    champs.ref = Ajuste(ref, col::Ref.largeur);
    return Compose_Ligne_Log(champs);
}

} // namespace

std::optional<QString> Migre(QStringView code, const Lignes_Texte &lignes, const Conversion_TDC &conversion)
{
    const Regle regle = Regle_Migration(code, conversion);
    if (!regle)
        return std::nullopt;
    QString texte;
    bool change = false;
    for (const QStringView ligne : lignes) {
        const std::optional<QString> ref = regle(Lit(ligne, col::Dpt), Lit(ligne, col::Ref));
        if (ref)
            texte += Avec_Ref(ligne, *ref);
        else
            texte += ligne;
        texte += fin_de_ligne;
        change = change || ref;
    }
    if (!change)
        return std::nullopt;
    return texte;
}
