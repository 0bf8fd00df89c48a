#include "saisie/Boutons_Reference.h"

#include "log/Catalogue.h"
#include "log/Etat_Commun.h"
#include "log/Poste.h"
#include "plateforme/Boites.h"
#include "plateforme/Commandes.h"
#include "plateforme/Ecrans.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct Reponse {
    Diplome diplome;
    QStringView ecran;    ///< the screen that opens, or
    QStringView commande; ///< the command that runs
};

// clang-format off
constexpr Reponse reponses[] = {
    {Diplome::DOHF, u"Detail_Activite", u""},
    {Diplome::DCF, u"Liste_References", u""},
    {Diplome::DFCF, u"Detail_DFCF", u""},
    {Diplome::DYLF, u"Scores_DYLF", u""},
    {Diplome::DPF, u"Detail_DPF", u""},
    {Diplome::TDC, u"Detail_TDC", u""},
    {Diplome::FFF, u"Detail_FFF", u""},
    {Diplome::DPLF, u"Liste_References", u""},
    {Diplome::PC, u"Detail_PC", u""},
    {Diplome::DDFM, u"", u"Collecte_DDFM"},
    {Diplome::Ch_DFCF, u"", u"Fusion_Activite_DFCF"},
    {Diplome::Ch_DMF, u"", u"Fusion_Activite_DMF"},
    {Diplome::DIFM, u"", u"Liste_Des_Iles"},
};
// clang-format on

void Dit_Inactif(Poste &poste)
{
    poste.boites.Message(u"Bouton inactif pour ce diplome"_s);
}

} // namespace

void Presse_Detail(Poste &poste, Commandes &commandes)
{
    const std::optional<Diplome> diplome = poste.etat.station.diplome;
    // Ch_DMF is not spared the question as Ch_DFCF is.
    if (diplome != Diplome::Ch_DFCF && poste.etat.ligne_selectionnee.isEmpty()) {
        poste.boites.Message(u"Selectionnez un QSO"_s);
        return;
    }
    const auto *reponse =
        std::find_if(std::begin(reponses), std::end(reponses), [&](const Reponse &r) { return r.diplome == diplome; });
    if (reponse == std::end(reponses))
        Dit_Inactif(poste);
    else if (!reponse->ecran.isEmpty())
        poste.ecrans.Montre(reponse->ecran.toString());
    else
        commandes.Execute(reponse->commande.toString());
}

void Presse_Detail_1(Poste &poste, Commandes &commandes)
{
    if (Est_Challenge(poste.etat.station.diplome))
        commandes.Execute(u"Fusion_Trelune"_s);
    else
        Dit_Inactif(poste);
}
