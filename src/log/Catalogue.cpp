#include "log/Catalogue.h"

#include <algorithm>

namespace {

constexpr std::nullopt_t inchange = std::nullopt;

// clang-format off
constexpr std::array<Habillage, 21> habillages = {{
    // code, Frame3, Detail, Detail_1, Nom_L, Label1, Type_Ref
    {u"DAF",  u"Diplome des Abbayes et Monastères de France", u"", u"", u"Nom activité", u"Référence", u"DAF"},
    {u"DCF",  u"Diplome des Catédrales Basiliques et Collégiales de France", u"Liste des DCF", u"", u"Nom activité", u"\nRéférence", u"DCF -"},
    {u"DCPF", u"Diplome des Colombiers et Pigeonniers de France", u"", u"", u"Nom activité", u"Référence", u"DCPF"},
    {u"DDFM", u"Diplome des Départements Français de Métropole", u"Recherche Dpt", u"", u"Ville", u"Référence", u""},
    // DFCF and DVFF leave the label over the name as it was, so it can still read "Ville".
    {u"DFCF", u"Diplome des Forts et Chateaux de France", u"Detail référence", u"", inchange, u"Référence", u"DFCF"},
    {u"DFF",  u"Diplome des Fontaines de France", u"", u"", u"Nom activité", u"Référence", u"DFF"},
    {u"DIFI", u"Diplome des Iles Françaises Interieur", u"", u"", u"Nom activité", u"Référence", u"DIFI"},
    {u"DIFM", u"Diplome des Iles Françaises de Métropole", u"Liste des Iles", u"", u"Nom activité", u"Référence", u"DIFM"},
    {u"DLF",  u"Diplome des Lavoirs de France", u"", u"", u"Nom activité", u"Référence", u"DLF"},
    {u"DMF",  u"Diplome des Moulins de France", u"", u"", u"Nom activité", u"Référence", u"DMF"},
    {u"DOHF", u"Diplome des Ouvrages Hydrauliques Français", u"Détail ouvrage", u"", u"Nom activité", u"Référence", u"DOHF"},
    {u"DPF",  u"Diplome des Provinces Françaises", u"Liste Provinces", u"", u"Ville", u"Référence", u""},
    {u"DPLF", u"Diplome des Phares du Littoral Français", u"Liste des DPLF", u"", u"Nom activité", u"Référence", u"DPLF"},
    {u"DVFF", u"Diplome des Voies Ferrées de France", u"", u"", inchange, u"Référence", u"DVFF"},
    {u"DYLF", u"Diplome des YL de France", u"Scores", u"", u"Ville", u"Référence", u""},
    {u"FFF",  u"Diplome France Flora Fauna", u"Détail FFF", u"", u"Nom activité", u"Référence", u"FFF -"},
    {u"TDC",  u"Diplome des Tours De Chappe", u"Détail Tour", u"", u"Nom activité", u"Référence", u"TDC"},
    {u"WLF",  u"Diplome des Lacs de France", u"", u"", u"Nom activité", u"Référence", u"WL-F"},
    {u"PC",   u"Diplome du Patrimoine Culturel", u"Detail Patrimoine", u"", u"Nom activité", u"Référence", u"PC"},
    // Detail_1 of a challenge is set only where the sibling program is there.
    {u"Ch_DFCF", u"Challenge DFCF année ", u"Mise a jour via Vorlain", inchange, u"Nom activité", u"Référence (X)", u"DFCF"},
    {u"Ch_DMF",  u"Challenge DMF année ", u"Mise a jour via Vorlain", inchange, u"Nom activité", u"Référence (X)", u"DMF"},
}};
// clang-format on

} // namespace

const Habillage *Habillage_De(QStringView code)
{
    const auto *place = std::find_if(habillages.begin(), habillages.end(),
                                     [&](const Habillage &habillage) { return habillage.code == code; });
    return place == habillages.end() ? nullptr : place;
}

QStringView Type_Ref(QStringView code)
{
    const Habillage *habillage = Habillage_De(code);
    return habillage ? habillage->type_ref : code;
}

bool Est_Code_Diplome(QStringView texte)
{
    return Habillage_De(texte) != nullptr;
}

QString En_Forme_De_Code(const QString &texte)
{
    for (const QStringView code : codes_diplome)
        if (code.compare(texte, Qt::CaseInsensitive) == 0)
            return code.toString();
    return texte;
}

bool Est_Challenge(QStringView code)
{
    return code == u"Ch_DFCF" || code == u"Ch_DMF";
}
