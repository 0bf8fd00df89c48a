#include "ecrans/Liste_Fixe.h"
#include "faux/Conduite.h"
#include "faux/Impression.h"

#include <gtest/gtest.h>

#include <QFontInfo>
#include <QLabel>
#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace {

class Liste : public ::testing::Test {
protected:
    Liste()
    {
        liste.resize(400, 300);
        liste.Remplit({u"zero"_s, u"un"_s, u"deux"_s, u"trois"_s});
        QObject::connect(&liste, &Liste_Fixe::Cliquee, [this](int rang) { Note(u"clic "_s, rang); });
        QObject::connect(&liste, &Liste_Fixe::Double_Cliquee, [this](int rang) { Note(u"double clic "_s, rang); });
        liste.show();
        liste.setFocus();
    }

    Liste_Fixe liste;
    QStringList suite;

    void Note(const QString &mot, int rang) { suite += mot + QString::number(rang); }
    [[nodiscard]] QPoint Milieu(int rang) const { return liste.visualRect(liste.model()->index(rang, 0)).center(); }
    /// As Tab gives it.
    void Recoit_Le_Focus()
    {
        QFocusEvent focus(QEvent::FocusIn, Qt::TabFocusReason);
        QApplication::sendEvent(&liste, &focus);
    }
    QStringList Touche(Qt::Key touche)
    {
        suite.clear();
        QTest::keyClick(&liste, touche);
        return suite;
    }
};

} // namespace

TEST_F(Liste, une_selection_du_programme_se_dit_comme_un_clic)
{
    liste.Selectionne(2);
    EXPECT_EQ(suite, QStringList{u"clic 2"_s});
    EXPECT_EQ(liste.Rang_Courant(), 2);
    // Also when it was selected already.
    liste.Selectionne(2);
    EXPECT_EQ(suite, (QStringList{u"clic 2"_s, u"clic 2"_s}));
}

TEST_F(Liste, un_rang_hors_de_la_liste_ne_selectionne_rien)
{
    liste.Selectionne(1);
    suite.clear();
    liste.Selectionne(4);
    liste.Selectionne(-1);
    EXPECT_EQ(liste.Rang_Courant(), 1);
    EXPECT_TRUE(suite.isEmpty());
}

TEST_F(Liste, de_nouvelles_entrees_ne_sont_pas_selectionnees)
{
    liste.Selectionne(1);
    suite.clear();
    liste.Remplit(2, [](std::size_t rang) { return QString::number(rang); });
    EXPECT_EQ(liste.Nombre(), 2);
    EXPECT_EQ(liste.Rang_Courant(), -1);
    EXPECT_TRUE(suite.isEmpty());
    EXPECT_EQ(liste.Entree(1), u"1"_s);
    liste.Remplit({});
    EXPECT_EQ(liste.Nombre(), 0);
    EXPECT_EQ(liste.Entree(0), QString());
}

TEST_F(Liste, un_clic_de_souris_se_dit_une_fois)
{
    conduite::Clique(liste, 1);
    EXPECT_EQ(suite, QStringList{u"clic 1"_s});
    conduite::Clique(liste, 1);
    EXPECT_EQ(suite.size(), 2);
}

TEST_F(Liste, un_double_clic_vient_derriere_son_clic)
{
    conduite::Double_Clique(liste, 3);
    EXPECT_EQ(suite.last(), u"double clic 3"_s);
    EXPECT_EQ(suite.first(), u"clic 3"_s);
    EXPECT_EQ(suite.count(u"double clic 3"_s), 1);
}

TEST_F(Liste, un_clic_du_bouton_droit_dit_l_entree_qu_il_selectionne)
{
    liste.Selectionne(0);
    suite.clear();
    QTest::mouseClick(liste.viewport(), Qt::RightButton, {}, Milieu(2));
    ASSERT_EQ(liste.Rang_Courant(), 2);
    EXPECT_EQ(suite, QStringList{u"clic 2"_s});
}

TEST_F(Liste, une_souris_relachee_plus_loin_dit_l_entree_qu_elle_selectionne)
{
    liste.Selectionne(0);
    suite.clear();
    QTest::mousePress(liste.viewport(), Qt::LeftButton, {}, Milieu(1));
    QMouseEvent glisse(QEvent::MouseMove, Milieu(3), liste.viewport()->mapToGlobal(Milieu(3)), Qt::NoButton,
                       Qt::LeftButton, {});
    QApplication::sendEvent(liste.viewport(), &glisse);
    QTest::mouseRelease(liste.viewport(), Qt::LeftButton, {}, Milieu(3));
    ASSERT_GE(liste.Rang_Courant(), 0);
    EXPECT_EQ(suite, QStringList{u"clic %1"_s.arg(liste.Rang_Courant())});
}

