#include "faux/Conduite.h"
#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "faux/QSO_Essai.h"
#include "qsl/ecrans/Liste_A_Cocher.h"
#include "qsl/ecrans/Multi_QSL.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;
using conduite::Trouve;

namespace {

const QColor courante(192, 255, 192);
const QColor finie(255, 255, 192);

struct Ecran_QSL : ::testing::Test {
    Poste_Essai essai;
    std::unique_ptr<Multi_QSL> ecran;
    const QString premier = QSO({.ind = u"F5ABC"_s, .ref = u"77001"_s});
    const QString second = QSO({.ind = u"F5ABC"_s, .ref = u"77002"_s});

    void SetUp() override
    {
        essai.Ouvre(u"DFCF"_s);
        essai.fichiers.Pose(u"F9ZZY_DFCF.log"_s, (premier + u"\r\n" + second + u"\r\n").toLatin1());
        ecran = std::make_unique<Multi_QSL>(essai.poste);
        ecran->setAttribute(Qt::WA_DeleteOnClose, false);
        ecran->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(ecran.get()));
    }
    [[nodiscard]] QLineEdit &Indicatif() const { return *Trouve<QLineEdit>(*ecran, u"Indicatif"_s); }
    [[nodiscard]] QComboBox &Diplome() const { return *Trouve<QComboBox>(*ecran, u"Diplome"_s); }
    [[nodiscard]] QPushButton &Bouton(const QString &nom) const { return *Trouve<QPushButton>(*ecran, nom); }
    [[nodiscard]] Liste_A_Cocher &Liste() const { return *Trouve<Liste_A_Cocher>(*ecran, u"Liste_QSO"_s); }
    void Recherche(const QString &indicatif) const
    {
        Indicatif().setText(indicatif);
        Diplome().setCurrentText(u"DFCF"_s);
        QTest::mouseClick(&Bouton(u"Recherche"_s), Qt::LeftButton);
    }
    void Coche(int rang) const
    {
        Liste().setFocus();
        Liste().setCurrentIndex(Liste().model()->index(rang, 0));
        QTest::keyClick(&Liste(), Qt::Key_Space);
    }
};

QColor Fond(const QWidget &controle)
{
    return controle.palette().color(QPalette::Base);
}

} // namespace

TEST_F(Ecran_QSL, s_ouvre_sur_le_premier_diplome)
{
    EXPECT_EQ(ecran->objectName(), u"Multi_QSL"_s);
    EXPECT_EQ(ecran->windowTitle(), u"Enregistrement des QSL reçues"_s);
    EXPECT_EQ(Diplome().count(), 21);
    EXPECT_EQ(Diplome().currentText(), u"Ch_DFCF"_s);
    EXPECT_EQ(Diplome().itemText(20), u"WLF"_s);
    EXPECT_TRUE(Liste().Est_Vide());
    EXPECT_FALSE(Bouton(u"Enregistre"_s).isEnabled());
    EXPECT_EQ(Bouton(u"Recherche"_s).text(), u"Rechercher"_s);
    EXPECT_EQ(Bouton(u"Enregistre"_s).text(), u"MAJ du log"_s);
    EXPECT_EQ(Bouton(u"Imprimer"_s).text(), u"Imprimer"_s);
    EXPECT_EQ(Trouve<QLabel>(*ecran, u"Label1"_s)->text(),
              u"Cochez dans la liste ci-dessus les QSL reçues puis cliquez sur"_s);
    EXPECT_EQ(Trouve<QLabel>(*ecran, u"Label6"_s)->text(), u"Cliquez sur"_s);
    EXPECT_EQ(Trouve<QLabel>(*ecran, u"L_Diplome"_s)->text(), u"Diplome"_s);
    EXPECT_EQ(Trouve<QLabel>(*ecran, u"L_Liste_QSO"_s)->text(), u"Liste des QSL non reçues de"_s);
}

