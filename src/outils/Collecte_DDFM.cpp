#include "outils/Collecte_DDFM.h"

#include "log/Charge_Log.h"
#include "log/Chemin_Log.h"
#include "log/Ecran_Principal.h"
#include "log/Etat_Commun.h"
#include "log/Garde_Copie.h"
#include "log/Ligne_Log.h"
#include "log/Ordre.h"
#include "log/Poste.h"
#include "plateforme/Dossier.h"
#include "plateforme/Entier.h"

using namespace Qt::StringLiterals;

namespace {

/// A Ligne_Log with its parts turned so that department, mode and band lead.
namespace travail {
constexpr Champ Dpt{1, 2};
constexpr Champ Mode{6, 3};
constexpr Champ Bande{10, 7};
} // namespace travail

QString Ligne_De_Travail(QStringView ligne)
{
    return Lit(ligne, {14, 5}) + Lit(ligne, {60, 12}) + Lit(ligne, {1, 13}) + Lit(ligne, {19, 41}) +
           Lit(ligne, {72, 40});
}

QString Ligne_Rendue(QStringView travail)
{
    return Lit(travail, {18, 13}) + Lit(travail, {1, 5}) + Lit(travail, {31, 41}) + Lit(travail, {6, 12}) +
           Lit(travail, {72, 40});
}

bool Meme_Departement_Mode_Et_Bande(QStringView a, QStringView b)
{
    return Lit(a, travail::Dpt) == Lit(b, travail::Dpt) && Lit(a, travail::Mode) == Lit(b, travail::Mode) &&
           Lit(a, travail::Bande) == Lit(b, travail::Bande);
}

bool Est_De_Metropole(QStringView dpt)
{
    return !Rogne(dpt).isEmpty() && Entier_De_Tete(dpt) <= 95;
}

std::vector<QString> Confirmees(std::span<const Lignes_Texte> logs)
{
    std::vector<QString> lignes;
    for (const Lignes_Texte &log : logs)
        for (const QStringView ligne : log)
            if (Est_Confirme(ligne))
                lignes.push_back(Ligne_De_Travail(ligne));
    Trie_Sans_Casse(lignes);
    return lignes;
}

} // namespace

std::vector<QString> Lignes_DDFM(std::span<const Lignes_Texte> logs)
{
    std::vector<QString> lignes;
    QStringView gardee;
    const std::vector<QString> confirmees = Confirmees(logs);
    for (const QString &ligne : confirmees) {
        if (Meme_Departement_Mode_Et_Bande(ligne, gardee))
            continue;
        gardee = ligne;
        if (Est_De_Metropole(Lit(ligne, travail::Dpt)))
            lignes.push_back(Ligne_Rendue(ligne));
    }
    return lignes;
}

void Collecte_DDFM(Poste &poste)
{
    const QString &indicatif = poste.etat.station.indicatif;
    std::vector<Lignes_Texte> logs;
    for (const Diplome diplome : tous_les_diplomes)
        logs.push_back(poste.dossier.Lit_Lignes(Chemin_Log(indicatif, diplome)));
    QString texte;
    for (const QString &ligne : Lignes_DDFM(logs))
        texte.append(ligne).append(fin_de_ligne);
    const QString nom = Chemin_Log(indicatif, Diplome::DDFM);
    Remplace_En_Gardant(poste, Outil::Collecte, nom, [&] { poste.dossier.Remplace(nom, texte, u"Temporaire.txt"_s); });
    Charge_Log(poste, poste.etat.station.diplome);
    poste.ecran.Selectionne_Derniere();
}
