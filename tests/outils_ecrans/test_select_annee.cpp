#include "ecrans/Couleurs.h"
#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "outils/ecrans/Select_Annee.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Ecran_Annee : ::testing::Test {
    Poste_Essai essai;
    QPointer<Select_Annee> ecran;
    QLineEdit *annee = nullptr;
    QPushButton *validation = nullptr;

    void Ouvre(const QString &genre)
    {
        essai.Ouvre(u"Ch_DFCF"_s);
        essai.etat.challenge = genre == u"DMF" ? Diplome::Ch_DMF : Diplome::Ch_DFCF;
        ecran = new Select_Annee(essai.poste);
        ecran->show();
        annee = ecran->findChild<QLineEdit *>(u"New_Annee"_s);
        validation = ecran->findChild<QPushButton *>(u"Validation"_s);
        ASSERT_TRUE(QTest::qWaitForWindowActive(ecran));
    }
    ~Ecran_Annee() override { delete ecran; }
};

} // namespace

TEST_F(Ecran_Annee, montre_le_genre_et_l_annee_enregistree)
{
    essai.reglages.Ecrit(u"Setup F9ZZY"_s, u"Annee Challenge DMF"_s, u"2018"_s);
    Ouvre(u"DMF"_s);
    EXPECT_EQ(ecran->objectName(), u"Select_Annee"_s);
    EXPECT_EQ(ecran->windowTitle(), u"Année du Challenge"_s);
    EXPECT_EQ(ecran->findChild<QLabel *>(u"L_Activ"_s)->text(), u"DMF"_s);
    EXPECT_EQ(ecran->findChild<QLabel *>(u"Label7"_s)->text(), u"Année du Challenge"_s);
    EXPECT_EQ(ecran->findChild<QLabel *>(u"Label3"_s)->text(), u"Année"_s);
    EXPECT_EQ(validation->text(), u"Valider"_s);
    EXPECT_EQ(annee->text(), u"2018"_s);
}

TEST_F(Ecran_Annee, sans_annee_enregistree_montre_2000)
{
    Ouvre(u"DFCF"_s);
    EXPECT_EQ(annee->text(), u"2000"_s);
}

TEST_F(Ecran_Annee, entree_colore_et_passe_au_bouton)
{
    Ouvre(u"DFCF"_s);
    QTest::keyClick(annee, Qt::Key_Return);
    EXPECT_EQ(annee->palette().color(QPalette::Base), QColor(255, 255, 192));
    EXPECT_EQ(validation->palette().color(QPalette::Button), QColor(192, 255, 192));
    EXPECT_TRUE(annee->isEnabled());
    EXPECT_TRUE(validation->isEnabled());
    EXPECT_EQ(QApplication::focusWidget(), validation);
    EXPECT_TRUE(ecran->isVisible());
}

TEST_F(Ecran_Annee, le_clavier_seul_choisit_l_annee_et_ferme)
{
    Ouvre(u"DFCF"_s);
    QTest::keyClicks(QApplication::focusWidget(), u"2017"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Enter);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(ecran.isNull() || !ecran->isVisible());
    EXPECT_EQ(essai.etat.station.annee_ch_dfcf, u"2017"_s);
    EXPECT_TRUE(essai.fichiers.Existe(u"F9ZZY_Ch_DFCF_2017.log"_s));
}

TEST_F(Ecran_Annee, une_annee_refusee_laisse_l_ecran_ouvert)
{
    Ouvre(u"DFCF"_s);
    annee->setText(u"../2017"_s);
    QTest::mouseClick(validation, Qt::LeftButton);
    EXPECT_TRUE(ecran && ecran->isVisible());
    EXPECT_EQ(essai.boites.messages, std::vector{u"Année incorrecte"_s});
}
