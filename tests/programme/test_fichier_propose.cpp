#include "programme/Programme_Essai.h"

#include <QFileDialog>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace {

class Fichier_Propose : public Programme_Essai {
protected:
    void SetUp() override
    {
        Installe_Station(u"DFCF"_s);
        ailleurs.Pose(u"F9ZZY_DFCF.adi"_s, "<EOH>\r\n<CALL:5>F6ABC <QSO_DATE:8>20150926 <TIME_ON:4>1234 <MODE:3>SSB "
                                           "<BAND:3>40m <STATE:2>77 <SIG:5>77001 <EOR>\r\n");
    }
    std::vector<QString> Propose(const QString &reponse)
    {
        return conduite::Repond({reponse}, [this] { programme->Propose(fichier); });
    }

    Dossier_Temporaire ailleurs;
    const QString fichier = ailleurs.Chemin(u"F9ZZY_DFCF.adi"_s);
};

} // namespace

TEST_F(Fichier_Propose, s_importe_sans_etre_choisi_encore)
{
    Ouvre();
    Propose(u"Oui"_s);
    QWidget *ecran = conduite::Fenetre(u"ADIF"_s);
    ASSERT_NE(ecran, nullptr);
    const auto *nom = conduite::Trouve<QLabel>(*ecran, u"Fichier"_s);
    EXPECT_TRUE(nom->isVisible());
    EXPECT_EQ(nom->text(), u"Fichier : F9ZZY_DFCF.adi"_s);
    conduite::Repond({}, [&] { conduite::Trouve<QPushButton>(*ecran, u"Importer"_s)->click(); });
    ASSERT_EQ(QSO_Affiches().size(), 1U);
    EXPECT_TRUE(QSO_Affiches().front().contains(u"F6ABC"_s));
}

TEST_F(Fichier_Propose, refuse_il_est_oublie)
{
    Ouvre();
    Propose(u"Non"_s);
    EXPECT_EQ(conduite::Fenetre(u"ADIF"_s), nullptr);
    conduite::Repond({u"Oui"_s}, [&] { Controle_Nomme<QAction>(u"Mnu_Import_ADIF"_s).trigger(); });
    EXPECT_FALSE(conduite::Trouve<QLabel>(*conduite::Fenetre(u"ADIF"_s), u"Fichier"_s)->isVisible());
}

TEST_F(Fichier_Propose, absent_il_est_dit_et_rien_ne_s_ouvre)
{
    Ouvre();
    QFile::remove(fichier);
    EXPECT_EQ(Propose(u"Oui"_s), std::vector{u"Le fichier %1 n'existe pas"_s.arg(fichier)});
    EXPECT_EQ(conduite::Fenetre(u"ADIF"_s), nullptr);
}

TEST_F(Fichier_Propose, sans_station_elle_est_demandee_d_abord)
{
    Regle(u"Setup "_s, u"Indicatif Station"_s, u"FXXXX"_s);
    Ouvre();
    EXPECT_EQ(Propose(u"Oui"_s), std::vector{u"Entrez d'abord votre indicatif, puis importez %1"_s.arg(fichier)});
    EXPECT_EQ(conduite::Fenetre(u"ADIF"_s), nullptr);
}

TEST_F(Fichier_Propose, une_deuxieme_fois_le_dialogue_s_ouvre)
{
    ailleurs.Pose(u"F9ZZY_DFCF.adi"_s, "<EOH>\r\n");
    Ouvre();
    Propose(u"Oui"_s);
    QWidget *ecran = conduite::Fenetre(u"ADIF"_s);
    // What is replaced is put aside, and back after the refusal.
    conduite::Trouve<QRadioButton>(*ecran, u"Remplace"_s)->click();
    auto *importer = conduite::Trouve<QPushButton>(*ecran, u"Importer"_s);
    const std::vector<QString> refus = conduite::Repond({}, [&] { importer->click(); });
    EXPECT_EQ(refus, std::vector{u"Attention le fichier ne contient pas d'information 'SIG'"_s});
    bool ouvert = false;
    QTimer::singleShot(0, ecran, [&] {
        auto *dialogue = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        ouvert = dialogue != nullptr;
        if (dialogue)
            dialogue->reject();
    });
    conduite::Repond({}, [&] { importer->click(); });
    EXPECT_TRUE(ouvert);
}
