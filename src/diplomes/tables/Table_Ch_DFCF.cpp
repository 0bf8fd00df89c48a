#include "diplomes/tables/Tables.h"

#include "diplomes/regles/Regle_Challenge.h"
#include "diplomes/regles/Remplit_Liste.h"
#include "log/Etat_Commun.h"

#include <array>

using namespace Qt::StringLiterals;

namespace diplomes {

// One sheet and one list for both yearly challenges, by the award that is open.

namespace {

struct Compte_A_L_Ecran {
    std::size_t lettre; ///< its place in the table of letters
    QStringView etiquette;
    QStringView texte;
    QStringView compte;
    QStringView points;
};

// clang-format off
constexpr std::array<Compte_A_L_Ecran, 4> comptes_a_l_ecran = {{
    {1, u"Label_A", u"Nombre de références activés contactés :", u"Tot_A", u"Points_A"},
    {0, u"Label_R", u"Nombre de références réactivés contactés :", u"Tot_R", u"Points_R"},
    {3, u"Label_C", u"Nombre de références activés validés :", u"Tot_C", u"Points_C"},
    {2, u"Label_B", u"Nombre de références réactivés validés :", u"Tot_B", u"Points_B"},
}};

constexpr std::array<Niveau_Diplome, 1> niveaux = {{{.bouton = u"Liste_Cha_DFCF", .choix = Choix{}}}};

// The file of both challenges bears the year of DFCF, and the "_" before the ending stays.
constexpr std::array<Sortie_De_Liste, 2> fichiers = {{
    {u"DFCF", u"{Indicatif}_Challenge_DFCF_{Annee_DFCF}_.txt", u"   {Indicatif}  Récapitulatif du Challenge DFCF {Annee}", u"   N°   Ref      Dpt      Nom du Chateau               Date    Heure  Indicatif   Points"},
    {u"DMF", u"{Indicatif}_Challenge_DMF_{Annee_DFCF}_.txt", u"   {Indicatif}  Récapitulatif du Challenge DMF {Annee}", u"   N°   Ref      Dpt      Nom du Moulin                Date    Heure  Indicatif   Points"},
}};
constexpr std::array<Sortie_De_Liste, 2> pages = {{
    {u"DFCF", u"", u"                 {Indicatif}  Récapitulatif du Challenge DFCF {Annee}", u"       N°   Ref      Dpt      Nom du Chateau               Date    Heure  Indicatif   Points"},
    {u"DMF", u"", u"                 {Indicatif}  Récapitulatif du Challenge DMF {Annee}", u"       N°   Ref      Dpt      Nom du Moulin                Date    Heure  Indicatif   Points"},
}};

constexpr QStringView total_enregistre = u"                                                                    Points Total : ";
constexpr QStringView total_imprime = u"                                                                       Points Total : ";
// clang-format on

bool Est_DMF(const Etat_Commun &etat)
{
    return etat.station.diplome == Diplome::Ch_DMF;
}

void Pose_Challenge(Valeurs &valeurs, const Etat_Commun &etat)
{
    valeurs.Pose(u"Challenge", Est_DMF(etat) ? u"DMF"_s : u"DFCF"_s);
    valeurs.Pose(u"Annee", Est_DMF(etat) ? etat.station.annee_ch_dmf : etat.station.annee_ch_dfcf);
    valeurs.Pose(u"Annee_DFCF", etat.station.annee_ch_dfcf);
}

Valeurs Valeurs_Du_Challenge(const Etat_Commun &etat)
{
    Valeurs valeurs(etat);
    Pose_Challenge(valeurs, etat);
    return valeurs;
}

Etat_Niveau Ligne_De_Points(const Compte_A_L_Ecran &compte, int nombre, int points)
{
    const QString lettre = compte.compte.last(1).toString();
    return {.etat = {compte.etiquette.toString(), compte.texte.toString()},
            .detail = {{compte.compte.toString(), QString::number(nombre)},
                       {u"Soit_"_s + lettre, u"soit"_s},
                       {compte.points.toString(), QString::number(points)},
                       {u"Mot_Points_"_s + lettre, u"points"_s}},
            .bouton = {},
            .avancement = {}};
}

Etat_Fiche Evalue_Fiche_Challenge(const Fiche_Diplome &fiche, const Lectures &lues, const Etat_Commun &etat)
{
    const std::array<int, 4> comptes = Compte_Challenge(lues.log);
    const Valeurs valeurs = Valeurs_Du_Challenge(etat);
    Etat_Fiche resultat{Compose(fiche.titre, valeurs), Compose(fiche.entete, valeurs), {}};
    int total = 0;
    for (const Compte_A_L_Ecran &compte : comptes_a_l_ecran) {
        const int points = comptes[compte.lettre] * lettres_challenge[compte.lettre].points;
        resultat.niveaux.push_back(Ligne_De_Points(compte, comptes[compte.lettre], points));
        total += points;
    }
    resultat.niveaux.push_back({.etat = {u"Label_Total"_s, u"Total"_s},
                                .detail = {{u"Points_Tot"_s, QString::number(total)}},
                                .bouton = {u"Liste_Cha_DFCF"_s, true},
                                .avancement = {}});
    return resultat;
}

Etat_Liste Evalue_Liste_Challenge(const Liste_Diplome &liste, const Lectures &lues, const Etat_Commun &etat)
{
    Rangs_Challenge rangs = Liste_Challenge(lues.log);
    Etat_Liste resultat = Textes_De_Liste(liste, etat);
    // "DFCF" stands for both challenges.
    resultat.compte = u' ' + QString::number(rangs.rangs.size()) + u" DFCF contactés avec  " +
                      QString::number(rangs.points_des_lettres) + u" points";
    resultat.rangs = std::move(rangs.rangs);
    const QString total = QString::number(rangs.total);
    resultat.pied_enregistre = {QString(), total_enregistre + total};
    resultat.pied_imprime = {QString(), total_imprime + total};
    return resultat;
}

constexpr Sources sources = {.diplome = Diplome::Ch_DFCF, .autre = Diplome::Ch_DMF};

} // namespace

constexpr Fiche_Diplome fiche_ch_dfcf = {
    .ecran = u"Diplomes_Ch_DFCF",
    .sources = sources,
    .titre = u"Challenge {Challenge} année {Annee}",
    .entete = u"Challenge {Challenge} année {Annee}",
    .liste = u"Liste_Ch_DFCF",
    .regles = {},
    .niveaux = niveaux,
    .evalue = Evalue_Fiche_Challenge,
};

constexpr Liste_Diplome liste_ch_dfcf = {
    .ecran = u"Liste_Ch_DFCF",
    .sources = sources,
    .nom = u"Liste_DFCF_Contacte",
    .titre = u"Challenge {Challenge} {Annee}",
    .entete = u"Challenge {Challenge} {Annee}",
    .colonnes = u"   Ref     Dpt         Nom de l'Activité          Date   Heure  Indicatif    Points",
    .compte = {},
    .rang = {},
    .selecteur = u"{Challenge}",
    .fichiers = fichiers,
    .pages = pages,
    .valeurs = Pose_Challenge,
    .evalue = Evalue_Liste_Challenge,
};

} // namespace diplomes
