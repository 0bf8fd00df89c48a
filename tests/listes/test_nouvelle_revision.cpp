#include "Listes_Essai.h"
#include "listes/Nouvelle_Revision.h"

using namespace Qt::StringLiterals;

namespace {

struct Revision : ::testing::Test {
    Poste_Essai essai;

    Revision() { essai.reglages.Ecrit(u"Serveurs"_s, u"Programme"_s, u"vorlain.test"_s); }
    void Publie(const QByteArray &corps)
    {
        essai.telechargement.corps[u"http://vorlain.test/Vorlain/Version.txt"_s] = corps;
        Nouvelle_Revision(essai.poste);
    }
    [[nodiscard]] bool Fichier_Reste() const { return essai.fichiers.Existe(u"New_Version.txt"_s); }
};

} // namespace

TEST_F(Revision, la_meme_version)
{
    essai.reglages.Ecrit(u"Setup "_s, u"Revision"_s, u"V1.2.5c"_s);
    Publie("V1.2.5c\r\n");
    EXPECT_EQ(essai.boites.messages, std::vector{u"Le programme est à la derniere révision   ( V1.2.5c )"_s});
    EXPECT_FALSE(Fichier_Reste());
    EXPECT_EQ(essai.reglages.Lit(u"Setup "_s, u"Revision"_s, {}), u"V1.2.5c"_s);
}

TEST_F(Revision, une_autre_version_est_la_derniere_ligne)
{
    Publie("V1.0.0\r\nV1.3.0");
    EXPECT_EQ(essai.boites.messages, std::vector{u"Une nouvelle version de Vorlain est disponible   ( V1.3.0 )"_s});
    EXPECT_FALSE(Fichier_Reste());
}

TEST_F(Revision, le_defaut_est_v1_0_0_et_le_reglage_est_sans_indicatif)
{
    essai.reglages.Ecrit(u"Setup F9ZZY"_s, u"Revision"_s, u"V9"_s);
    Publie("V1.0.0\n");
    EXPECT_EQ(essai.boites.messages, std::vector{u"Le programme est à la derniere révision   ( V1.0.0 )"_s});
}

TEST_F(Revision, une_ligne_vide_finit_sans_un_mot_et_le_fichier_reste)
{
    Publie("V1.0.0\r\n\r\nV1.3.0\r\n");
    EXPECT_TRUE(essai.boites.messages.empty());
    EXPECT_TRUE(Fichier_Reste());
}

TEST_F(Revision, sans_reseau_seul_l_acces_est_dit)
{
    Publie({});
    EXPECT_EQ(essai.boites.messages, std::vector{u"Attention pas d'acces à Internet"_s});
    EXPECT_FALSE(Fichier_Reste());
}

TEST_F(Revision, un_reste_d_une_verification_garde_sa_queue)
{
    essai.fichiers.Pose(u"New_Version.txt"_s, "V1.3.0\r\n\r\n");
    Publie("V1.0.0");
    EXPECT_TRUE(essai.boites.messages.empty()) << "the empty line of the old file is still there";
    EXPECT_EQ(essai.fichiers.Octets(u"New_Version.txt"_s), "V1.0.0\r\n\r\n");
}
