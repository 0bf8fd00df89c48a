#include "consultation/Pages_Web.h"

#include "log/Cles.h"
#include "log/Etat_Commun.h"
#include "log/Poste.h"
#include "log/Reglages_Station.h"
#include "log/Serveurs.h"
#include "plateforme/Ecrans.h"

#include <algorithm>

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

namespace {

constexpr Reglement reglements[] = {
    {Diplome::DAF, u"DAF", u"/"},
    {Diplome::DCF, u"DCF", u"/ "}, // the blank belongs to the address
    {Diplome::DCPF, u"DCPF", u"/"},
    {Diplome::DDFM, u"DDFM", u"/"},
    {Diplome::DFCF, u"DFCF", u"/reglement.html"},
    {Diplome::DFF, u"DFF", u""},
    {Diplome::DIFI, u"DIFI", u"/activites-nature/difi/"},
    {Diplome::DIFM, u"DIFM", u"/index.php?Itemid=305"},
    {Diplome::DOHF, u"DOHF", u"/site/dohfhydro/reglement"},
    {Diplome::DPF, u"DDFM", u"/"}, // shares the page of DDFM on purpose
    {Diplome::DPLF, u"DPLF", u"/reglement-f.htm"},
    {Diplome::DMF, u"DMF", u"/reglements/dmf"},
    {Diplome::DLF, u"DLF", u"/DLF/DLF.html"},
    {Diplome::DVFF, u"DVFF", u"/?page_id=17"},
    {Diplome::DYLF, u"DYLF", u"/yls/fr/diplome-yl-france-2015"},
    {Diplome::TDC, u"TDC", u"/"},
    {Diplome::FFF, u"FFF", u"/diplomes-fff/diplomes-fff/"},
    {Diplome::WLF, u"WLF", u"/autres-programmes/les-lacs/"},
    {Diplome::PC, u"PC", u"/index.php?mod=reglement"},
    {Diplome::Ch_DFCF, u"DFCF", u"/coupes.html"},
    {Diplome::Ch_DMF, u"DMF", u"/reglements/challenge-dmf"},
};
// clang-format on

} // namespace

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

std::optional<Reglement> Reglement_De(std::optional<Diplome> diplome)
{
    const auto *reglement = std::find_if(std::begin(reglements), std::end(reglements),
                                         [&](const Reglement &un) { return un.diplome == diplome; });
    if (reglement == std::end(reglements))
        return std::nullopt;
    return *reglement;
}

void Choisit_Reglement(Poste &poste)
{
    if (const std::optional<Reglement> reglement = Reglement_De(poste.etat.station.diplome))
        poste.etat.adresse_page = Adresse_Serveur(poste, QString(u"Reglement " + reglement->site), reglement->chemin);
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
