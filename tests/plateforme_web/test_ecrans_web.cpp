#include "consultation/ecrans/Affichage.h"
#include "consultation/ecrans/Cluster.h"
#include "consultation/ecrans/Reglements.h"
#include "faux/Conduite.h"
#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "reseau/Serveur_Http.h"

#include <QComboBox>
#include <QPointer>
#include <QPushButton>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;
using conduite::Trouve;

namespace {

/// The three screens with the real engine, on a real server.
struct Ecrans_Web : ::testing::Test {
    Serveur_Http serveur;
    Poste_Essai essai;
    std::unique_ptr<Vues_Web> vues = Vues_Web_Du_Programme();
    Poste poste{{essai.dossier, essai.reglages, essai.horloge, essai.boites, essai.ecrans, essai.imprimante,
                 essai.telechargement, *vues},
                essai.etat,
                essai.ecran};

    Ecrans_Web()
    {
        for (const QString &cle : {u"Cluster"_s, u"Reglement DCF"_s, u"Reglement DFF"_s, u"Reglement DFCF"_s})
            essai.reglages.Ecrit(u"Serveurs"_s, cle, serveur.Hote());
    }
    [[nodiscard]] bool Recoit(const QByteArray &chemin)
    {
        const QByteArray demande = "GET " + chemin + " HTTP";
        return QTest::qWaitFor(
            [&] {
                return std::any_of(serveur.demandes.begin(), serveur.demandes.end(),
                                   [&](const QByteArray &recue) { return recue.startsWith(demande); });
            },
            20'000);
    }
};

} // namespace

TEST_F(Ecrans_Web, Cluster_demande_la_page_de_sa_bande)
{
    Cluster ecran(poste);
    ecran.show();
    EXPECT_TRUE(Recoit("/dxc/top_250_HF.html"));
    Trouve<QComboBox>(ecran, u"Bande_CL"_s)->setCurrentText(u"432 Mhz"_s);
    QTest::mouseClick(Trouve<QPushButton>(ecran, u"Afficher"_s), Qt::LeftButton);
    EXPECT_TRUE(Recoit("/dxc/top_50_430_MHz.html"));
}

TEST_F(Ecrans_Web, Reglements_demande_la_page_du_diplome)
{
    essai.Ouvre(u"Ch_DFCF"_s);
    Reglements ecran(poste);
    ecran.show();
    EXPECT_TRUE(Recoit("/coupes.html"));
}

TEST_F(Ecrans_Web, une_adresse_sans_chemin_mene_a_l_accueil)
{
    essai.Ouvre(u"DFF"_s);
    Reglements ecran(poste);
    ecran.show();
    EXPECT_TRUE(Recoit("/"));
}

TEST_F(Ecrans_Web, le_blanc_d_une_adresse_arrive_au_serveur)
{
    essai.Ouvre(u"DCF"_s);
    Reglements ecran(poste);
    ecran.show();
    EXPECT_TRUE(Recoit("/%20"));
}

TEST_F(Ecrans_Web, Affichage_demande_l_adresse_posee)
{
    essai.etat.adresse_page = serveur.Adresse(u"/tour.php?NumTour=3"_s);
    Affichage ecran(poste);
    ecran.show();
    EXPECT_TRUE(Recoit("/tour.php?NumTour=3"));
}

TEST_F(Ecrans_Web, WebBrowser1_repond_de_l_adresse_de_sa_page)
{
    const auto adresse = [](const QWidget &ecran) { return Trouve(ecran, u"WebBrowser1"_s)->property("url").toUrl(); };
    const Cluster cluster(poste);
    EXPECT_EQ(adresse(cluster), QUrl(serveur.Adresse(u"/dxc/top_250_HF.html"_s)));
    essai.Ouvre(u"DFCF"_s);
    const Reglements reglements(poste);
    EXPECT_EQ(adresse(reglements), QUrl(serveur.Adresse(u"/reglement.html"_s)));
    essai.etat.adresse_page = serveur.Adresse(u"/tour.php?NumTour=3"_s);
    const Affichage affichage(poste);
    EXPECT_EQ(adresse(affichage), QUrl(serveur.Adresse(u"/tour.php?NumTour=3"_s)));
}

TEST_F(Ecrans_Web, fermer_pendant_le_chargement_ne_laisse_rien_tourner)
{
    serveur.Joue(u"/lente"_s, [](QTcpSocket &) {});
    essai.etat.adresse_page = serveur.Adresse(u"/lente"_s);
    const auto ecran = new Affichage(poste);
    ecran->show();
    ASSERT_TRUE(Recoit("/lente"));
    const QPointer<Affichage> temoin(ecran);
    ecran->close();
    EXPECT_TRUE(QTest::qWaitFor([&] { return temoin.isNull(); }));
}
