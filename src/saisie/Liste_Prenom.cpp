#include "saisie/Liste_Prenom.h"

#include "log/Champ.h"
#include "plateforme/Dossier.h"
#include "plateforme/Windows_1252.h"

using namespace Qt::StringLiterals;

namespace {

constexpr Champ colonne_ind{1, 12};
constexpr Champ colonne_dpt{14, 2};
constexpr qsizetype debut_prenom = 16;

} // namespace

Prenom_Trouve Cherche_Prenom_Dans(const Lignes_Texte &lignes, QStringView ind)
{
    for (const QStringView ligne : lignes) {
        if (Lit_Rogne(ligne, colonne_ind) != ind)
            continue;
        Prenom_Trouve trouve;
        trouve.dpt = Lit(ligne, colonne_dpt).toString();
        trouve.prenom = Majuscules_1252(ligne.sliced(qMin(debut_prenom, ligne.size())));
        trouve.nouveau = trouve.dpt.isEmpty() || trouve.prenom.isEmpty();
        return trouve;
    }
    return {};
}

QString Texte_Maj_Prenom(const Lignes_Texte &lignes, QStringView ligne)
{
    QString texte;
    bool connu = false;
    for (const QStringView ancienne : lignes) {
        const bool la_meme = Lit(ancienne, colonne_ind) == Lit(ligne, colonne_ind);
        texte.append(la_meme ? ligne : ancienne).append(fin_de_ligne);
        connu = connu || la_meme;
    }
    if (!connu)
        texte.append(ligne).append(fin_de_ligne);
    return texte;
}

Prenom_Trouve Cherche_Prenom(const Dossier &dossier, QStringView ind)
{
    return Cherche_Prenom_Dans(dossier.Lit_Lignes(fichier_prenoms.toString()), ind);
}

void Maj_Prenom(Dossier &dossier, QStringView ligne)
{
    const QString nom = fichier_prenoms.toString();
    dossier.Remplace(nom, Texte_Maj_Prenom(dossier.Lit_Lignes(nom), ligne), u"Temporaire.txt"_s);
}