TEST_F(Liste, une_fleche_qui_deplace_la_selection_est_un_clic)
{
    liste.Selectionne(1);
    EXPECT_EQ(Touche(Qt::Key_Down), QStringList{u"clic 2"_s});
    EXPECT_EQ(Touche(Qt::Key_End), QStringList{u"clic 3"_s});
    EXPECT_EQ(Touche(Qt::Key_Down), QStringList());
    EXPECT_EQ(Touche(Qt::Key_Home), QStringList{u"clic 0"_s});
    EXPECT_EQ(Touche(Qt::Key_Up), QStringList());
}

TEST_F(Liste, sans_selection_la_premiere_fleche_prend_la_premiere_entree)
{
    for (const Qt::Key fleche : {Qt::Key_Down, Qt::Key_Up}) {
        liste.Remplit({u"zero"_s, u"un"_s});
        Recoit_Le_Focus();
        EXPECT_EQ(Touche(fleche), QStringList{u"clic 0"_s});
        EXPECT_EQ(liste.Rang_Courant(), 0);
    }
    EXPECT_EQ(Touche(Qt::Key_Down), QStringList{u"clic 1"_s});
}

TEST_F(Liste, le_focus_seul_ne_selectionne_rien)
{
    Recoit_Le_Focus();
    EXPECT_EQ(liste.Rang_Courant(), -1);
    EXPECT_EQ(Touche(Qt::Key_Return), QStringList());
}

TEST_F(Liste, un_clic_avec_ctrl_laisse_l_entree_selectionnee)
{
    conduite::Clique(liste, 1);
    QTest::mouseClick(liste.viewport(), Qt::LeftButton, Qt::ControlModifier, Milieu(1));
    EXPECT_EQ(liste.Rang_Courant(), 1);
    EXPECT_EQ(suite.last(), u"clic 1"_s);
}

TEST_F(Liste, entree_est_un_double_clic_derriere_un_clic)
{
    liste.Selectionne(1);
    EXPECT_EQ(Touche(Qt::Key_Return), QStringList{u"double clic 1"_s});
    EXPECT_EQ(Touche(Qt::Key_Enter), QStringList{u"double clic 1"_s});
}

TEST_F(Liste, entree_sans_selection_n_est_rien)
{
    EXPECT_EQ(Touche(Qt::Key_Return), QStringList());
    liste.Remplit({});
    EXPECT_EQ(Touche(Qt::Key_Return), QStringList());
    EXPECT_EQ(Touche(Qt::Key_Down), QStringList());
}

TEST_F(Liste, une_touche_entree_tenue_ne_compte_qu_une_fois)
{
    liste.Selectionne(1);
    suite.clear();
    QKeyEvent tenue(QEvent::KeyPress, Qt::Key_Return, {}, u"\r"_s, true);
    QApplication::sendEvent(&liste, &tenue);
    EXPECT_TRUE(suite.isEmpty());
}

TEST_F(Liste, un_texte_n_est_demande_que_pour_les_rangees_montrees)
{
    int demandes = 0;
    liste.Remplit(200'000, [&](std::size_t rang) {
        ++demandes;
        return QString::number(rang);
    });
    liste.Selectionne(199'999);
    liste.grab();
    EXPECT_GT(demandes, 0);
    EXPECT_LT(demandes, 500);
}

TEST_F(Liste, tous_les_caracteres_ont_la_meme_largeur)
{
    const QFontMetrics metrique(liste.font());
    for (const QChar caractere : u"iMW é'*/1"_s)
        EXPECT_EQ(metrique.horizontalAdvance(caractere), metrique.horizontalAdvance(u'M'));
}

TEST_F(Liste, demande_Letter_Gothic_puis_ce_que_les_bureaux_ont)
{
    const QStringList familles = liste.font().families();
    ASSERT_GE(familles.size(), 3);
    EXPECT_EQ(familles.first(3), (QStringList{u"Letter Gothic"_s, u"DejaVu Sans Mono"_s, u"Liberation Mono"_s}));
    EXPECT_TRUE(QFontInfo(liste.font()).fixedPitch());
}

TEST_F(Liste, l_en_tete_suit_les_colonnes)
{
    auto *entete = new QLabel(QString(60, u'X'));
    liste.Pose_Entete(entete);
    liste.Reserve(20, 5);
    liste.Remplit({QString(100, u'x')});
    liste.resize(liste.minimumWidth(), 200);
    QApplication::processEvents();
    ASSERT_GT(liste.horizontalScrollBar()->maximum(), 0);
    const int avant = entete->x();
    liste.horizontalScrollBar()->setValue(15);
    EXPECT_EQ(entete->x(), avant - 15);
    // The header stands above the first row, not on it.
    EXPECT_LE(entete->geometry().bottom(), liste.viewport()->geometry().top());
}
