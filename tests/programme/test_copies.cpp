#include "programme/Programme_Essai.h"

#include "faux/QSO_Essai.h"

#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

using namespace Qt::StringLiterals;
using conduite::Fenetre;
using conduite::Trouve;

namespace {

const QString journal = u"F9ZZY_DFCF.log"_s;

/// In no order and with doubles, so that nothing but a copy can bring them back.
QByteArray Trois_Cents_QSO()
{
    QByteArray octets;
    for (int rang = 0; rang < 300; ++rang)
        octets += QSO({.ind = u"F5A"_s + QString::number(rang),
                       .dpt = u"77"_s,
                       .ref = QString::number(77001 + rang * 7 % 250),
                       .date = QString::number(28 - rang % 28).rightJustified(2, u'0') + u"/05/07"})
                      .toLatin1() +
                  "\r\n";
    return octets;
}

class Chemin_Des_Copies : public Programme_Essai {
protected:
    void Commence()
    {
        fichiers.Pose(journal, avant);
        Installe_Station(u"DFCF"_s);
        Ouvre();
        Diplome(u"DFCF"_s);
    }
    void Diplome(const QString &code)
    {
        conduite::Repond({}, [&] {
            Controle_Nomme<QComboBox>(u"Dip_A"_s).setCurrentText(code);
            conduite::Entree(Controle_Nomme(u"Dip_A"_s));
        });
    }
    std::vector<QString> Menu(const QString &nom)
    {
        return conduite::Repond({u"Oui"_s}, [&] { Controle_Nomme<QAction>(nom).trigger(); });
    }
    /// A file of another operator, in the place of the log.
    void Importe_Le_Mauvais_Fichier()
    {
        ailleurs.Pose(u"DFCF.adi"_s,
                      "<EOH>\r\n<CALL:5>F1BAD <STATE:2>21 <SIG:5>21001 <QSO_DATE:8>20150926 <TIME_ON:4>1405 "
                      "<BAND:3>20M <EOR>\r\n");
        Menu(u"Mnu_Import_ADIF"_s);
        QWidget &adif = *Fenetre(u"ADIF"_s);
        Trouve<QRadioButton>(adif, u"Remplace"_s)->setChecked(true);
        QTimer::singleShot(0, qApp, [this] {
            auto *dialogue = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            ASSERT_NE(dialogue, nullptr);
            auto *nom = dialogue->findChild<QLineEdit *>(u"fileNameEdit"_s);
            nom->setText(ailleurs.Chemin(u"DFCF.adi"_s));
            QTest::keyClick(nom, Qt::Key_Return);
        });
        Trouve<QPushButton>(adif, u"Importer"_s)->click();
    }
    static std::vector<QString> Lignes(const QString &nom)
    {
        return conduite::Rangees(*Trouve<QAbstractItemView>(*Fenetre(u"Copies"_s), nom));
    }

    const QByteArray avant = Trois_Cents_QSO();
    Dossier_Temporaire ailleurs;
};

} // namespace

TEST_F(Chemin_Des_Copies, un_import_qui_remplace_tout_par_erreur_se_reprend_octet_pour_octet)
{
    Commence();
    Importe_Le_Mauvais_Fichier();
    ASSERT_EQ(QSO_Affiches().size(), 1U);

    Menu(u"Mnu_Copies"_s);
    ASSERT_EQ(Lignes(u"Liste_Copies"_s).size(), 1U);
    EXPECT_EQ(Lignes(u"Liste_Copies"_s)[0],
              u"15/11/2026 15:48:30  Importation ADIF                        300   +300 -1"_s);
    EXPECT_EQ(Lignes(u"Liste_Retours"_s).size(), 300U);
    ASSERT_EQ(Lignes(u"Liste_Departs"_s).size(), 1U);
    EXPECT_TRUE(Lignes(u"Liste_Departs"_s)[0].startsWith(u"      1  F1BAD"_s));

    auto *revenir = Trouve<QPushButton>(*Fenetre(u"Copies"_s), u"Revenir"_s);
    EXPECT_EQ(conduite::Repond({u"Non"_s}, [&] { revenir->click(); }).size(), 1U);
    EXPECT_EQ(QSO_Affiches().size(), 1U) << "no is no";
    const std::vector<QString> boites = conduite::Repond({u"Oui"_s}, [&] { conduite::Entree(*revenir); });
    ASSERT_EQ(boites.size(), 1U);
    EXPECT_TRUE(boites[0].startsWith(u"Revenir à la copie du 15/11/2026 15:48:30 (Importation ADIF) ?\n"_s));

    EXPECT_EQ(fichiers.Octets(journal), avant);
    EXPECT_EQ(QSO_Affiches().size(), 300U);
    EXPECT_EQ(Controle_Nomme<QAbstractItemView>(u"Liste_QSO"_s).currentIndex().row(), 299);
    EXPECT_EQ(Lignes(u"Liste_Copies"_s).size(), 2U) << "the way back can be taken back";
}

TEST_F(Chemin_Des_Copies, l_ecran_suit_le_diplome)
{
    Commence();
    Menu(u"Mnu_Tri"_s);
    Menu(u"Mnu_Copies"_s);
    EXPECT_EQ(Lignes(u"Liste_Copies"_s).size(), 1U);
    Diplome(u"DMF"_s);
    EXPECT_TRUE(Lignes(u"Liste_Copies"_s).empty());
    EXPECT_FALSE(Trouve<QPushButton>(*Fenetre(u"Copies"_s), u"Revenir"_s)->isEnabled());
    EXPECT_EQ(Trouve<QLabel>(*Fenetre(u"Copies"_s), u"L_Copies"_s)->text(),
              u"Copies du log F9ZZY_DMF.log, la plus récente en premier"_s);
}
