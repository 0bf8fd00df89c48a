#include "ecrans/Champ_Saisie.h"
#include "faux/Conduite.h"
#include "faux/Impression.h"

#include <gtest/gtest.h>

#include <QClipboard>

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
