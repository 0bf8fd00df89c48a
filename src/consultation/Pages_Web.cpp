#include "consultation/Pages_Web.h"

#include "log/Cles.h"
#include "log/Etat_Commun.h"
#include "log/Notice.h"
#include "log/Poste.h"
#include "log/Reglages_Station.h"
#include "log/Serveurs.h"
#include "plateforme/Ecrans.h"

using namespace Qt::StringLiterals;

// clang-format off
const std::array<Bande_Cluster, 14> bandes_cluster = {{
    {u"All HF", u"HF", true},
    {u"1.8 Mhz", u"1.8"},
    {u"3.5 Mhz", u"3.5"},
    {u"7.0 Mhz", u"7"},
    {u"10 Mhz", u"10"},
    {u"14 Mhz", u"14"},
    {u"18 Mhz", u"18"},
    {u"21 Mhz", u"21"},
    {u"24 Mhz", u"24"},
    {u"28 Mhz", u"28"},
    {u"50 Mhz", u"50"},
    {u"144 Mhz", u"144"},
    {u"432 Mhz", u"430"}, // the site's own name of the band
    {u"All VHF", u"VHF", true},
}};
// clang-format on

QString Chemin_Cluster(std::size_t place)
{
    const Bande_Cluster &bande = bandes_cluster.at(place);
    if (bande.tout)
        return u"/dxc/top_250_" + bande.segment + u".html";
    return u"/dxc/top_50_" + bande.segment + u"_MHz.html";
}

int Place_Cluster(const Poste &poste)
{
    const int place = Lit_Station(poste, cles::bande_cluster, u"0").toInt();
    return place >= 0 && place < static_cast<int>(bandes_cluster.size()) ? place : 0;
}

void Choisit_Cluster(Poste &poste, int place)
{
    Ecrit_Station(poste, cles::bande_cluster, QString::number(place));
    poste.etat.adresse_page = Adresse_Serveur(poste, u"Cluster", Chemin_Cluster(static_cast<std::size_t>(place)));
}

void Choisit_Reglement(Poste &poste)
{
    const std::optional<Diplome> diplome = poste.etat.station.diplome;
    if (!diplome)
        return;
    const Reglement &reglement = Notice_De(*diplome).reglement;
    poste.etat.adresse_page = Adresse_Serveur(poste, QString(u"Reglement " + Code(reglement.site)), reglement.chemin);
}

void Liste_Des_Iles(Poste &poste)
{
    poste.etat.adresse_page = Adresse_Serveur(poste, u"DIFM", u"/DIFM/DIFML.HTM");
    poste.etat.titre_page = u"Liste des iles Françaises metropolitaines"_s;
    poste.ecrans.Montre(u"Affichage"_s);
}

QString Message_Sans_Serveur()
{
    return u"Aucun serveur n'est configuré pour cette page : son nom se met dans les réglages, section Serveurs."_s;
}
