#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "log/Catalogue.h"
#include "outils/Sauve_Logs.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Sauvegarde : ::testing::Test {
    Poste_Essai essai;
    Dossier_Temporaire cible;

    void Regle(const QString &cle, const QString &valeur) { essai.reglages.Ecrit(u"Setup F9ZZY"_s, cle, valeur); }
    void SetUp() override { Regle(u"Chemin Sauvegarde"_s, cible.Chemin()); }
};

} // namespace

TEST_F(Sauvegarde, les_logs_sont_copies_octet_pour_octet)
{
    const QByteArray octets("F5ABC \x80\x81 sans fin de ligne\n\0x", 29);
    essai.fichiers.Pose(u"F9ZZY_DFCF.log"_s, octets);
    essai.fichiers.Pose(u"F9ZZY_WLF.log"_s, "");
    Sauve_Logs(essai.poste);
    EXPECT_EQ(cible.Octets(u"F9ZZY_DFCF.log"_s), octets);
    EXPECT_EQ(cible.Octets(u"F9ZZY_WLF.log"_s), QByteArray());
}

TEST_F(Sauvegarde, un_diplome_sans_log_ne_laisse_pas_de_fichier)
{
    essai.fichiers.Pose(u"F9ZZY_TDC.log"_s, "x\r\n");
    Sauve_Logs(essai.poste);
    EXPECT_EQ(cible.Fichiers(), QStringList{u"F9ZZY_TDC.log"_s});
}

TEST_F(Sauvegarde, tous_les_codes_sont_copies)
{
    Regle(u"Annee Challenge DFCF"_s, u"2017"_s);
    Regle(u"Annee Challenge DMF"_s, u"2018"_s);
    QStringList attendus;
    for (const QStringView code : codes_diplome) {
        const QString annee = code == u"Ch_DFCF" ? u"_2017"_s : code == u"Ch_DMF" ? u"_2018"_s : QString();
        essai.fichiers.Pose(u"F9ZZY_"_s + code + annee + u".log", code.toUtf8());
        attendus.append(u"F9ZZY_"_s + code + u".log");
    }
    attendus.sort();
    Sauve_Logs(essai.poste);
    EXPECT_EQ(cible.Fichiers(), attendus);
    EXPECT_EQ(cible.Octets(u"F9ZZY_Ch_DMF.log"_s), "Ch_DMF");
}

TEST_F(Sauvegarde, le_challenge_de_l_annee_remplace_celui_d_avant_sous_un_nom_sans_annee)
{
    Regle(u"Annee Challenge DFCF"_s, u"2018"_s);
    cible.Pose(u"F9ZZY_Ch_DFCF.log"_s, "une sauvegarde plus ancienne, plus longue que la nouvelle\r\n");
    essai.fichiers.Pose(u"F9ZZY_Ch_DFCF_2017.log"_s, "2017\r\n");
    essai.fichiers.Pose(u"F9ZZY_Ch_DFCF_2018.log"_s, "2018\r\n");
    Sauve_Logs(essai.poste);
    EXPECT_EQ(cible.Fichiers(), QStringList{u"F9ZZY_Ch_DFCF.log"_s});
    EXPECT_EQ(cible.Octets(u"F9ZZY_Ch_DFCF.log"_s), "2018\r\n");
}

TEST_F(Sauvegarde, les_annees_des_challenges_sont_relues)
{
    Regle(u"Annee Challenge DFCF"_s, u"2017"_s);
    Regle(u"Annee Challenge DMF"_s, u"2019"_s);
    Sauve_Logs(essai.poste);
    EXPECT_EQ(essai.etat.station.annee_ch_dfcf, u"2017"_s);
    EXPECT_EQ(essai.etat.station.annee_ch_dmf, u"2019"_s);
}

TEST_F(Sauvegarde, un_separateur_a_la_fin_du_repertoire_ne_gene_pas)
{
    Regle(u"Chemin Sauvegarde"_s, cible.Chemin() + u'/');
    essai.fichiers.Pose(u"F9ZZY_DLF.log"_s, "x\r\n");
    Sauve_Logs(essai.poste);
    EXPECT_TRUE(cible.Existe(u"F9ZZY_DLF.log"_s));
}

TEST_F(Sauvegarde, un_repertoire_absent_ne_donne_ni_copie_ni_message)
{
    Regle(u"Chemin Sauvegarde"_s, cible.Chemin(u"absent"_s));
    essai.fichiers.Pose(u"F9ZZY_DLF.log"_s, "x\r\n");
    Sauve_Logs(essai.poste);
    EXPECT_FALSE(cible.Existe(u"absent"_s));
    EXPECT_TRUE(essai.boites.messages.empty());
}

TEST_F(Sauvegarde, un_repertoire_qui_n_est_pas_un_chemin_complet_n_ecrit_pas_parmi_les_logs)
{
    for (const QString &chemin : {u""_s, u"."_s, u"C:\\Sauvegarde_Vorlain"_s}) {
        Regle(u"Chemin Sauvegarde"_s, chemin);
        essai.fichiers.Pose(u"F9ZZY_DLF.log"_s, "x\r\n");
        essai.fichiers.Pose(u"F9ZZY_Ch_DMF_2000.log"_s, "x\r\n");
        Sauve_Logs(essai.poste);
        EXPECT_EQ(essai.fichiers.Fichiers(), (QStringList{u"F9ZZY_Ch_DMF_2000.log"_s, u"F9ZZY_DLF.log"_s}));
    }
}

TEST_F(Sauvegarde, une_copie_refusee_laisse_l_ancienne_et_les_suivantes_se_font)
{
    cible.Pose(u"F9ZZY_DFCF.log"_s, "ancienne\r\n");
    ASSERT_TRUE(QDir(essai.fichiers.Chemin()).mkdir(u"F9ZZY_DFCF.log"_s));
    essai.fichiers.Pose(u"F9ZZY_WLF.log"_s, "suivante\r\n");
    Sauve_Logs(essai.poste);
    EXPECT_EQ(cible.Octets(u"F9ZZY_DFCF.log"_s), "ancienne\r\n");
    EXPECT_EQ(cible.Octets(u"F9ZZY_WLF.log"_s), "suivante\r\n");
}

TEST_F(Sauvegarde, chaque_indicatif_a_son_repertoire)
{
    essai.etat.station.indicatif = u"F9ZZY_P"_s;
    essai.fichiers.Pose(u"F9ZZY_P_DLF.log"_s, "x\r\n");
    Sauve_Logs(essai.poste);
    EXPECT_TRUE(cible.Fichiers().isEmpty());
}
