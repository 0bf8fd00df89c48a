#include "saisie/Boutons_Reference.h"

#include "log/Catalogue.h"
#include "log/Ecran_Principal.h"
#include "log/Etat_Commun.h"
#include "log/Notice.h"
#include "log/Poste.h"
#include "plateforme/Boites.h"
#include "plateforme/Commandes.h"
#include "plateforme/Ecrans.h"

using namespace Qt::StringLiterals;

namespace {

void Dit_Inactif(Poste &poste)
{
    poste.boites.Message(u"Bouton inactif pour ce diplome"_s);
}

} // namespace

void Presse_Detail(Poste &poste, Commandes &commandes)
{
    const std::optional<Diplome> diplome = poste.etat.station.diplome;
    const Reponse_Detail reponse = diplome ? Notice_De(*diplome).detail : Reponse_Detail();
    if (!reponse.sans_qso && poste.ecran.Ligne_Selectionnee().isEmpty())
        poste.boites.Message(u"Selectionnez un QSO"_s);
    else if (!reponse.ecran.isEmpty())
        poste.ecrans.Montre(reponse.ecran.toString());
    else if (!reponse.commande.isEmpty())
        commandes.Execute(reponse.commande.toString());
    else
        Dit_Inactif(poste);
}

void Presse_Detail_1(Poste &poste, Commandes &commandes)
{
    if (Est_Challenge(poste.etat.station.diplome))
        commandes.Execute(u"Fusion_Trelune"_s);
    else
        Dit_Inactif(poste);
}
