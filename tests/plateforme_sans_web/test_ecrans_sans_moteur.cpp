#include "consultation/Pages_Web.h"
#include "consultation/ecrans/Affichage.h"
#include "consultation/ecrans/Cluster.h"
#include "consultation/ecrans/Reglements.h"
#include "faux/Conduite.h"
#include "faux/Impression.h"
#include "faux/Poste_Essai.h"

#include <QLabel>
#include <QUrl>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The three screens in a build without a web engine.
struct Ecrans_Sans_Moteur : ::testing::Test {
    Poste_Essai essai;
    std::unique_ptr<Vues_Web> vues = Vues_Web_Du_Programme();
    Poste poste{{essai.dossier, essai.reglages, essai.horloge, essai.boites, essai.ecrans, essai.imprimante,
                 essai.telechargement, *vues},
                essai.etat,
                essai.ecran};

    static void Nomme_La_Page(const QWidget &ecran, const QString &adresse)
    {
        const auto *vue = conduite::Trouve<QLabel>(ecran, u"WebBrowser1"_s);
        EXPECT_EQ(vue->property("url").toUrl(), QUrl(adresse));
        EXPECT_EQ(vue->text(), u"Cette version de Vorlain n'affiche pas les pages web : "_s + adresse);
        EXPECT_EQ(vue->textFormat(), Qt::PlainText);
    }
};

} // namespace

TEST_F(Ecrans_Sans_Moteur, chaque_ecran_nomme_l_adresse_de_sa_page)
{
    essai.reglages.Ecrit(u"Serveurs"_s, u"Cluster"_s, u"spots.test"_s);
    Nomme_La_Page(Cluster(poste), u"http://spots.test/dxc/top_250_HF.html"_s);
    essai.Ouvre(u"DFCF"_s);
    essai.reglages.Ecrit(u"Serveurs"_s, u"Reglement DFCF"_s, u"dfcf.test"_s);
    Nomme_La_Page(Reglements(poste), u"http://dfcf.test/reglement.html"_s);
    essai.etat.adresse_page = u"http://tour.test/tour.php?NumTour=3"_s;
    Nomme_La_Page(Affichage(poste), u"http://tour.test/tour.php?NumTour=3"_s);
}

TEST_F(Ecrans_Sans_Moteur, sans_serveur_il_n_y_a_pas_d_adresse)
{
    const Cluster ecran(poste);
    const auto *vue = conduite::Trouve<QLabel>(ecran, u"WebBrowser1"_s);
    EXPECT_EQ(vue->property("url"), QVariant(QUrl()));
    EXPECT_EQ(vue->text(), Message_Sans_Serveur());
}
