#include "outils/Fusion_Activite.h"

#include "log/Chemin_Log.h"
#include "log/Ecran_Principal.h"
#include "log/Etat_Commun.h"
#include "log/Poste.h"
#include "outils/Fusion_Challenge.h"
#include "plateforme/Boites.h"
#include "plateforme/Dossier.h"

using namespace Qt::StringLiterals;

namespace {

constexpr Champ annee_du_qso{51, 2};
constexpr Champ lettre{40, 1};

QString Avec_La_Lettre_A(QStringView ligne)
{
    return ligne.toString().replace(lettre.colonne - 1, lettre.largeur, u'A');
}

} // namespace

std::vector<QString> Activations(const Lignes_Texte &source, const Lignes_Texte &challenge, QStringView annee)
{
    const Lignes_Par_Site anciennes(challenge);
    std::vector<QString> lignes;
    for (const QStringView ligne : source) {
        if (Lit(ligne, annee_du_qso) != annee)
            continue;
        const std::optional<QStringView> ancienne = anciennes.Pour(Lit(ligne, site_challenge));
        lignes.push_back(ancienne ? ancienne->toString() : Avec_La_Lettre_A(ligne));
    }
    return lignes;
}

void Fusion_Activite(Poste &poste, Diplome de)
{
    if (poste.ecran.Dip_A() != poste.etat.station.diplome) {
        poste.boites.Message(u"Selectionnez un diplome"_s);
        poste.ecran.Va_A_Dip_A();
        return;
    }
    poste.boites.Message(u"Attention toutes les références importées sont uniquement des Activations 'A'\n"
                         u"N'oubliez pas d'enregistrer toutes les réactivations 'R'"_s);
    const Diplome challenge = de == Diplome::DMF ? Diplome::Ch_DMF : Diplome::Ch_DFCF;
    const QString nom = poste.etat.station.Log_Courant();
    const Lignes_Texte source = poste.dossier.Lit_Lignes(Chemin_Log(poste.etat.station.indicatif, de));
    Acheve_Fusion(poste, nom, Activations(source, poste.dossier.Lit_Lignes(nom), Annee_Courte(poste, challenge)));
}
