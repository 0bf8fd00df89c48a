#include "consultation/Pages_Web.h"
#include "consultation/ecrans/Affichage.h"
#include "consultation/ecrans/Cluster.h"
#include "consultation/ecrans/Reglements.h"
#include "faux/Conduite.h"
#include "faux/Impression.h"
#include "faux/Poste_Essai.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using conduite::Trouve;

TEST(Ecran_Cluster, s_ouvre_sur_la_derniere_bande)
{
    Poste_Essai essai;
    essai.reglages.Ecrit(u"Serveurs"_s, u"Cluster"_s, u"spots.test"_s);
    essai.reglages.Ecrit(u"Setup F9ZZY"_s, u"bande Cluster"_s, u"3"_s);
    const Cluster ecran(essai.poste);
    EXPECT_EQ(ecran.objectName(), u"Cluster"_s);
    EXPECT_EQ(ecran.windowTitle(), u"Cluster"_s);
    EXPECT_EQ(Trouve<QLabel>(ecran, u"Label1"_s)->text(), u"Cluster remis a jour toutes les minutes"_s);
    EXPECT_EQ(Trouve<QLabel>(ecran, u"Label2"_s)->text(), u"Cluster (DxCluster)"_s);
    EXPECT_EQ(Trouve<QLabel>(ecran, u"Label3"_s)->text(), u"Bande"_s);
    const auto *bande = Trouve<QComboBox>(ecran, u"Bande_CL"_s);
    EXPECT_EQ(bande->count(), 14);
    EXPECT_EQ(bande->currentText(), u"7.0 Mhz"_s);
    EXPECT_TRUE(Trouve(ecran, u"WebBrowser1"_s));
    EXPECT_EQ(essai.vues_web.adresses, std::vector{u"http://spots.test/dxc/top_50_7_MHz.html"_s});
}

TEST(Ecran_Cluster, afficher_retient_la_bande_et_montre_sa_page)
{
    Poste_Essai essai;
    essai.reglages.Ecrit(u"Serveurs"_s, u"Cluster"_s, u"spots.test"_s);
    Cluster ecran(essai.poste);
    ecran.show();
    Trouve<QComboBox>(ecran, u"Bande_CL"_s)->setCurrentText(u"All VHF"_s);
    EXPECT_EQ(essai.vues_web.adresses.size(), 1U);
    QTest::mouseClick(Trouve<QPushButton>(ecran, u"Afficher"_s), Qt::LeftButton);
    EXPECT_EQ(essai.vues_web.adresses.back(), u"http://spots.test/dxc/top_250_VHF.html"_s);
    EXPECT_EQ(essai.etat.adresse_page, u"http://spots.test/dxc/top_250_VHF.html"_s);
    EXPECT_EQ(essai.reglages.Lit(u"Setup F9ZZY"_s, u"bande Cluster"_s, {}), u"13"_s);
}

TEST(Ecran_Cluster, sans_serveur_la_vue_le_dit)
{
    Poste_Essai essai;
    const Cluster ecran(essai.poste);
    EXPECT_TRUE(essai.vues_web.adresses.empty());
    EXPECT_EQ(essai.vues_web.textes, std::vector{Message_Sans_Serveur()});
}

TEST(Ecran_Reglements, montre_la_page_du_diplome_courant)
{
    Poste_Essai essai;
    essai.Ouvre(u"DPF"_s);
    essai.reglages.Ecrit(u"Serveurs"_s, u"Reglement DDFM"_s, u"ddfm.test"_s);
    const Reglements ecran(essai.poste);
    EXPECT_EQ(ecran.objectName(), u"Reglements"_s);
    EXPECT_TRUE(Trouve(ecran, u"WebBrowser1"_s));
    EXPECT_EQ(essai.vues_web.adresses, std::vector{u"http://ddfm.test/"_s});
}

TEST(Ecran_Reglements, un_diplome_inconnu_montre_la_page_d_avant)
{
    Poste_Essai essai;
    essai.etat.adresse_page = u"http://avant.test/"_s;
    const Reglements ecran(essai.poste);
    EXPECT_EQ(essai.vues_web.adresses, std::vector{u"http://avant.test/"_s});
}

TEST(Ecran_Affichage, montre_la_page_et_le_titre_demandes)
{
    Poste_Essai essai;
    essai.etat.adresse_page = u"http://tour.test/tour.php?NumTour=3"_s;
    essai.etat.titre_page = u"Site web de la tour 3 Nom"_s;
    const Affichage ecran(essai.poste);
    EXPECT_EQ(ecran.objectName(), u"Affichage"_s);
    EXPECT_EQ(ecran.windowTitle(), u"Site web de la tour 3 Nom"_s);
    EXPECT_TRUE(Trouve(ecran, u"WebBrowser1"_s));
    EXPECT_EQ(essai.vues_web.adresses, std::vector{u"http://tour.test/tour.php?NumTour=3"_s});
}
