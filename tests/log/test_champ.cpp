#include "faux/Impression.h"
#include "log/Champ.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Champ, la_premiere_colonne_est_1)
{
    EXPECT_EQ(Lit(u"abcdef", {1, 2}), u"ab");
    EXPECT_EQ(Lit(u"abcdef", {5, 2}), u"ef");
}

TEST(Champ, une_ligne_trop_courte_rend_ce_qu_elle_a)
{
    EXPECT_EQ(Lit(u"abc", {3, 10}), u"c");
    EXPECT_EQ(Lit(u"abc", {4, 10}), u"");
    EXPECT_EQ(Lit(u"abc", {5, 10}), u"");
    EXPECT_EQ(Lit(u"", {1, 1}), u"");
    EXPECT_EQ(Lit(u"abc", {111, 1}), u"");
}

TEST(Champ, seuls_les_blancs_autour_s_en_vont)
{
    EXPECT_EQ(Rogne(u"  a b  "), u"a b");
    EXPECT_EQ(Rogne(u"   "), u"");
    EXPECT_EQ(Rogne(u"\ta\u00A0"), u"\ta\u00A0");
    EXPECT_EQ(Lit_Rogne(u"ab cd  e", {3, 5}), u"cd");
}

TEST(Champ, complete_ne_coupe_pas_et_ajuste_coupe)
{
    EXPECT_EQ(Complete(u"ab", 4), u"ab  "_s);
    EXPECT_EQ(Complete(u"abcde", 4), u"abcde"_s);
    EXPECT_EQ(Ajuste(u"ab", 4), u"ab  "_s);
    EXPECT_EQ(Ajuste(u"abcde", 4), u"abcd"_s);
}
