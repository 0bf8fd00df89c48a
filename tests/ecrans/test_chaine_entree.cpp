#include "ecrans/Chaine_Entree.h"
#include "ecrans/Champ_Saisie.h"
#include "ecrans/Combo.h"
#include "faux/Conduite.h"
#include "faux/Impression.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

class Touches : public ::testing::Test {
protected:
    Touches()
    {
        auto *pile = new QVBoxLayout(&ecran);
        for (QWidget *controle : std::initializer_list<QWidget *>{&champ, combo, &coche}) {
            pile->addWidget(controle);
            new Chaine_Entree(controle, {.entree = [this] { suite += u"entree"_s; },
                                         .accepte = [this] { return accepte; },
                                         .avant = [this](bool retour) { suite += retour ? u"retour"_s : u"avant"_s; },
                                         .apres = [this] { suite += u"apres"_s; }});
        }
        ecran.show();
        ecran.activateWindow();
        champ.setFocus();
    }
    ~Touches() override { champ.setParent(nullptr), coche.setParent(nullptr); }

    QWidget ecran;
    Champ_Saisie champ;
    QComboBox *combo = Combo_Libre(&ecran);
    QCheckBox coche;
    QStringList suite;
    bool accepte = true;

    QStringList Suite_De(QWidget &controle, Qt::Key touche, Qt::KeyboardModifiers tenues = {},
                         const QString &texte = {}, bool repetee = false)
    {
        suite.clear();
        QKeyEvent presse(QEvent::KeyPress, touche, tenues, texte, repetee);
        QApplication::sendEvent(&controle, &presse);
        return suite;
    }
};

const QStringList rien;
const QStringList tapee{u"avant"_s, u"apres"_s};

} // namespace

TEST_F(Touches, les_petites_lettres_de_a_a_z_deviennent_capitales)
{
    conduite::Tape(champ, u"azèéAZ5/_ç"_s);
    EXPECT_EQ(champ.text(), u"AZèéAZ5/_ç"_s);
    conduite::Tape(*combo, u"cw"_s);
    EXPECT_EQ(combo->currentText(), u"CW"_s);
}

TEST_F(Touches, une_touche_qui_tape_est_annoncee_avant_et_apres)
{
    QString vue_avant;
    new Chaine_Entree(&champ, {.entree = [] {}, .avant = [&](bool) { vue_avant = champ.text() + u'|'; }});
    EXPECT_EQ(Suite_De(champ, Qt::Key_A, {}, u"a"_s), tapee);
    EXPECT_EQ(vue_avant, u"|"_s);
    EXPECT_EQ(champ.text(), u"A"_s);
}

TEST_F(Touches, un_retour_arriere_est_annonce_comme_tel)
{
    champ.setText(u"AB"_s);
    EXPECT_EQ(Suite_De(champ, Qt::Key_Backspace), (QStringList{u"retour"_s, u"apres"_s}));
    EXPECT_EQ(champ.text(), u"A"_s);
}

TEST_F(Touches, une_touche_qui_deplace_ne_pose_pas_de_separateur)
{
    champ.setText(u"AB"_s);
    for (const Qt::Key touche : {Qt::Key_Left, Qt::Key_Home, Qt::Key_End, Qt::Key_Delete})
        EXPECT_EQ(Suite_De(champ, touche), QStringList{u"apres"_s});
}

TEST_F(Touches, les_deux_touches_entree_passent_au_suivant_sans_atteindre_le_champ)
{
    bool validee = false;
    QObject::connect(&champ, &QLineEdit::returnPressed, [&] { validee = true; });
    EXPECT_EQ(Suite_De(champ, Qt::Key_Return, {}, u"\r"_s), QStringList{u"entree"_s});
    EXPECT_EQ(Suite_De(champ, Qt::Key_Enter, Qt::KeypadModifier, u"\r"_s), QStringList{u"entree"_s});
    EXPECT_EQ(Suite_De(*combo, Qt::Key_Return, {}, u"\r"_s), QStringList{u"entree"_s});
    EXPECT_EQ(Suite_De(coche, Qt::Key_Enter, Qt::KeypadModifier, u"\r"_s), QStringList{u"entree"_s});
    EXPECT_FALSE(validee);
}

