#include "log/Catalogue.h"

#include "log/Par_Diplome.h"

namespace {

constexpr std::nullopt_t inchange = std::nullopt;

// clang-format off
constexpr Par_Diplome<QStringView> codes = {{
    {Diplome::Ch_DFCF, u"Ch_DFCF"},
    {Diplome::Ch_DMF, u"Ch_DMF"},
    {Diplome::DAF, u"DAF"},
    {Diplome::DCF, u"DCF"},
    {Diplome::DCPF, u"DCPF"},
    {Diplome::DDFM, u"DDFM"},
    {Diplome::DFCF, u"DFCF"},
    {Diplome::DFF, u"DFF"},
    {Diplome::DIFI, u"DIFI"},
    {Diplome::DIFM, u"DIFM"},
    {Diplome::DLF, u"DLF"},
    {Diplome::DMF, u"DMF"},
    {Diplome::DOHF, u"DOHF"},
    {Diplome::DPF, u"DPF"},
    {Diplome::DPLF, u"DPLF"},
    {Diplome::DVFF, u"DVFF"},
    {Diplome::DYLF, u"DYLF"},
    {Diplome::FFF, u"FFF"},
    {Diplome::PC, u"PC"},
    {Diplome::TDC, u"TDC"},
    {Diplome::WLF, u"WLF"},
}};

constexpr Par_Diplome<Habillage> habillages = {{
    // Frame3, Detail, Detail_1, Nom_L, Label1, Type_Ref
    // Detail_1 of a challenge is set only where the sibling program is there.
    {Diplome::Ch_DFCF, {u"Challenge DFCF année ", u"Mise a jour via Vorlain", inchange, u"Nom activité", u"Référence (X)", u"DFCF"}},
    {Diplome::Ch_DMF, {u"Challenge DMF année ", u"Mise a jour via Vorlain", inchange, u"Nom activité", u"Référence (X)", u"DMF"}},
    {Diplome::DAF, {u"Diplome des Abbayes et Monastères de France", u"", u"", u"Nom activité", u"Référence", u"DAF"}},
    {Diplome::DCF, {u"Diplome des Catédrales Basiliques et Collégiales de France", u"Liste des DCF", u"", u"Nom activité", u"\nRéférence", u"DCF -"}},
    {Diplome::DCPF, {u"Diplome des Colombiers et Pigeonniers de France", u"", u"", u"Nom activité", u"Référence", u"DCPF"}},
    {Diplome::DDFM, {u"Diplome des Départements Français de Métropole", u"Recherche Dpt", u"", u"Ville", u"Référence", u""}},
    // DFCF and DVFF leave the label over the name as it was, so it can still read "Ville".
    {Diplome::DFCF, {u"Diplome des Forts et Chateaux de France", u"Detail référence", u"", inchange, u"Référence", u"DFCF"}},
    {Diplome::DFF, {u"Diplome des Fontaines de France", u"", u"", u"Nom activité", u"Référence", u"DFF"}},
    {Diplome::DIFI, {u"Diplome des Iles Françaises Interieur", u"", u"", u"Nom activité", u"Référence", u"DIFI"}},
    {Diplome::DIFM, {u"Diplome des Iles Françaises de Métropole", u"Liste des Iles", u"", u"Nom activité", u"Référence", u"DIFM"}},
    {Diplome::DLF, {u"Diplome des Lavoirs de France", u"", u"", u"Nom activité", u"Référence", u"DLF"}},
    {Diplome::DMF, {u"Diplome des Moulins de France", u"", u"", u"Nom activité", u"Référence", u"DMF"}},
    {Diplome::DOHF, {u"Diplome des Ouvrages Hydrauliques Français", u"Détail ouvrage", u"", u"Nom activité", u"Référence", u"DOHF"}},
    {Diplome::DPF, {u"Diplome des Provinces Françaises", u"Liste Provinces", u"", u"Ville", u"Référence", u""}},
    {Diplome::DPLF, {u"Diplome des Phares du Littoral Français", u"Liste des DPLF", u"", u"Nom activité", u"Référence", u"DPLF"}},
    {Diplome::DVFF, {u"Diplome des Voies Ferrées de France", u"", u"", inchange, u"Référence", u"DVFF"}},
    {Diplome::DYLF, {u"Diplome des YL de France", u"Scores", u"", u"Ville", u"Référence", u""}},
    {Diplome::FFF, {u"Diplome France Flora Fauna", u"Détail FFF", u"", u"Nom activité", u"Référence", u"FFF -"}},
    {Diplome::PC, {u"Diplome du Patrimoine Culturel", u"Detail Patrimoine", u"", u"Nom activité", u"Référence", u"PC"}},
    {Diplome::TDC, {u"Diplome des Tours De Chappe", u"Détail Tour", u"", u"Nom activité", u"Référence", u"TDC"}},
    {Diplome::WLF, {u"Diplome des Lacs de France", u"", u"", u"Nom activité", u"Référence", u"WL-F"}},
}};
// clang-format on

} // namespace

constinit const std::array<QStringView, nombre_diplomes> codes_diplome = [] {
    std::array<QStringView, nombre_diplomes> tous;
    for (const Diplome diplome : tous_les_diplomes)
        tous[static_cast<std::size_t>(diplome)] = codes[diplome];
    return tous;
}();

QStringView Code(Diplome diplome)
{
    return codes[diplome];
}

QStringView Code(std::optional<Diplome> diplome)
{
    return diplome ? Code(*diplome) : QStringView();
}

std::optional<Diplome> Diplome_De(QStringView code)
{
    for (const Diplome diplome : tous_les_diplomes)
        if (Code(diplome) == code)
            return diplome;
    return std::nullopt;
}

QString En_Forme_De_Code(const QString &texte)
{
    for (const QStringView code : codes_diplome)
        if (code.compare(texte, Qt::CaseInsensitive) == 0)
            return code.toString();
    return texte;
}

const Habillage &Habillage_De(Diplome diplome)
{
    return habillages[diplome];
}

QStringView Type_Ref(std::optional<Diplome> diplome)
{
    return diplome ? Habillage_De(*diplome).type_ref : QStringView();
}

bool Est_Challenge(std::optional<Diplome> diplome)
{
    return diplome == Diplome::Ch_DFCF || diplome == Diplome::Ch_DMF;
}

Diplome Source_Challenge(Diplome challenge)
{
    if (challenge == Diplome::Ch_DFCF)
        return Diplome::DFCF;
    return challenge == Diplome::Ch_DMF ? Diplome::DMF : challenge;
}
