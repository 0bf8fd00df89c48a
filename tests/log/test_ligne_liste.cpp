#include "faux/Echec.h"
#include "faux/Impression.h"
#include "log/Ligne_Liste.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Ligne_Liste, un_champ_est_ce_qui_precede_son_point_virgule)
{
    const auto champs = Champs_Liste<3>(u"63-087; Tournoël ;;Volvic");
    EXPECT_EQ(champs[0], u"63-087");
    EXPECT_EQ(champs[1], u" Tournoël ");
    EXPECT_EQ(champs[2], u"");
}

TEST(Ligne_Liste, le_reste_va_a_la_fin_de_la_ligne)
{
    const QString ligne = u"a;b;c;d"_s;
    EXPECT_EQ(Reste_Liste(ligne, Champs_Liste<2>(ligne)), u"c;d");
    const QString finie = u"a;b;"_s;
    EXPECT_EQ(Reste_Liste(finie, Champs_Liste<2>(finie)), u"");
}

TEST(Ligne_Liste, les_guillemets_sont_des_caracteres)
{
    EXPECT_EQ(Champs_Liste<2>(u"\"a;b\";")[1], u"b\"");
}

TEST(Ligne_Liste, trop_peu_de_separateurs_est_une_erreur_de_liste)
{
    for (const QStringView ligne : {u""_s, u"a"_s, u"a;b;c"_s}) {
        const auto echec = Echec([&] { (void)Champs_Liste<3>(ligne); });
        ASSERT_TRUE(echec) << ligne.toString().toStdString();
        EXPECT_EQ(echec->La_Cause(), Cause::Format_Liste);
    }
    EXPECT_EQ(Echec([] { (void)Champs_Liste<3>(u"a;%1"); })->Texte(),
              u"une ligne de liste a moins de 3 séparateurs « ; » : a;%1"_s);
}

TEST(Ligne_Liste, le_nombre_de_champs_peut_n_etre_connu_qu_a_l_execution)
{
    std::vector<QStringView> champs(2);
    Decoupe_Liste(u"a;b;c", champs);
    EXPECT_EQ(champs[1], u"b");
}
