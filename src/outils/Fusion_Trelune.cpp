#include "outils/Fusion_Trelune.h"

#include "listes/Index_Liste.h"
#include "listes/Table_Recherches.h"
#include "log/Chemin_Log.h"
#include "log/Cles.h"
#include "log/Etat_Commun.h"
#include "log/Ligne_Log.h"
#include "log/Poste.h"
#include "outils/Fusion_Challenge.h"
#include "plateforme/Boites.h"
#include "plateforme/Dossier.h"
#include "plateforme/Entier.h"
#include "plateforme/Reglages.h"
#include "plateforme/Windows_1252.h"

using namespace Qt::StringLiterals;

namespace {

/// One QSO of the sibling's log.
namespace colonnes_trelune {
constexpr Champ Date{1, 8};
constexpr Champ Annee{7, 2};
constexpr Champ Ind{11, 12};
constexpr Champ Heure{23, 5};
constexpr Champ Dpt{37, 2};
constexpr Champ Bande{50, 7};
constexpr Champ Mode{60, 3};
constexpr Champ RSTE{69, 3};
constexpr Champ RSTR{79, 3};
constexpr Champ Ref_DMF{93, 5};
constexpr Champ Ref_DFCF{94, 5};
constexpr Champ Prenom{111, 15};
constexpr Champ QSL{135, 1};
constexpr Champ Genre{165, 2};
constexpr Champ Nom{169, 30};
} // namespace colonnes_trelune

namespace trelune = colonnes_trelune;

bool Est_DMF(Diplome challenge)
{
    return challenge == Diplome::Ch_DMF;
}

bool Compte(QStringView qso, Diplome challenge, QStringView annee)
{
    const int genre = Est_DMF(challenge) ? 2 : 1;
    return Lit(qso, trelune::Annee) == annee && Entier_De_Tete(Lit(qso, trelune::Genre)) == genre;
}

QString Ligne_Du_Log(QStringView qso, QStringView site, const QString &nom)
{
    const auto texte = [&](Champ champ) { return Lit(qso, champ).toString(); };
    const QString qsl = texte(trelune::QSL);
    return Compose_Ligne_Log({.ind = texte(trelune::Ind),
                              .dpt = texte(trelune::Dpt),
                              .prenom = texte(trelune::Prenom),
                              .ref = site + u"A    ",
                              .date = texte(trelune::Date),
                              .heure = texte(trelune::Heure),
                              .mode = texte(trelune::Mode),
                              .bande = texte(trelune::Bande),
                              .rstr = texte(trelune::RSTR),
                              .rste = texte(trelune::RSTE),
                              .nom = Majuscules_1252(nom),
                              .qsl = qsl == u"3" || qsl == u"4" ? qsl_tenue.toString() : u" "_s});
}

/// An old line stays, but for one of Ch_DFCF that has no name: asymmetric on purpose.
bool Reste(const std::optional<QStringView> &ancienne, Diplome challenge)
{
    return ancienne && (Est_DMF(challenge) || !Lit_Rogne(*ancienne, colonnes_log::Nom).isEmpty());
}

} // namespace

std::vector<QString> Activations_Trelune(Diplome challenge, const Lignes_Texte &trelune_log,
                                         const Lignes_Texte &anciennes, QStringView annee, const Nom_De_Site &nom)
{
    const Lignes_Par_Site par_site(anciennes);
    std::vector<QString> lignes;
    for (const QStringView qso : trelune_log) {
        if (!Compte(qso, challenge, annee))
            continue;
        const QStringView site = Lit(qso, Est_DMF(challenge) ? trelune::Ref_DMF : trelune::Ref_DFCF);
        const QString nouveau_nom = Est_DMF(challenge) ? Lit(qso, trelune::Nom).toString() : nom(site);
        const std::optional<QStringView> ancienne = par_site.Pour(site);
        lignes.push_back(Reste(ancienne, challenge) ? Compose_Ligne_Log(Champs_Log(*ancienne))
                                                    : Ligne_Du_Log(qso, site, nouveau_nom));
    }
    return lignes;
}

void Fusion_Trelune(Poste &poste)
{
    // clang-format off
    poste.boites.Message(
        u"Attention toutes les références importées de Vorlain_Trelune sont marquées 'A' même si ce sont des réactivations\n"
        u"Dans le cas d'une réactivation pensez à renommer la référence en remplacant la lettre 'A' par la lettre 'R' "_s);
    // clang-format on
    const Diplome challenge = *poste.etat.station.diplome;
    const QString dossier =
        poste.reglages.Lit_Trelune(u"Setup"_s, cles::chemin_repertoire.toString(), u"C:\\Vorlain_Trelune"_s);
    const Lignes_Texte qsos = poste.dossier.Lit_Lignes(dossier + u'/' + poste.etat.station.indicatif + u".log");
    const QString nom = poste.etat.station.Log(challenge);
    const Lignes_Texte anciennes = poste.dossier.Lit_Lignes(nom);
    Index_Liste chateaux(recherches::Cherche_DFCF, poste.dossier);
    const auto nom_du_chateau = [&](QStringView site) { return *chateaux.Cherche(site).sorties.nom; };
    Acheve_Fusion(poste, nom,
                  Activations_Trelune(challenge, qsos, anciennes, Annee_Courte(poste, challenge), nom_du_chateau));
}
