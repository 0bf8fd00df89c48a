#include "consultation/Toutes_Activites.h"

#include "log/Etat_Commun.h"
#include "log/Ligne_Log.h"
#include "log/Poste.h"
#include "log/Reglages_Station.h"
#include "plateforme/Dossier.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype indicatif_maximum = 12;

} // namespace

// clang-format off
const QStringView entete_toutes_activites = u" Indicatif     Dpt Prénom          Réference    Date     QTR   Mode   QRG   RstR RstE   Mom Activité / Ville         QSL";
// clang-format on

std::optional<QString> Refus_Activateur(QStringView indicatif)
{
    if (indicatif.isEmpty())
        return u"Entrez un indicatif"_s;
    if (indicatif.size() > indicatif_maximum)
        return u"12 caracteres maxi pour l'indicatif"_s;
    return std::nullopt;
}

void Ajoute_Activites(std::vector<QString> &entrees, const Lignes_Texte &log, QStringView texte,
                      std::optional<QString> &activateur)
{
    for (const QStringView ligne : log) {
        const QStringView indicatif = Lit_Rogne(ligne, colonnes_log::Ind);
        if (ligne.contains(texte))
            activateur = indicatif.toString();
        if (activateur == indicatif)
            entrees.push_back(u"  " + ligne);
    }
}

std::vector<QString> Toutes_Activites(Poste &poste, QStringView texte)
{
    Lit_Annees_Challenge(poste);
    std::vector<QString> entrees;
    // The activator found in one award is looked for in the next ones.
    std::optional<QString> activateur;
    for (const Diplome diplome : tous_les_diplomes) {
        entrees.push_back(Code(diplome) + u" -----");
        Ajoute_Activites(entrees, poste.dossier.Lit_Lignes(poste.etat.station.Log(diplome)), texte, activateur);
    }
    return entrees;
}
