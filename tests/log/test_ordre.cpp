#include "faux/Impression.h"
#include "log/Ordre.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Ordre, la_casse_ne_compte_pas)
{
    EXPECT_TRUE(Avant_Sans_Casse(u"a", u"B"));
    EXPECT_TRUE(Avant_Sans_Casse(u"A", u"b"));
    EXPECT_FALSE(Avant_Sans_Casse(u"a", u"A"));
    EXPECT_FALSE(Avant_Sans_Casse(u"A", u"a"));
    EXPECT_FALSE(Avant_Sans_Casse(u"é", u"É"));
    EXPECT_FALSE(Avant_Sans_Casse(u"É", u"é"));
}

TEST(Ordre, les_lettres_se_comparent_en_capitales)
{
    // "_" stands between the capitals and the small letters.
    EXPECT_TRUE(Avant_Sans_Casse(u"a", u"_"));
    EXPECT_TRUE(Avant_Sans_Casse(u"Z", u"_"));
}

TEST(Ordre, les_blancs_et_les_chiffres_gardent_leur_place)
{
    std::vector<QString> textes{u"F5A"_s, u"F 5"_s, u"F51"_s, u"F5"_s, u""_s, u"É"_s, u"Z"_s};
    Trie_Sans_Casse(textes);
    EXPECT_EQ(textes, (std::vector<QString>{u""_s, u"F 5"_s, u"F5"_s, u"F51"_s, u"F5A"_s, u"Z"_s, u"É"_s}));
}

TEST(Ordre, les_textes_egaux_restent_dans_leur_ordre)
{
    std::vector<QString> textes{u"b"_s, u"B"_s, u"a"_s, u"A"_s, u"b"_s};
    Trie_Sans_Casse(textes);
    EXPECT_EQ(textes, (std::vector<QString>{u"a"_s, u"A"_s, u"b"_s, u"B"_s, u"b"_s}));
}
