#include "consultation/Colorie_Carte.h"

#include "log/Departement.h"
#include "log/Etat_Commun.h"
#include "log/Ligne_Log.h"
#include "log/Poste.h"
#include "plateforme/Dossier.h"
#include "plateforme/Entier.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int departements_en_tout = 96;
/// The department with the two blanks behind it.
constexpr Champ departement{14, 4};

Couleurs_Carte Carte_Vierge()
{
    Couleurs_Carte couleurs;
    couleurs.fill(Couleur_Dep::Non_Contacte);
    return couleurs;
}

bool Commence_Par_Un_Chiffre(QStringView texte)
{
    return !texte.isEmpty() && texte.front() >= u'0' && texte.front() <= u'9';
}

} // namespace

QString Texte_Dep(int numero)
{
    if (numero == dep_2a)
        return u"2A"_s;
    if (numero == dep_2b)
        return u"2B"_s;
    return QString::number(numero).rightJustified(2, u'0');
}

Couleurs_Carte Colorie(const Lignes_Texte &log)
{
    Couleurs_Carte couleurs = Carte_Vierge();
    for (const QStringView ligne : log) {
        const QStringView dpt = Lit_Rogne(ligne, departement);
        if (!Commence_Par_Un_Chiffre(dpt))
            continue;
        Couleur_Dep &couleur = couleurs[Indice(Entier(Departement_Replie(dpt)) - 1, nombre_dep)];
        if (Est_Confirme(ligne))
            couleur = Couleur_Dep::Confirme;
        else if (couleur != Couleur_Dep::Confirme)
            couleur = Couleur_Dep::Non_Confirme;
    }
    return couleurs;
}

Bilan_Carte Compte(const Couleurs_Carte &couleurs)
{
    const auto nombre = [&](Couleur_Dep couleur) {
        return static_cast<int>(std::count(couleurs.begin(), couleurs.end(), couleur));
    };
    const int non_confirmes = nombre(Couleur_Dep::Non_Confirme);
    const int confirmes = nombre(Couleur_Dep::Confirme);
    return {.total = non_confirmes + confirmes, .non_confirmes = non_confirmes, .confirmes = confirmes};
}

int Non_Contactes(const Bilan_Carte &bilan)
{
    return departements_en_tout - (bilan.non_confirmes + bilan.confirmes);
}

Carte_Contactee Colorie_Carte(const Poste &poste)
{
    const Couleurs_Carte couleurs = Colorie(poste.dossier.Lit_Lignes(poste.etat.station.Log_Courant()));
    return {.couleurs = couleurs, .bilan = Compte(couleurs)};
}

Couleurs_Carte Marque_Departement(QStringView departement_marque)
{
    Couleurs_Carte couleurs = Carte_Vierge();
    for (std::size_t rang = 0; rang < nombre_dep; ++rang)
        if (Texte_Dep(static_cast<int>(rang) + 1) == departement_marque)
            couleurs[rang] = Couleur_Dep::Confirme;
    return couleurs;
}
