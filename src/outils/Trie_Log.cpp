#include "outils/Trie_Log.h"

#include "log/Ligne_Affichage.h"
#include "log/Moment.h"
#include "log/Ordre.h"
#include "outils/Reecrit_Log.h"

#include <algorithm>
#include <vector>

namespace {

namespace col = colonnes_log;
namespace aff = colonnes_affichage;

struct Ligne_A_Trier {
    QString cle;
    QStringView ligne;
};

constexpr Champ annee_du_qso{51, 2};

int Annee(QStringView ligne_log)
{
    return Annee_Entiere(qMax(0, Lit(ligne_log, annee_du_qso).toInt()));
}

/// The record as its sort key has it: date and time get their separators back, and a year that is no number is 00.
QString Ligne_Triee(QStringView ligne_log)
{
    QString ligne = Recompose(ligne_log);
    const auto pose = [&](qsizetype colonne, QStringView texte) {
        ligne.replace(colonne - 1, texte.size(), texte.data(), texte.size());
    };
    pose(col::Date.colonne + 2, u"/");
    pose(col::Date.colonne + 5, u"/");
    pose(annee_du_qso.colonne, QString::number(Annee(ligne_log)).last(annee_du_qso.largeur));
    pose(col::Heure.colonne + 2, u":");
    return ligne;
}

} // namespace

QString Cle_De_Tri(QStringView ligne_log)
{
    const QString pleine = Ajuste(ligne_log, col::longueur);
    const QStringView date = Lit(pleine, col::Date);
    const QStringView heure = Lit(pleine, col::Heure);
    const QString entree = Ligne_Affichage(1, pleine);
    return QString::number(Annee(pleine)) + date.sliced(3, 2) + date.first(2) + heure.first(2) + heure.last(2) +
           u"     " + QStringView(entree).sliced(aff::Ind.colonne - 1, 43) +
           QStringView(entree).sliced(aff::Mode.colonne - 1);
}

QString Texte_Trie(const Lignes_Texte &lignes)
{
    std::vector<Ligne_A_Trier> triees;
    triees.reserve(lignes.size());
    for (const QStringView ligne : lignes)
        triees.push_back({Cle_De_Tri(ligne), ligne});
    std::stable_sort(triees.begin(), triees.end(),
                     [](const Ligne_A_Trier &a, const Ligne_A_Trier &b) { return Avant_Sans_Casse(a.cle, b.cle); });
    QString texte;
    for (const Ligne_A_Trier &triee : triees)
        texte.append(Ligne_Triee(triee.ligne)).append(fin_de_ligne);
    return texte;
}

void Trie_Log(Poste &poste)
{
    Reecrit_Log(poste, Outil::Tri, {Texte_Trie});
}
