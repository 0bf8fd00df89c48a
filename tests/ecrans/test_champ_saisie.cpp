#include "ecrans/Champ_Saisie.h"
#include "faux/Conduite.h"
#include "faux/Impression.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QComboBox>

using namespace Qt::StringLiterals;

namespace {

class Champ : public ::testing::Test {
protected:
    Champ_Saisie champ;

    void Colle(const QString &texte)
    {
        QGuiApplication::clipboard()->setText(texte);
        champ.paste();
    }
};

} // namespace

TEST_F(Champ, les_lettres_francaises_entrent)
{
    conduite::Tape(champ, u"Été à Œuf 5 €"_s);
    EXPECT_EQ(champ.text(), u"Été à Œuf 5 €"_s);
}

TEST_F(Champ, un_caractere_que_les_fichiers_ne_tiennent_pas_n_entre_pas)
{
    conduite::Tape(champ, u"tour Δ中"_s);
    EXPECT_EQ(champ.text(), u"tour "_s);
    QKeyEvent double_unite(QEvent::KeyPress, 0, {}, u"🗼"_s);
    QApplication::sendEvent(&champ, &double_unite);
    EXPECT_EQ(champ.text(), u"tour "_s);
}

TEST_F(Champ, un_collage_perd_ce_qui_ne_peut_entrer_et_garde_le_reste)
{
    Colle(u"tour Δ de\r\nChappe🗼 \n!"_s);
    EXPECT_EQ(champ.text(), u"tour  deChappe !"_s);
    EXPECT_EQ(champ.cursorPosition(), champ.text().size());
}

TEST_F(Champ, aucune_fin_de_ligne_n_entre)
{
    Colle(u"a\nb\rc\r\nd\u2028e\u2029f\u0085g"_s);
    EXPECT_EQ(champ.text(), u"abcdefg"_s);
}

TEST_F(Champ, un_collage_au_milieu_garde_le_curseur_derriere_lui)
{
    champ.setText(u"AB"_s);
    champ.setCursorPosition(1);
    Colle(u"x\nΔy"_s);
    EXPECT_EQ(champ.text(), u"AxyB"_s);
    EXPECT_EQ(champ.cursorPosition(), 3);
}

TEST_F(Champ, une_combo_libre_ne_retient_ni_ne_devine_rien)
{
    QWidget ecran;
    QComboBox *combo = Combo_Libre(&ecran);
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
