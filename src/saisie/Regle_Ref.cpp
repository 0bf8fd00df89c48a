#include "saisie/Regle_Ref.h"

#include "log/Catalogue.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype entiere = 0;

// clang-format off
constexpr std::array<Regle_Ref, 18> regles = {{
    // award, minimum, maximum, message, department, name found, capitals, cut, prefix, prefix under edit
    {Diplome::DOHF, 7, 7, u"7 caractères pour la référence ex: 45EC102", Source_Dpt::Recherche, true, true, 30, u"", false},
    {Diplome::TDC,  6, 6, u"6 caractères pour la référence ex: 11-008", Source_Dpt::Recherche, true, true, entiere, u"", false},
    {Diplome::DCF,  0, 4, u"4 caractères maxi pour le numéro ex: 001 Cathédrale 001B Basislic 001C Collégiale", Source_Dpt::Recherche, true, true, 50, u"", false},
    {Diplome::FFF,  4, 4, u"4 caractères maxi pour la référence ex: 0051", Source_Dpt::Inchange, true, true, entiere, u"", false},
    {Diplome::DPLF, 0, 5, u"5 caractères maxi pour la référence ex: PB001", Source_Dpt::Recherche, true, false, entiere, u"", false},
    {Diplome::DFCF, 5, 5, u"5 caractères pour la référence ex: 77001", Source_Dpt::Deux_Premiers, true, true, entiere, u"C. ", false},
    {Diplome::DMF,  5, 5, u"5 caractères pour la référence ex: 77001", Source_Dpt::Deux_Premiers, false, false, entiere, u"M. ", false},
    {Diplome::DLF,  5, 5, u"5 caractères pour la référence ex: 77001", Source_Dpt::Deux_Premiers, false, false, entiere, u"L. ", false},
    // The message says 7 and the rule is 6.
    {Diplome::DAF,  6, 6, u"7 caractères pour la référence ex: 31001A", Source_Dpt::Deux_Premiers, false, false, entiere, u"A. ", false},
    {Diplome::DIFM, 5, 5, u"5 caractères pour la référence ex: AT071", Source_Dpt::Inchange, false, false, entiere, u"I. ", false},
    {Diplome::DIFI, 6, 6, u"6 caractères pour la référence ex: 44008R", Source_Dpt::Deux_Premiers, false, false, entiere, u"I. ", false},
    {Diplome::DCPF, 0, 7, u"7 caractères maxi pour la référence ex: 81PT001", Source_Dpt::Inchange, false, false, entiere, u"P. ", false},
    // The one award whose prefix overwrites a stored name.
    {Diplome::DFF,  0, 7, u"7 caractères maxi pour la référence ex: 31FP001", Source_Dpt::Deux_Premiers, false, false, entiere, u"F. ", true},
    {Diplome::DVFF, 0, 9, u"9 caractères maxi pour la référence ex: GA18001", Source_Dpt::Derriere_Lettres, false, false, entiere, u"G. ", false},
    {Diplome::WLF,  3, 3, u"3 caractères pour la référence ex: 151", Source_Dpt::Vide, false, false, entiere, u"L. ", false},
    {Diplome::PC,   5, 5, u"5 caractères pour la référence ex: 93001", Source_Dpt::Deux_Premiers, true, true, 30, u"", false},
    {Diplome::Ch_DFCF, 6, 6, u"6 caractères pour la référence ex: 77001R", Source_Dpt::Deux_Premiers, true, true, entiere, u"C. ", false},
    {Diplome::Ch_DMF,  6, 6, u"6 caractères pour la référence ex: 77001R", Source_Dpt::Inchange, false, false, entiere, u"M. ", false},
}};
// clang-format on

bool Est_Lettre_Challenge(QChar lettre)
{
    return lettre == u'A' || lettre == u'R' || lettre == u'B' || lettre == u'C';
}

} // namespace

const Regle_Ref *Regle_Ref_De(std::optional<Diplome> diplome)
{
    const auto *place =
        std::find_if(regles.begin(), regles.end(), [&](const Regle_Ref &regle) { return regle.diplome == diplome; });
    return place == regles.end() ? nullptr : place;
}

Refus Refus_Forme_Ref(const Regle_Ref &regle, QStringView ref)
{
    if (ref.size() < regle.minimum || ref.size() > regle.maximum)
        return regle.refus_longueur.toString();
    if (regle.diplome == Diplome::FFF && ref.contains(u'-'))
        return u"Pas de tirets dans la référence Ex: 0051"_s;
    // The message names D where the rule takes B.
    if (Est_Challenge(regle.diplome) && !Est_Lettre_Challenge(ref.back()))
        return u"Apres la référence, uniquement les caractères A, R, C, et D "_s;
    return std::nullopt;
}

QString Dpt_De_Ref(Source_Dpt source, QStringView ref)
{
    const auto deux_depuis = [&](qsizetype debut) { return ref.sliced(qMin(debut, ref.size())).left(2).toString(); };
    switch (source) {
    case Source_Dpt::Deux_Premiers:
        return deux_depuis(0);
    case Source_Dpt::Derriere_Lettres:
        return deux_depuis(ref.startsWith(u"GVM") ? 3 : 2);
    default:
        return {};
    }
}
