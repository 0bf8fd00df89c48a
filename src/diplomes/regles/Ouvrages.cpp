#include "diplomes/regles/Ouvrages.h"

#include "log/Etat_Commun.h"
#include "log/Ligne_Log.h"

#include <algorithm>
#include <array>

namespace diplomes {

namespace {

constexpr Champ debut_de_ref{colonnes_log::Ref.colonne, 5};
constexpr Champ departement_de_ref{colonnes_log::Ref.colonne, 2};
constexpr Champ lettres_de_ref{colonnes_log::Ref.colonne + 2, 2};

struct Lettres_De_Categorie {
    QStringView lettres;
    QStringView categorie;
};

constexpr std::array<Lettres_De_Categorie, 9> categories = {{
    {u"BA", u"BA"},
    {u"EC", u"EC"},
    {u"BS", u"EC"},
    {u"PT", u"PT"},
    {u"PC", u"PT"},
    {u"TU", u"PT"},
    {u"AQ", u"AQ"},
    {u"MA", u"MA"},
    {u"PE", u"MA"},
}};

bool Est_De(QStringView lettres, QStringView categorie)
{
    return std::any_of(categories.begin(), categories.end(), [&](const Lettres_De_Categorie &rang) {
        return rang.lettres == lettres && rang.categorie == categorie;
    });
}

QString Lettres(QStringView texte)
{
    QString lettres;
    for (const QChar caractere : texte)
        if (caractere.unicode() > 64)
            lettres += caractere;
    return lettres;
}

} // namespace

bool Compte_Ouvrages(QStringView ligne_log, const Etat_Commun &etat)
{
    return etat.code_categorie == u"MI" || Est_De(Lettres(Lit(ligne_log, debut_de_ref)), etat.code_categorie);
}

bool Dans_Liste_DOHF(QStringView ligne_log, const Etat_Commun &etat)
{
    const QString &voulue = etat.categorie_liste;
    const QStringView lettres = Lit(ligne_log, lettres_de_ref);
    // Dams and aqueducts stand in every list: the test of their letters never asks for the category.
    return voulue == u"MI" || lettres == u"BA" || lettres == u"AQ" || lettres == voulue || Est_De(lettres, voulue);
}

bool Departement_Est_Categorie(QStringView ligne_log, const Etat_Commun &etat)
{
    // The columns hold the department and are compared with a category. It stands so.
    return Lit_Rogne(ligne_log, departement_de_ref) == etat.code_categorie;
}

void Copie_Categorie(Etat_Commun &etat)
{
    etat.categorie_liste = etat.code_categorie;
}

} // namespace diplomes
