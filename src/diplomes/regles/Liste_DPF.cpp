#include "diplomes/regles/Liste_DPF.h"

#include "diplomes/modele/Classe_Bande.h"
#include "diplomes/regles/Provinces.h"
#include "diplomes/regles/Regle_DPF.h"
#include "log/Catalogue.h"
#include "log/Etat_Commun.h"
#include "log/Ligne_Log.h"
#include "log/Ordre.h"
#include "plateforme/Windows_1252.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace diplomes {

namespace {

namespace col = colonnes_log;

/// The fields of a row before the province comes to the front.
namespace du_rang {
constexpr Champ Dpt{2, 2};
constexpr Champ Ind{6, 12};
constexpr Champ Date_Heure{20, 15};
constexpr Champ Bande{37, 7};
constexpr Champ Mode{46, 3};
constexpr Champ entier{1, 48};
} // namespace du_rang

constexpr qsizetype largeur_province = 20;
constexpr qsizetype largeur_province_et_bande = 33;

/// 18 MHz is HF and 50 MHz is THF here, unlike in the sheet. `bande` is the whole field.
Classe_Bande Classe(QStringView bande, Classe_Bande avant)
{
    for (const QStringView hf :
         {u"1.8 Mhz", u"3.5 Mhz", u"7.0 Mhz", u"14 Mhz ", u"18 Mhz ", u"21 Mhz ", u"24 Mhz ", u"28 Mhz "})
        if (bande == hf)
            return Classe_Bande::HF;
    const bool thf = bande == u"50 Mhz " || bande == u"144 Mhz" || bande == u"432 Mhz";
    return thf ? Classe_Bande::THF : avant;
}

bool Est_Bande_Comptee(QStringView bande)
{
    const auto comptees = std::span(bandes).first(9);
    return std::find(comptees.begin(), comptees.end(), bande) != comptees.end();
}

QString Rang(QStringView ligne)
{
    return u' ' + Majuscules_1252(Lit(ligne, col::Dpt)) + u"  " + Majuscules_1252(Lit(ligne, col::Ind)) + u"  " +
           Lit(ligne, col::Date) + u"  " + Lit(ligne, col::Heure) + u"  " + Lit(ligne, col::Bande) + u"  " +
           Lit_Rogne(ligne, col::Mode);
}

/// What stands behind the mode and its blanks; with a mode of three letters a blank stands before it.
QStringView Province(const QString &rang)
{
    return QStringView(rang).sliced(qMin(qsizetype{49}, rang.size()));
}

/// The rows, sorted, without those that begin as the last row kept.
std::vector<QString> Premiers(std::vector<QString> rangs, qsizetype largeur)
{
    Trie_Sans_Casse(rangs);
    const auto commence_pareil = [=](const QString &gauche, const QString &droite) {
        return gauche.left(largeur) == droite.left(largeur);
    };
    rangs.erase(std::unique(rangs.begin(), rangs.end(), commence_pareil), rangs.end());
    return rangs;
}

} // namespace

std::vector<QString> Rangs_Des_Lignes(const Lignes_Texte &lignes, const Etat_Commun &etat)
{
    const bool par_bande = etat.code_categorie == cinq_bandes_dpf;
    const std::optional<Classe_Bande> voulue = Classe_Nommee(etat.bande_liste);
    std::vector<QString> rangs;
    auto classe = Classe_Bande::Aucune;
    for (const QStringView ligne : lignes) {
        classe = Classe(Lit(ligne, col::Bande), classe);
        const bool sur_bande = par_bande ? Est_Bande_Comptee(Lit_Rogne(ligne, col::Bande)) : classe == voulue;
        if (sur_bande && Est_Confirme(ligne) && Lit_Rogne(ligne, col::Mode) == etat.mode_liste)
            rangs.push_back(Rang(ligne));
    }
    Trie_Sans_Casse(rangs);
    return rangs;
}

std::vector<QString> Avec_Province(const std::vector<QString> &rangs)
{
    std::vector<QString> resultat;
    QString province;
    QString cle_avant;
    for (const QString &rang : rangs) {
        const QStringView dpt = Lit(rang, du_rang::Dpt);
        const QString cle = dpt + u' ' + Lit_Rogne(rang, du_rang::Bande);
        if (cle != cle_avant) {
            Province_De_Departement(Rogne(dpt), province);
            resultat.push_back(rang + u"  " + Rogne(province));
        }
        cle_avant = cle;
    }
    Trie_Sans_Casse(resultat);
    return resultat;
}

std::vector<QString> Par_Province(const std::vector<QString> &rangs)
{
    std::vector<QString> resultat;
    for (const QString &rang : rangs)
        resultat.push_back(u' ' + Complete(Province(rang), 25) + Lit(rang, du_rang::entier));
    return Premiers(std::move(resultat), largeur_province);
}

std::vector<QString> Par_Province_Et_Bande(const std::vector<QString> &rangs)
{
    std::vector<QString> resultat;
    for (const QString &rang : rangs)
        resultat.push_back(u' ' + Complete(Province(rang), 25) + Lit(rang, du_rang::Bande) + u"  " +
                           Lit(rang, du_rang::Dpt) + u"  " + Lit(rang, du_rang::Ind) + u"  " +
                           Lit(rang, du_rang::Date_Heure) + u"  " + Lit(rang, du_rang::Mode));
    return Premiers(std::move(resultat), largeur_province_et_bande);
}

int Provinces_Sur_Cinq_Bandes(const std::vector<QString> &rangs)
{
    if (rangs.empty())
        return 0;
    int provinces = 0;
    int bandes_de_plus = 0;
    QString avant = rangs.front().left(largeur_province);
    for (const QString &rang : rangs) {
        const QString province = rang.left(largeur_province);
        if (province == avant) {
            ++bandes_de_plus;
            continue;
        }
        provinces += bandes_de_plus >= 4 ? 1 : 0;
        bandes_de_plus = 0;
        avant = province;
    }
    return provinces;
}

} // namespace diplomes
