#include "saisie/Regle_Ref.h"

#include "log/Catalogue.h"

using namespace Qt::StringLiterals;

namespace {

bool Est_Lettre_Challenge(QChar lettre)
{
    return lettre == u'A' || lettre == u'R' || lettre == u'B' || lettre == u'C';
}

} // namespace

const Regle_Ref *Regle_Ref_De(std::optional<Diplome> diplome)
{
    if (!diplome)
        return nullptr;
    const std::optional<Regle_Ref> &regle = Notice_De(*diplome).ref;
    return regle ? &*regle : nullptr;
}

Refus Refus_Forme_Ref(Diplome diplome, QStringView ref)
{
    const Regle_Ref &regle = Notice_De(diplome).ref.value();
    if (ref.size() < regle.minimum || ref.size() > regle.maximum)
        return regle.refus_longueur.toString();
    if (diplome == Diplome::FFF && ref.contains(u'-'))
        return u"Pas de tirets dans la référence Ex: 0051"_s;
    // The message names D where the rule takes B.
    if (Est_Challenge(diplome) && !Est_Lettre_Challenge(ref.back()))
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
