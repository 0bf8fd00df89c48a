#include "outils/Supprime_Doubles.h"

#include "log/Ligne_Affichage.h"
#include "log/Ordre.h"
#include "outils/Reecrit_Log.h"

#include <algorithm>
#include <vector>

namespace {

namespace aff = colonnes_affichage;

/// The display line turned so that Ref stands first and the QSO number with Ind, Dpt and Prenom last.
struct Ligne_Tournee {
    QString texte;
    std::size_t rang;

    [[nodiscard]] QStringView Ref() const { return Rogne(QStringView(texte).first(aff::Ref.largeur)); }
};

Ligne_Tournee Tourne(std::size_t rang, QStringView ligne)
{
    const QString entree = Ligne_Affichage(rang + 1, Ajuste(ligne, colonnes_log::longueur));
    const qsizetype avant_ref = aff::Ref.colonne - 1;
    return {QStringView(entree).sliced(avant_ref) + QStringView(entree).first(avant_ref), rang};
}

/// For each line whether it stays.
std::vector<bool> Gardees(const Lignes_Texte &lignes)
{
    std::vector<Ligne_Tournee> tournees;
    tournees.reserve(lignes.size());
    for (std::size_t rang = 0; rang < lignes.size(); ++rang)
        tournees.push_back(Tourne(rang, lignes[rang]));
    std::stable_sort(tournees.begin(), tournees.end(),
                     [](const Ligne_Tournee &a, const Ligne_Tournee &b) { return Avant_Sans_Casse(a.texte, b.texte); });
    std::vector<bool> gardees(lignes.size(), false);
    // No trimmed reference is five blanks, so that the first line always differs.
    QStringView precedente = u"     ";
    for (const Ligne_Tournee &tournee : tournees) {
        gardees[tournee.rang] = tournee.Ref() != precedente;
        precedente = tournee.Ref();
    }
    return gardees;
}

} // namespace

QString Texte_Sans_Doubles(const Lignes_Texte &lignes)
{
    const std::vector<bool> gardees = Gardees(lignes);
    QString texte;
    for (std::size_t rang = 0; rang < lignes.size(); ++rang)
        if (gardees[rang])
            texte.append(Recompose(lignes[rang])).append(fin_de_ligne);
    return texte;
}

void Supprime_Doubles(Poste &poste)
{
    Reecrit_Log(poste, Outil::Doubles, {Texte_Sans_Doubles});
}
