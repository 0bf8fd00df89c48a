#include "consultation/ecrans/Recherche_Indicatif.h"
#include "ecrans/Liste_Fixe.h"
#include "faux/Conduite.h"
#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "faux/QSO_Essai.h"

#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using conduite::Trouve;

namespace {

struct Ecran_Recherche : ::testing::Test {
    Poste_Essai essai;
    QPointer<Recherche_Indicatif> ecran;

    void SetUp() override
    {
        essai.Ouvre(u"DFCF"_s);
        essai.ecran.liste = Lignes_Texte(QSO({.ind = u"F5ABC"_s, .dpt = u"77"_s, .ref = u"77001"_s}) + u"\r\n" +
                                         QSO({.ind = u"F6XYZ"_s, .dpt = u"05"_s, .ref = u"05010"_s}) + u"\r\n" +
                                         QSO({.ind = u"ON/F5ABC"_s, .dpt = u"2A"_s, .ref = u"2A003"_s}) + u"\r\n");
        ecran = new Recherche_Indicatif(essai.poste);
        ecran->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(ecran));
    }
    void TearDown() override { delete ecran; }

    [[nodiscard]] QLineEdit &Champ(const QString &nom) const { return *Trouve<QLineEdit>(*ecran, nom); }
    [[nodiscard]] QRadioButton &Option(int place) const
    {
        return *Trouve<QRadioButton>(*ecran, u"Option1_%1"_s.arg(place));
    }
    [[nodiscard]] Liste_Fixe &Liste() const { return *Trouve<Liste_Fixe>(*ecran, u"QSO_Effectues"_s); }
    void Cherche(const QString &champ, const QString &texte) const
    {
        Champ(champ).setFocus();
        conduite::Tape(Champ(champ), texte);
        conduite::Entree(Champ(champ));
    }
};

} // namespace

TEST_F(Ecran_Recherche, porte_le_code_et_ses_textes)
{
    EXPECT_EQ(ecran->objectName(), u"Recherche_Indicatif"_s);
    EXPECT_EQ(ecran->windowTitle(), u"Rechercher un QSO du log DFCF par ..."_s);
    EXPECT_EQ(Trouve<QLabel>(*ecran, u"Label3"_s)->text(), u"Rechercher un QSO du log DFCF par ..."_s);
    EXPECT_EQ(
        Trouve<QLabel>(*ecran, u"Label13"_s)->text(),
        u"   N°   Indicatif     Dpt Prenom          Ref         Date     QTR   Mode   QRG   RstR RstE   Mom Activité                 QSL"_s);
    EXPECT_EQ(Option(0).text(), u"Indicatif"_s);
    EXPECT_EQ(Option(1).text(), u"Reference"_s);
    EXPECT_EQ(Option(2).text(), u"Dpt"_s);
    EXPECT_EQ(Liste().toolTip(), u"Double clique sur le QSO pour retour au log"_s);
    EXPECT_EQ(Trouve<QPushButton>(*ecran, u"Command1"_s)->text(), u"Quitter"_s);
    EXPECT_EQ(QApplication::focusWidget(), &Champ(u"Indica"_s));
    EXPECT_TRUE(Option(0).isChecked());
}

TEST_F(Ecran_Recherche, une_option_donne_le_focus_a_son_champ)
{
    QTest::mouseClick(&Option(2), Qt::LeftButton);
    EXPECT_EQ(QApplication::focusWidget(), &Champ(u"Depa"_s));
    QTest::mouseClick(&Option(1), Qt::LeftButton);
    EXPECT_EQ(QApplication::focusWidget(), &Champ(u"Data"_s));
    QTest::mouseClick(&Option(0), Qt::LeftButton);
    EXPECT_EQ(QApplication::focusWidget(), &Champ(u"Indica"_s));
}

TEST_F(Ecran_Recherche, entrer_dans_un_champ_choisit_son_option)
{
    QTest::mouseClick(&Champ(u"Depa"_s), Qt::LeftButton);
    EXPECT_TRUE(Option(2).isChecked());
    Champ(u"Data"_s).setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(Option(1).isChecked());
    EXPECT_FALSE(Option(2).isChecked());
}

TEST_F(Ecran_Recherche, entree_cherche_et_vide_les_champs)
{
    Champ(u"Data"_s).setText(u"reste"_s);
    Cherche(u"Indica"_s, u"f5"_s);
    EXPECT_EQ(Liste().Nombre(), 2);
    EXPECT_EQ(Liste().Entree(1), Ligne_Affichage(3, essai.ecran.liste[2]));
    for (const QString &nom : {u"Indica"_s, u"Data"_s, u"Depa"_s})
        EXPECT_EQ(Champ(nom).text(), u""_s);
    Cherche(u"Data"_s, u"010"_s);
    EXPECT_EQ(Liste().Nombre(), 1);
    Cherche(u"Depa"_s, u"2a"_s);
    EXPECT_EQ(Liste().Entree(0), Ligne_Affichage(3, essai.ecran.liste[2]));
    EXPECT_TRUE(essai.boites.messages.empty());
}

TEST_F(Ecran_Recherche, un_refus_laisse_le_texte_et_la_liste)
{
    Cherche(u"Indica"_s, u"F5"_s);
    Cherche(u"Indica"_s, u"1234567890123"_s);
    EXPECT_EQ(essai.boites.messages, std::vector{u"12 caracteres maxi pour l'indicatif"_s});
    EXPECT_EQ(Champ(u"Indica"_s).text(), u"1234567890123"_s);
    EXPECT_EQ(Liste().Nombre(), 2);
    Cherche(u"Data"_s, u""_s);
    Cherche(u"Depa"_s, u""_s);
    EXPECT_EQ(essai.boites.messages[1], u"Entrez une référence"_s);
    EXPECT_EQ(essai.boites.messages[2], u"Entrez un departement"_s);
}

TEST_F(Ecran_Recherche, rien_trouve_vide_la_liste)
{
    Cherche(u"Indica"_s, u"F5"_s);
    Cherche(u"Indica"_s, u"G4"_s);
    EXPECT_EQ(essai.boites.messages, std::vector{u"Pas de QSO trouvé"_s});
    EXPECT_EQ(Liste().Nombre(), 0);
    EXPECT_EQ(Champ(u"Indica"_s).text(), u""_s);
}

TEST_F(Ecran_Recherche, un_double_clic_retourne_au_log_et_ferme)
{
    Cherche(u"Indica"_s, u"F5"_s);
    const QPoint place = Liste().visualRect(Liste().model()->index(1, 0)).center();
    QTest::mouseClick(Liste().viewport(), Qt::LeftButton, {}, place);
    EXPECT_TRUE(essai.ecran.appels.empty());
    QTest::mouseDClick(Liste().viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(essai.ecran.appels, std::vector{u"Selectionne_QSO 2"_s});
    EXPECT_TRUE(!ecran || !ecran->isVisible());
}

TEST_F(Ecran_Recherche, quitter_ferme)
{
    auto *quitter = Trouve<QPushButton>(*ecran, u"Command1"_s);
    quitter->setFocus();
    conduite::Entree(*quitter);
    EXPECT_TRUE(!ecran || !ecran->isVisible());
    EXPECT_TRUE(essai.ecran.appels.empty());
}
