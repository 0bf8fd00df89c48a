#include "ecrans/Combo.h"
#include "faux/Conduite.h"
#include "faux/Impression.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QScrollBar>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace {

/// A screen that keeps the wheel it is given.
class Page : public QWidget {
public:
    int molettes = 0;

protected:
    void wheelEvent(QWheelEvent *molette) override
    {
        ++molettes;
        molette->accept();
    }
};

class Liste_De_Bandes : public ::testing::Test {
protected:
    Liste_De_Bandes()
    {
        combo->addItems({u"7.0 Mhz"_s, u"14 Mhz"_s, u"21 Mhz"_s});
        autre->move(0, 100);
        combo->setCurrentIndex(1);
        QObject::connect(combo, &Combo::Choisie, [this] { choix += combo->currentText(); });
        page.show();
        page.activateWindow();
        combo->setFocus();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&page));
    }

    Page page;
    Combo *combo = Combo_Libre(&page);
    QLineEdit *autre = new QLineEdit(&page);
    QStringList choix;

    static void Tourne(QWidget &widget)
    {
        const QPointF milieu = QRectF(widget.rect()).center();
        QWheelEvent cran(milieu, widget.mapToGlobal(milieu), {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
        // Only an event of the system is passed on to the parent.
        QSpontaneKeyEvent::setSpontaneous(&cran);
        qApp->notify(&widget, &cran);
    }
    void Ouvre()
    {
        combo->showPopup();
        EXPECT_TRUE(QTest::qWaitFor([this] { return combo->view()->isVisible(); }));
    }
    void Clique_Dans_La_Liste(int rang)
    {
        QTest::mouseClick(combo->view()->viewport(), Qt::LeftButton, {},
                          combo->view()->visualRect(combo->model()->index(rang, 0)).center());
    }
};

} // namespace

TEST_F(Liste_De_Bandes, un_cran_de_molette_ne_change_rien_et_va_a_l_ecran)
{
    Tourne(*combo);
    Tourne(*combo->lineEdit());
    EXPECT_EQ(combo->currentText(), u"14 Mhz"_s);
    EXPECT_EQ(page.molettes, 2);
    combo->setEditable(false);
    Tourne(*combo);
    EXPECT_EQ(combo->currentText(), u"14 Mhz"_s);
    EXPECT_EQ(page.molettes, 3);
}

TEST_F(Liste_De_Bandes, la_liste_ouverte_prend_la_molette_pour_elle)
{
    for (int i = 0; i < 40; ++i)
        combo->addItem(u"%1 Mhz"_s.arg(i));
    Ouvre();
    Tourne(*combo->view()->viewport());
    EXPECT_GT(combo->view()->verticalScrollBar()->value(), 0);
    EXPECT_EQ(combo->currentText(), u"14 Mhz"_s);
    EXPECT_EQ(page.molettes, 0);
}

TEST_F(Liste_De_Bandes, un_clic_dans_la_liste_ouverte_est_un_choix)
{
    Ouvre();
    Clique_Dans_La_Liste(2);
    EXPECT_EQ(choix, QStringList{u"21 Mhz"_s});
    Ouvre();
    Clique_Dans_La_Liste(2);
    EXPECT_EQ(choix, (QStringList{u"21 Mhz"_s, u"21 Mhz"_s})) << "the entry that is shown too";
}

TEST_F(Liste_De_Bandes, entree_dans_la_liste_ouverte_est_un_choix)
{
    Ouvre();
    QTest::keyClick(combo->view(), Qt::Key_Up);
    EXPECT_EQ(choix, QStringList{});
    QTest::keyClick(combo->view(), Qt::Key_Return);
    EXPECT_EQ(choix, QStringList{u"7.0 Mhz"_s});
}

TEST_F(Liste_De_Bandes, une_liste_refermee_sans_choix_n_en_est_pas_un_ni_la_fleche_qui_suit)
{
    Ouvre();
    QTest::keyClick(combo->view(), Qt::Key_Escape);
    QTest::keyClick(combo, Qt::Key_Down);
    QCoreApplication::processEvents();
    QTest::keyClick(combo, Qt::Key_Up);
    EXPECT_EQ(combo->currentText(), u"14 Mhz"_s);
    EXPECT_EQ(choix, QStringList{});
}

TEST_F(Liste_De_Bandes, un_texte_tape_et_quitte_n_est_pas_un_choix)
{
    combo->lineEdit()->selectAll();
    conduite::Tape(*combo, u"7.0 Mhz"_s);
    QTest::keyClick(combo, Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), autre);
    EXPECT_EQ(combo->currentIndex(), 0);
    EXPECT_EQ(choix, QStringList{});
}

TEST(Combo_De_Saisie, une_combo_libre_ne_retient_ni_ne_devine_rien)
{
    QWidget ecran;
    Combo *combo = Combo_Libre(&ecran);
    combo->addItems({u"14 Mhz"_s, u"144 Mhz"_s});
    combo->setEditText(u""_s);
    ecran.show();
    ecran.activateWindow();
    combo->setFocus();
    conduite::Tape(*combo, u"14"_s);
    EXPECT_EQ(combo->currentText(), u"14"_s);
    QTest::keyClick(combo, Qt::Key_Return);
    EXPECT_EQ(combo->count(), 2);
    EXPECT_EQ(combo->completer(), nullptr);
    EXPECT_EQ(combo->currentText(), u"14"_s);
    EXPECT_EQ(Indice_Du_Texte(*combo), -1);
    combo->setEditText(u"144 Mhz"_s);
    EXPECT_EQ(Indice_Du_Texte(*combo), 1);
    combo->setEditText(u"144 MHZ"_s);
    EXPECT_EQ(Indice_Du_Texte(*combo), -1);
    conduite::Tape(*combo, u"Δ"_s);
    EXPECT_EQ(combo->currentText(), u"144 MHZ"_s);
}
