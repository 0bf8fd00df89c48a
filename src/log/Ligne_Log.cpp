#include "log/Ligne_Log.h"

#include <algorithm>

namespace col = colonnes_log;

Champs_QSO Champs_Log(QStringView ligne_log)
{
    const auto texte = [&](Champ champ) { return Lit(ligne_log, champ).toString(); };
    return {.ind = texte(col::Ind),
            .dpt = texte(col::Dpt),
            .prenom = texte(col::Prenom),
            .ref = texte(col::Ref),
            .date = texte(col::Date),
            .heure = texte(col::Heure),
            .mode = texte(col::Mode),
            .bande = texte(col::Bande),
            .rstr = texte(col::RSTR),
            .rste = texte(col::RSTE),
            .nom = texte(col::Nom),
            .qsl = texte(col::QSL)};
}

QString Compose_Ligne_Log(const Champs_QSO &champs)
{
    QString ligne;
    ligne.reserve(col::longueur);
    const auto pose = [&](const QString &texte, Champ champ, qsizetype blancs) {
        ligne += texte.leftJustified(champ.largeur, u' ');
        ligne.resize(ligne.size() + blancs, u' ');
    };
    pose(champs.ind, col::Ind, 1);
    pose(champs.dpt, col::Dpt, 3);
    pose(champs.prenom, col::Prenom, 1);
    pose(champs.ref, col::Ref, 0);
    pose(champs.date, col::Date, 1);
    pose(champs.heure, col::Heure, 1);
    pose(champs.mode, col::Mode, 1);
    pose(champs.bande, col::Bande, 1);
    pose(champs.rstr, col::RSTR, 1);
    pose(champs.rste, col::RSTE, 1);
    pose(champs.nom, col::Nom, 1);
    pose(champs.qsl, col::QSL, 0);
    return ligne;
}

QString Recompose(QStringView ligne_log)
{
    QString ligne(col::longueur, u' ');
    for (const Champ champ : col::champs) {
        const QStringView texte = Lit(ligne_log, champ);
        std::copy(texte.begin(), texte.end(), ligne.begin() + champ.colonne - 1);
    }
    return ligne;
}

bool Memes_Champs(QStringView ligne_log, QStringView autre)
{
    return std::all_of(col::champs.begin(), col::champs.end(),
                       [&](Champ champ) { return Lit_Rogne(ligne_log, champ) == Lit_Rogne(autre, champ); });
}

bool Est_Confirme(QStringView ligne_log)
{
    return Lit(ligne_log, col::QSL) == qsl_tenue;
}
