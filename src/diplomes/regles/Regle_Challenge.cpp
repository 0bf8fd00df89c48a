#include "diplomes/regles/Regle_Challenge.h"

#include "diplomes/modele/Rangs.h"
#include "diplomes/regles/Remplit_Liste.h"
#include "log/Departement.h"
#include "log/Ordre.h"

namespace diplomes {

namespace {

namespace col = colonnes_log;

QChar Derniere_Lettre(QStringView ligne)
{
    const QStringView ref = Lit_Rogne(ligne, col::Ref);
    return ref.isEmpty() ? QChar() : ref.back();
}

QString Rang(QStringView ligne, const std::optional<int> &points)
{
    const QString rang = Compose_Rang(rang_commun_ref_10, ligne, Departement_Replie(Lit(ligne, col::Dpt)));
    return points ? QString(rang + u"  " + QString::number(*points)) : QString(rang + u' ');
}

} // namespace

std::optional<int> Points_Challenge(QStringView ligne_log)
{
    const QChar derniere = Derniere_Lettre(ligne_log);
    for (const auto &[lettre, points] : lettres_challenge)
        if (lettre == derniere)
            return points;
    return std::nullopt;
}

std::array<int, 4> Compte_Challenge(const Lignes_Texte &lignes)
{
    std::array<int, 4> comptes = {};
    for (const QStringView ligne : lignes)
        for (std::size_t i = 0; i < comptes.size(); ++i)
            comptes[i] += Derniere_Lettre(ligne) == lettres_challenge[i].lettre ? 1 : 0;
    return comptes;
}

Rangs_Challenge Liste_Challenge(const Lignes_Texte &lignes)
{
    Rangs_Challenge liste;
    std::optional<int> points;
    for (const QStringView ligne : lignes) {
        const std::optional<int> siens = Points_Challenge(ligne);
        if (siens)
            points = siens;
        liste.points_des_lettres += siens.value_or(0);
        liste.total += points.value_or(0);
        liste.rangs.push_back(Rang(ligne, points));
    }
    Trie_Sans_Casse(liste.rangs);
    return liste;
}

} // namespace diplomes
