#include "log/Difference_Logs.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using Rangs = std::vector<std::size_t>;

} // namespace

TEST(Difference_Logs, un_log_trie_ne_differe_pas)
{
    const Difference_Logs difference =
        Difference(Lignes_Texte(u"b\r\na\r\nb\r\n"_s), Lignes_Texte(u"a\r\nb\r\nb\r\n"_s));
    EXPECT_EQ(difference.reviendraient, Rangs{});
    EXPECT_EQ(difference.partiraient, Rangs{});
}

TEST(Difference_Logs, un_double_supprime_reviendrait_une_fois)
{
    const Difference_Logs difference =
        Difference(Lignes_Texte(u"a\r\nb\r\na\r\na\r\n"_s), Lignes_Texte(u"a\r\nb\r\na\r\n"_s));
    EXPECT_EQ(difference.reviendraient, Rangs{3});
    EXPECT_EQ(difference.partiraient, Rangs{});
}

TEST(Difference_Logs, chaque_cote_nomme_ses_lignes)
{
    const Difference_Logs difference = Difference(Lignes_Texte(u"a\r\nb\r\nc\r\n"_s), Lignes_Texte(u"x\r\nb\r\n"_s));
    EXPECT_EQ(difference.reviendraient, (Rangs{0, 2}));
    EXPECT_EQ(difference.partiraient, Rangs{0});
}

TEST(Difference_Logs, a_partir_de_rien_tout_revient)
{
    EXPECT_EQ(Difference(Lignes_Texte(u"a\r\n"_s), Lignes_Texte()).reviendraient, Rangs{0});
}
