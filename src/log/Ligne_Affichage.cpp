#include "log/Ligne_Affichage.h"

namespace aff = colonnes_affichage;
namespace col = colonnes_log;

QString Ligne_Affichage(std::size_t numero, QStringView ligne_log)
{
    const QString chiffres = QString::number(numero);
    QString entree;
    entree.reserve(aff::longueur + 2);
    entree.resize(qMax(qsizetype{0}, 6 - chiffres.size()) + 1, u' ');
    entree += chiffres;
    const auto pose = [&](qsizetype blancs, Champ champ) {
        entree.resize(entree.size() + blancs, u' ');
        entree += Lit(ligne_log, champ);
    };
    pose(2, col::Ind);
    pose(2, col::Dpt);
    pose(1, col::Prenom);
    pose(1, col::Ref);
    pose(1, col::Date);
    pose(2, col::Heure);
    pose(2, col::Mode);
    pose(2, col::Bande);
    pose(2, col::RSTR);
    pose(2, col::RSTE);
    pose(1, col::Nom);
    pose(2, col::QSL);
    return entree;
}

QString Ligne_Log_Affichee(QStringView ligne_affichage)
{
    const auto texte = [&](Champ champ) { return Lit(ligne_affichage, champ).toString(); };
    return Compose_Ligne_Log({.ind = texte(aff::Ind),
                              .dpt = texte(aff::Dpt),
                              .prenom = texte(aff::Prenom),
                              .ref = texte(aff::Ref),
                              .date = texte(aff::Date),
                              .heure = texte(aff::Heure),
                              .mode = texte(aff::Mode),
                              .bande = texte(aff::Bande),
                              .rstr = texte(aff::RSTR),
                              .rste = texte(aff::RSTE),
                              .nom = texte(aff::Nom),
                              .qsl = texte(aff::QSL)});
}
