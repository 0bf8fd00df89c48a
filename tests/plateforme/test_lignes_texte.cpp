#include "faux/Impression.h"
#include "plateforme/Lignes_Texte.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

std::vector<QString> Lues(const QString &texte)
{
    std::vector<QString> lues;
    for (const QStringView ligne : Lignes_Texte(texte))
        lues.push_back(ligne.toString());
    return lues;
}

using Textes = std::vector<QString>;

} // namespace

TEST(Lignes_Texte, un_texte_vide_n_a_pas_de_ligne)
{
    EXPECT_TRUE(Lignes_Texte(QString()).empty());
    EXPECT_TRUE(Lignes_Texte().empty());
}

TEST(Lignes_Texte, cr_lf_et_lf_finissent_une_ligne)
{
    EXPECT_EQ(Lues(u"un\r\ndeux\ntrois\r\n"_s), (Textes{u"un"_s, u"deux"_s, u"trois"_s}));
}

TEST(Lignes_Texte, une_derniere_ligne_sans_fin_est_une_ligne)
{
    EXPECT_EQ(Lues(u"un\r\ndeux"_s), (Textes{u"un"_s, u"deux"_s}));
    EXPECT_EQ(Lues(u"un"_s), (Textes{u"un"_s}));
}

TEST(Lignes_Texte, les_lignes_vides_comptent)
{
    EXPECT_EQ(Lues(u"\r\n\nun\r\n\r\n"_s), (Textes{u""_s, u""_s, u"un"_s, u""_s}));
}

TEST(Lignes_Texte, un_cr_seul_reste_dans_sa_ligne)
{
    EXPECT_EQ(Lues(u"un\rdeux\r\n\rtrois\r\r\n"_s), (Textes{u"un\rdeux"_s, u"\rtrois\r"_s}));
    EXPECT_EQ(Lues(u"un\r"_s), (Textes{u"un\r"_s}));
    EXPECT_EQ(Lues(u"\r"_s), (Textes{u"\r"_s}));
}

TEST(Lignes_Texte, les_caracteres_de_commande_ne_finissent_rien)
{
    const QString ligne = u"a\0b\x1A\x0B\x0C\x85\u00A0"_s;
    EXPECT_EQ(Lues(ligne + u"\r\n"), (Textes{ligne}));
}

TEST(Lignes_Texte, une_copie_et_un_deplacement_gardent_les_lignes)
{
    std::optional<Lignes_Texte> original(u"un\r\ndeux\r\n"_s);
    const Lignes_Texte copie = *original;
    Lignes_Texte deplacee;
    deplacee = std::move(*original);
    original.reset();
    ASSERT_EQ(copie.size(), 2U);
    EXPECT_EQ(copie[1], u"deux");
    ASSERT_EQ(deplacee.size(), 2U);
    EXPECT_EQ(deplacee[0], u"un");
}