TEST_F(Ecran_QSL, la_touche_entree_mene_de_champ_en_champ)
{
    conduite::Tape(Indicatif(), u"f5abc"_s);
    EXPECT_EQ(Indicatif().text(), u"F5ABC"_s);
    conduite::Entree(Indicatif());
    EXPECT_EQ(Fond(Indicatif()), finie);
    EXPECT_EQ(Fond(Diplome()), courante);
    EXPECT_EQ(QApplication::focusWidget(), &Diplome());
    conduite::Entree(Diplome());
    EXPECT_EQ(Fond(Diplome()), finie);
    EXPECT_EQ(Fond(Bouton(u"Recherche"_s)), courante);
    EXPECT_EQ(QApplication::focusWidget(), &Bouton(u"Recherche"_s));
    Diplome().setCurrentText(u"DFCF"_s);
    conduite::Entree(Bouton(u"Recherche"_s));
    EXPECT_EQ(Fond(Bouton(u"Recherche"_s)), finie);
    EXPECT_EQ(Fond(Indicatif()), courante);
    EXPECT_EQ(Liste().Entrees(), (std::vector{premier, second}));
}

TEST_F(Ecran_QSL, plus_de_12_caracteres_reste_dans_l_indicatif)
{
    Indicatif().setText(u"1234567890123"_s);
    conduite::Entree(Indicatif());
    EXPECT_EQ(essai.boites.messages, std::vector{u"12 caracteres maxi pour l'indicatif"_s});
    EXPECT_EQ(QApplication::focusWidget(), &Indicatif());
    Indicatif().setText(u"123456789012"_s);
    conduite::Entree(Indicatif());
    EXPECT_EQ(QApplication::focusWidget(), &Diplome());
}

TEST_F(Ecran_QSL, les_lignes_cochees_sont_marquees_et_la_liste_se_vide)
{
    Recherche(u"F5ABC"_s);
    Coche(1);
    QTest::mouseClick(&Bouton(u"Enregistre"_s), Qt::LeftButton);
    EXPECT_EQ(essai.fichiers.Octets(u"F9ZZY_DFCF.log"_s),
              (premier + u"\r\n" + second.chopped(1) + u"*\r\n").toLatin1());
    EXPECT_TRUE(Liste().Est_Vide());
    EXPECT_EQ(essai.ecran.liste.size(), 2U);
    EXPECT_TRUE(essai.boites.questions.empty());
}

TEST_F(Ecran_QSL, la_souris_coche_et_decoche)
{
    Recherche(u"F5ABC"_s);
    const QRect ligne = Liste().visualRect(Liste().model()->index(0, 0));
    const QPoint coche(ligne.left() + 8, ligne.center().y());
    QTest::mouseClick(Liste().viewport(), Qt::LeftButton, {}, coche);
    EXPECT_EQ(Liste().Cochees(), std::vector{premier});
    QTest::mouseClick(Liste().viewport(), Qt::LeftButton, {}, coche);
    EXPECT_TRUE(Liste().Cochees().empty());
}

TEST_F(Ecran_QSL, un_autre_diplome_interdit_l_enregistrement_jusqu_a_la_recherche)
{
    Recherche(u"F5ABC"_s);
    EXPECT_TRUE(Bouton(u"Enregistre"_s).isEnabled());
    Diplome().setCurrentText(u"DMF"_s);
    EXPECT_FALSE(Bouton(u"Enregistre"_s).isEnabled());
    Recherche(u"F5ABC"_s);
    EXPECT_TRUE(Bouton(u"Enregistre"_s).isEnabled());
}

TEST_F(Ecran_QSL, imprime_les_lignes_cochees)
{
    QTest::mouseClick(&Bouton(u"Imprimer"_s), Qt::LeftButton);
    EXPECT_EQ(essai.boites.messages, std::vector{u"Pas de QSO a imprimer"_s});
    Recherche(u"F5ABC"_s);
    Coche(0);
    QTest::mouseClick(&Bouton(u"Imprimer"_s), Qt::LeftButton);
    ASSERT_EQ(essai.imprimante.documents.size(), 1U);
    EXPECT_EQ(essai.imprimante.documents[0][2], premier.mid(6, 29) + premier.mid(42));
    EXPECT_EQ(essai.imprimante.documents[0].back(),
              u"    F5ABC confirme les QSO's ci-dessus avec la station   signature :"_s);
}
