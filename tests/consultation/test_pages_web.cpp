#include "consultation/Pages_Web.h"
#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "log/Catalogue.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Cluster, chaque_bande_a_sa_page)
{
    // clang-format off
    const std::vector<std::pair<QString, QString>> attendus = {
        {u"All HF"_s, u"/dxc/top_250_HF.html"_s},
        {u"1.8 Mhz"_s, u"/dxc/top_50_1.8_MHz.html"_s},
        {u"3.5 Mhz"_s, u"/dxc/top_50_3.5_MHz.html"_s},
        {u"7.0 Mhz"_s, u"/dxc/top_50_7_MHz.html"_s},
        {u"10 Mhz"_s, u"/dxc/top_50_10_MHz.html"_s},
        {u"14 Mhz"_s, u"/dxc/top_50_14_MHz.html"_s},
        {u"18 Mhz"_s, u"/dxc/top_50_18_MHz.html"_s},
        {u"21 Mhz"_s, u"/dxc/top_50_21_MHz.html"_s},
        {u"24 Mhz"_s, u"/dxc/top_50_24_MHz.html"_s},
        {u"28 Mhz"_s, u"/dxc/top_50_28_MHz.html"_s},
        {u"50 Mhz"_s, u"/dxc/top_50_50_MHz.html"_s},
        {u"144 Mhz"_s, u"/dxc/top_50_144_MHz.html"_s},
        {u"432 Mhz"_s, u"/dxc/top_50_430_MHz.html"_s},
        {u"All VHF"_s, u"/dxc/top_250_VHF.html"_s},
    };
    // clang-format on
    ASSERT_EQ(bandes_cluster.size(), attendus.size());
    for (std::size_t place = 0; place < attendus.size(); ++place) {
        EXPECT_EQ(bandes_cluster[place].entree, attendus[place].first);
        EXPECT_EQ(Chemin_Cluster(place), attendus[place].second);
    }
}

TEST(Cluster, la_bande_survit_a_un_redemarrage)
{
    Poste_Essai essai;
    essai.reglages.Ecrit(u"Serveurs"_s, u"Cluster"_s, u"spots.test"_s);
    EXPECT_EQ(Place_Cluster(essai.poste), 0);
    Choisit_Cluster(essai.poste, 12);
    EXPECT_EQ(essai.etat.adresse_page, u"http://spots.test/dxc/top_50_430_MHz.html"_s);
    EXPECT_EQ(essai.reglages.Lit(u"Setup F9ZZY"_s, u"bande Cluster"_s, {}), u"12"_s);
    EXPECT_EQ(Place_Cluster(essai.poste), 12);
}

TEST(Cluster, un_reglage_sans_place_est_la_premiere)
{
    Poste_Essai essai;
    for (const QString &reglage : {u"14"_s, u"-1"_s, u"x"_s, u""_s}) {
        essai.reglages.Ecrit(u"Setup F9ZZY"_s, u"bande Cluster"_s, reglage);
        EXPECT_EQ(Place_Cluster(essai.poste), 0);
    }
}

TEST(Reglements, chaque_diplome_a_sa_page_sur_son_site)
{
    Poste_Essai essai;
    for (const QStringView code : codes_diplome)
        essai.reglages.Ecrit(u"Serveurs"_s, u"Reglement " + code, code + u".test");
    // clang-format off
    const std::vector<std::pair<QString, QString>> attendus = {
        {u"DAF"_s, u"http://DAF.test/"_s},
        {u"DCF"_s, u"http://DCF.test/ "_s},
        {u"DCPF"_s, u"http://DCPF.test/"_s},
        {u"DDFM"_s, u"http://DDFM.test/"_s},
        {u"DFCF"_s, u"http://DFCF.test/reglement.html"_s},
        {u"DFF"_s, u"http://DFF.test"_s},
        {u"DIFI"_s, u"http://DIFI.test/activites-nature/difi/"_s},
        {u"DIFM"_s, u"http://DIFM.test/index.php?Itemid=305"_s},
        {u"DOHF"_s, u"http://DOHF.test/site/dohfhydro/reglement"_s},
        {u"DPF"_s, u"http://DDFM.test/"_s},
        {u"DPLF"_s, u"http://DPLF.test/reglement-f.htm"_s},
        {u"DMF"_s, u"http://DMF.test/reglements/dmf"_s},
        {u"DLF"_s, u"http://DLF.test/DLF/DLF.html"_s},
        {u"DVFF"_s, u"http://DVFF.test/?page_id=17"_s},
        {u"DYLF"_s, u"http://DYLF.test/yls/fr/diplome-yl-france-2015"_s},
        {u"TDC"_s, u"http://TDC.test/"_s},
        {u"FFF"_s, u"http://FFF.test/diplomes-fff/diplomes-fff/"_s},
        {u"WLF"_s, u"http://WLF.test/autres-programmes/les-lacs/"_s},
        {u"PC"_s, u"http://PC.test/index.php?mod=reglement"_s},
        {u"Ch_DFCF"_s, u"http://DFCF.test/coupes.html"_s},
        {u"Ch_DMF"_s, u"http://DMF.test/reglements/challenge-dmf"_s},
    };
    // clang-format on
    ASSERT_EQ(attendus.size(), codes_diplome.size());
    for (const auto &[code, adresse] : attendus) {
        essai.etat.station.diplome = Diplome_De(code);
        Choisit_Reglement(essai.poste);
        EXPECT_EQ(essai.etat.adresse_page, adresse);
    }
}

TEST(Reglements, un_diplome_inconnu_laisse_l_adresse)
{
    Poste_Essai essai;
    essai.etat.adresse_page = u"http://avant.test/"_s;
    essai.etat.station.diplome = Diplome_De(u"XYZ");
    Choisit_Reglement(essai.poste);
    EXPECT_EQ(essai.etat.adresse_page, u"http://avant.test/"_s);
}

TEST(Reglements, sans_serveur_il_n_y_a_pas_d_adresse)
{
    Poste_Essai essai;
    essai.etat.adresse_page = u"http://avant.test/"_s;
    essai.etat.station.diplome = Diplome::DFCF;
    Choisit_Reglement(essai.poste);
    EXPECT_EQ(essai.etat.adresse_page, u""_s);
}

TEST(Liste_Des_Iles, ouvre_sa_page_dans_Affichage)
{
    Poste_Essai essai;
    essai.reglages.Ecrit(u"Serveurs"_s, u"DIFM"_s, u"iles.test"_s);
    Liste_Des_Iles(essai.poste);
    EXPECT_EQ(essai.etat.adresse_page, u"http://iles.test/DIFM/DIFML.HTM"_s);
    EXPECT_EQ(essai.etat.titre_page, u"Liste des iles Françaises metropolitaines"_s);
    EXPECT_EQ(essai.ecrans.montres, std::vector{u"Affichage"_s});
}
