#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "faux/QSO_Essai.h"
#include "outils/Choisit_Annee.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Choix_Annee : ::testing::Test {
    Poste_Essai essai;

    void SetUp() override
    {
        essai.Ouvre(u"Ch_DFCF"_s);
        essai.etat.challenge = Diplome::Ch_DFCF;
    }
    [[nodiscard]] QString Reglage(const QString &cle) const
    {
        return essai.reglages.Lit(u"Setup F9ZZY"_s, cle, u"absent"_s);
    }
};

} // namespace

TEST_F(Choix_Annee, une_annee_sans_log_en_cree_un_vide_et_vide_la_liste)
{
    essai.ecran.liste = Lignes_Texte(QSO({}) + u"\r\n");
    EXPECT_TRUE(Choisit_Annee(essai.poste, u"2017"_s));
    EXPECT_EQ(essai.fichiers.Fichiers(), QStringList{u"F9ZZY_Ch_DFCF_2017.log"_s});
    EXPECT_EQ(essai.fichiers.Octets(u"F9ZZY_Ch_DFCF_2017.log"_s), QByteArray());
    EXPECT_TRUE(essai.ecran.liste.empty());
}

TEST_F(Choix_Annee, l_annee_va_dans_l_etat_commun_et_dans_les_reglages_de_la_station)
{
    EXPECT_TRUE(Choisit_Annee(essai.poste, u"2017"_s));
    EXPECT_EQ(essai.etat.station.annee_ch_dfcf, u"2017"_s);
    EXPECT_EQ(essai.etat.station.annee_ch_dmf, u"2000"_s);
    EXPECT_EQ(Reglage(u"Annee Challenge DFCF"_s), u"2017"_s);
    EXPECT_EQ(Reglage(u"Annee Challenge DMF"_s), u"absent"_s);
    EXPECT_EQ(Annee_Challenge(essai.poste), u"2017"_s);
}

TEST_F(Choix_Annee, le_challenge_dmf_a_son_annee_et_son_log)
{
    essai.etat.challenge = Diplome::Ch_DMF;
    EXPECT_TRUE(Choisit_Annee(essai.poste, u"2018"_s));
    EXPECT_EQ(essai.etat.station.annee_ch_dmf, u"2018"_s);
    EXPECT_EQ(essai.etat.station.annee_ch_dfcf, u"2000"_s);
    EXPECT_EQ(Reglage(u"Annee Challenge DMF"_s), u"2018"_s);
    EXPECT_TRUE(essai.fichiers.Existe(u"F9ZZY_Ch_DMF_2018.log"_s));
}

TEST_F(Choix_Annee, un_log_qui_existe_est_montre_et_garde_ses_lignes)
{
    const QByteArray octets = (QSO({.ref = u"77001A"_s}) + u"\r\n").toLatin1();
    essai.fichiers.Pose(u"F9ZZY_Ch_DFCF_2017.log"_s, octets);
    EXPECT_TRUE(Choisit_Annee(essai.poste, u"2017"_s));
    EXPECT_EQ(essai.fichiers.Octets(u"F9ZZY_Ch_DFCF_2017.log"_s), octets);
    EXPECT_EQ(essai.ecran.liste.size(), 1U);
}

TEST_F(Choix_Annee, le_diplome_ouvert_est_recharge_meme_s_il_n_est_pas_le_challenge)
{
    essai.Ouvre(u"DFCF"_s);
    essai.fichiers.Pose(u"F9ZZY_DFCF.log"_s, (QSO({.ref = u"77001"_s}) + u"\r\n").toLatin1());
    EXPECT_TRUE(Choisit_Annee(essai.poste, u"2017"_s));
    EXPECT_EQ(essai.ecran.liste.size(), 1U);
}

TEST_F(Choix_Annee, un_diplome_ouvert_sans_log_ne_fait_pas_echouer)
{
    essai.Ouvre(u"DFCF"_s);
    EXPECT_TRUE(Choisit_Annee(essai.poste, u"2017"_s));
    EXPECT_TRUE(essai.boites.messages.empty());
    EXPECT_TRUE(essai.ecran.liste.empty());
}

TEST_F(Choix_Annee, tout_autre_texte_est_une_annee)
{
    for (const QString &annee : {u"17"_s, u""_s, u" 2017 "_s, u"année.1"_s}) {
        EXPECT_TRUE(Choisit_Annee(essai.poste, annee));
        EXPECT_EQ(essai.etat.station.annee_ch_dfcf, annee);
        EXPECT_TRUE(essai.fichiers.Existe(u"F9ZZY_Ch_DFCF_"_s + annee + u".log"));
    }
}

TEST_F(Choix_Annee, une_annee_qui_sortirait_du_dossier_est_refusee)
{
    for (const QString &annee : {u"/2017"_s, u"../2017"_s, u"2017/"_s, u".."_s, u"20..17"_s}) {
        essai.boites.messages.clear();
        EXPECT_FALSE(Choisit_Annee(essai.poste, annee));
        EXPECT_EQ(essai.boites.messages, std::vector{u"Année incorrecte"_s});
        EXPECT_EQ(essai.etat.station.annee_ch_dfcf, u"2000"_s);
        EXPECT_EQ(Reglage(u"Annee Challenge DFCF"_s), u"absent"_s);
    }
    EXPECT_TRUE(essai.fichiers.Fichiers().isEmpty());
}

TEST_F(Choix_Annee, une_annee_que_le_disque_refuse_est_refusee)
{
    EXPECT_FALSE(Choisit_Annee(essai.poste, QString(300, u'9')));
    EXPECT_EQ(essai.boites.messages, std::vector{u"Année incorrecte"_s});
    EXPECT_EQ(essai.etat.station.annee_ch_dfcf, u"2000"_s);
    EXPECT_EQ(Reglage(u"Annee Challenge DFCF"_s), u"absent"_s);
}