TEST_F(Touches, une_entree_tenue_ne_passe_pas_deux_champs)
{
    EXPECT_EQ(Suite_De(champ, Qt::Key_Return, {}, u"\r"_s, true), rien);
    // A letter held down repeats, as in any field.
    EXPECT_EQ(Suite_De(champ, Qt::Key_A, {}, u"a"_s, true), tapee);
}

TEST_F(Touches, une_touche_refusee_tombe)
{
    accepte = false;
    EXPECT_EQ(Suite_De(champ, Qt::Key_A, {}, u"a"_s), rien);
    EXPECT_EQ(Suite_De(champ, Qt::Key_Return, {}, u"\r"_s), rien);
    EXPECT_EQ(champ.text(), u""_s);
    combo->addItems({u"un"_s, u"deux"_s});
    combo->setCurrentIndex(0);
    EXPECT_EQ(Suite_De(*combo, Qt::Key_Down), rien);
    EXPECT_EQ(combo->currentIndex(), 0);
}

TEST_F(Touches, les_raccourcis_passent_sans_etre_annonces)
{
    QGuiApplication::clipboard()->setText(u"collé"_s);
    EXPECT_EQ(Suite_De(champ, Qt::Key_V, Qt::ControlModifier, u"\x16"_s), rien);
    EXPECT_EQ(champ.text(), u"collé"_s);
    EXPECT_EQ(Suite_De(champ, Qt::Key_F, Qt::AltModifier, u"f"_s), rien);
    EXPECT_EQ(Suite_De(champ, Qt::Key_F1), rien);
    EXPECT_EQ(Suite_De(champ, Qt::Key_Escape, {}, u"\x1b"_s), rien);
    EXPECT_EQ(Suite_De(champ, Qt::Key_Shift, Qt::ShiftModifier), rien);
}

TEST_F(Touches, la_tabulation_passe_au_controle_suivant)
{
    QTest::keyClick(&champ, Qt::Key_Tab);
    EXPECT_EQ(suite, rien);
    EXPECT_FALSE(champ.hasFocus());
}

TEST_F(Touches, alt_gr_tape_un_caractere)
{
    EXPECT_EQ(Suite_De(champ, Qt::Key_At, Qt::ControlModifier | Qt::AltModifier, u"@"_s), tapee);
    EXPECT_EQ(champ.text(), u"@"_s);
}

TEST_F(Touches, une_fleche_change_le_choix_et_se_dit_apres)
{
    combo->addItems({u"un"_s, u"deux"_s});
    combo->setCurrentIndex(0);
    int vu = -1;
    new Chaine_Entree(combo, {.entree = [] {}, .apres = [&] { vu = combo->currentIndex(); }});
    Suite_De(*combo, Qt::Key_Down);
    EXPECT_EQ(vu, 1);
}

TEST_F(Touches, la_barre_d_espace_coche)
{
    QTest::keyClick(&coche, Qt::Key_Space);
    EXPECT_TRUE(coche.isChecked());
    EXPECT_EQ(suite, tapee);
}

TEST_F(Touches, un_texte_d_une_methode_de_saisie_vient_en_capitales)
{
    QInputMethodEvent methode;
    methode.setCommitString(u"f5abcé"_s);
    QApplication::sendEvent(&champ, &methode);
    EXPECT_EQ(champ.text(), u"F5ABCé"_s);
    EXPECT_EQ(suite, tapee);
    methode.setCommitString(u"x"_s);
    QApplication::sendEvent(combo, &methode);
    EXPECT_EQ(combo->currentText(), u"X"_s);
    accepte = false;
    QApplication::sendEvent(&champ, &methode);
    EXPECT_EQ(champ.text(), u"F5ABCé"_s);
}
