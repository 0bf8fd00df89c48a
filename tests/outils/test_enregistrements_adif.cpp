#include "faux/Impression.h"
#include "outils/Enregistrements_ADIF.h"

#include <gtest/gtest.h>

#include <vector>

using namespace Qt::StringLiterals;

namespace {

std::vector<QString> Tous(const QString &texte)
{
    const Lignes_Texte lignes(texte);
    Enregistrements_ADIF enregistrements(lignes);
    std::vector<QString> tous;
    while (const auto enregistrement = enregistrements.Suivant())
        tous.push_back(enregistrement->toString());
    EXPECT_EQ(enregistrements.Lues(), lignes.size());
    return tous;
}

} // namespace

TEST(Enregistrements_ADIF, les_lignes_d_un_enregistrement_se_joignent_sans_separateur)
{
    EXPECT_EQ(Tous(u"entete\r\n<EOH>\r\n<CALL:5>F5\r\nABC\n<EOR>\r\n<EOR>\r\n"_s),
              (std::vector{u"<CALL:5>F5ABC<EOR>"_s, u"<EOR>"_s}));
}

TEST(Enregistrements_ADIF, sans_eoh_il_n_y_a_pas_d_enregistrement)
{
    EXPECT_TRUE(Tous(u"<CALL:5>F5ABC <EOR>\r\n"_s).empty());
    EXPECT_TRUE(Tous(u""_s).empty());
}

TEST(Enregistrements_ADIF, ce_qui_suit_eoh_sur_sa_ligne_est_ignore)
{
    EXPECT_EQ(Tous(u"x<EOH><CALL:1>A<EOR>\r\n<CALL:1>B<EOR>\r\n"_s), std::vector{u"<CALL:1>B<EOR>"_s});
}

TEST(Enregistrements_ADIF, une_ligne_de_deux_enregistrements_n_en_fait_qu_un)
{
    EXPECT_EQ(Tous(u"<EOH>\r\n<CALL:1>A<EOR><CALL:1>B<EOR>\r\n"_s), std::vector{u"<CALL:1>A<EOR><CALL:1>B<EOR>"_s});
}

TEST(Enregistrements_ADIF, la_marque_de_fin_peut_courir_sur_deux_lignes)
{
    EXPECT_EQ(Tous(u"<EOH>\nA<E\nOR>\nB<EOR>"_s), (std::vector{u"A<EOR>"_s, u"B<EOR>"_s}));
}

TEST(Enregistrements_ADIF, le_reste_sans_marque_de_fin_est_un_enregistrement_sauf_vide)
{
    EXPECT_EQ(Tous(u"<EOH>\nA<EOR>\n\n\n"_s), std::vector{u"A<EOR>"_s});
    EXPECT_EQ(Tous(u"<EOH>\nA<EOR>\n\nB\n"_s), (std::vector{u"A<EOR>"_s, u"B"_s}));
    EXPECT_EQ(Tous(u"<EOH>\nA<EOR>\n "_s), (std::vector{u"A<EOR>"_s, u" "_s}));
}

TEST(Enregistrements_ADIF, des_references_se_voient_a_sig_avec_deux_points)
{
    EXPECT_TRUE(A_Des_References(Lignes_Texte(u"x\n<SIG:5>77001"_s)));
    EXPECT_FALSE(A_Des_References(Lignes_Texte(u"<SIG_INFO:5>77001 <MY_SIG:4>WWFF\n<SI\nG:5>"_s)));
    EXPECT_FALSE(A_Des_References(Lignes_Texte()));
}
