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

} // namespace

QString Cle_De_Tri(QStringView ligne_log)
{
    const QString pleine = Ajuste(ligne_log, col::longueur);
    const QStringView date = Lit(pleine, col::Date);
    const QStringView heure = Lit(pleine, col::Heure);
    const int annee = Annee_Entiere(date.last(2).toInt());
    const QString entree = Ligne_Affichage(1, pleine);
    return QString::number(annee) + date.sliced(3, 2) + date.first(2) + heure.first(2) + heure.last(2) + u"     " +
           QStringView(entree).sliced(aff::Ind.colonne - 1, 43) + QStringView(entree).sliced(aff::Mode.colonne - 1);
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
        texte.append(triee.ligne).append(fin_de_ligne);
    return texte;
}

void Trie_Log(Poste &poste)
{
    Reecrit_Log(poste, Texte_Trie);
}
