#include "faux/Impression.h"
#include "faux/Poste_Saisie.h"
#include "faux/QSO_Essai.h"
#include "saisie/Changement_Station.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class Changement : public ::testing::Test {
protected:
    Poste_Saisie essai;
    [[nodiscard]] QString Reglage(const QString &section, const QString &cle) const
    {
        return essai.reglages.Lit(section, cle, u"(rien)"_s);
    }
};

} // namespace

TEST(Indicatif_Station, les_trois_refus)
{
    EXPECT_EQ(Refus_Indicatif_Station(u""), u"Vous devez entrer un indicatif"_s);
    EXPECT_EQ(Refus_Indicatif_Station(u"F9ZZYF9ZZYF9Z"), u"12 caracteres maximum pour l'indicatif"_s);
    for (const QStringView texte : {u"F9-ZZY", u"F9 ZZY", u"F9ZZY/P", u"f9zzy", u"F9ZZÉ", u"F9ZZY."})
        EXPECT_EQ(Refus_Indicatif_Station(texte),
                  u"L'indicatif ne doit comporter que des lettres des chiffres ou le signe '_' "_s);
    for (const QStringView texte : {u"F9ZZY", u"F9ZZY_P", u"F9ZZYF9ZZYF9", u"_", u"0"})
        EXPECT_EQ(Refus_Indicatif_Station(texte), std::nullopt);
}

TEST(Indicatif_Station, seul_un_mauvais_caractere_vide_le_champ)
{
    EXPECT_TRUE(Est_Refus_De_Caractere(u"F9-ZZY"));
    EXPECT_FALSE(Est_Refus_De_Caractere(u""));
    EXPECT_FALSE(Est_Refus_De_Caractere(u"F9-ZZYF9ZZYF9"));
    EXPECT_FALSE(Est_Refus_De_Caractere(u"F9ZZY"));
}

TEST_F(Changement, une_station_neuve_recoit_21_logs_vides_et_ses_reglages)
{
    QFile::remove(essai.fichiers.Chemin(u"Liste_Prenom.txt"_s));
    Change_Station(essai.poste, essai.saisie, u"F4ABC_P"_s);
    QStringList attendus;
    for (const QStringView code : codes_diplome)
        attendus += u"F4ABC_P_"_s + code + u".log";
    attendus.sort();
    EXPECT_EQ(essai.fichiers.Fichiers(), attendus);
    EXPECT_TRUE(attendus.contains(u"F4ABC_P_Ch_DFCF.log"_s));
    for (const QString &nom : attendus)
        EXPECT_EQ(essai.fichiers.Octets(nom), "");
    EXPECT_EQ(Reglage(u"Setup "_s, u"Indicatif Station"_s), u"F4ABC_P"_s);
    EXPECT_EQ(Reglage(u"Setup F4ABC_P"_s, u"bande Utilisee"_s), u"0"_s);
    EXPECT_EQ(Reglage(u"Setup F4ABC_P"_s, u"Mode Utilise"_s), u"0"_s);
    EXPECT_EQ(essai.saisie.Texte(Controle::Bande_A), u"1.8 Mhz"_s);
    EXPECT_EQ(essai.etat.station.indicatif, u"F4ABC_P"_s);
    EXPECT_EQ(essai.saisie.Texte(Controle::I_Station), u"F4ABC/P"_s);
}

TEST_F(Changement, une_station_connue_garde_ses_logs_et_ses_choix)
{
    const QByteArray log = QSO({}).toLatin1() + "\r\n";
    essai.fichiers.Pose(u"F4ABC_DFCF.log"_s, log);
    essai.fichiers.Pose(u"F4ABC_DMF.log"_s, log);
    essai.reglages.vorlain[{u"Setup F4ABC"_s, u"bande Utilisee"_s}] = u"6"_s;
    essai.reglages.vorlain[{u"Setup F4ABC"_s, u"Mode Utilise"_s}] = u"1"_s;
    const QStringList avant = essai.fichiers.Fichiers();
    Change_Station(essai.poste, essai.saisie, u"F4ABC"_s);
    EXPECT_EQ(essai.fichiers.Fichiers(), avant);
    EXPECT_EQ(essai.fichiers.Octets(u"F4ABC_DFCF.log"_s), log);
    EXPECT_EQ(essai.fichiers.Octets(u"F4ABC_DMF.log"_s), log);
    EXPECT_EQ(essai.saisie.Texte(Controle::Bande_A), u"21 Mhz"_s);
    EXPECT_EQ(essai.saisie.Texte(Controle::Mode_A), u"CW"_s);
    EXPECT_EQ(Reglage(u"Setup "_s, u"Indicatif Station"_s), u"F4ABC"_s);
}

TEST_F(Changement, le_diplome_courant_reste_et_son_log_s_affiche)
{
    essai.Ouvre_Log(u"DMF"_s);
    essai.fichiers.Pose(u"F4ABC_DFCF.log"_s, "");
    essai.fichiers.Pose(u"F4ABC_DMF.log"_s, QSO({.ref = u"77001"_s}).toLatin1() + "\r\n");
    essai.reglages.vorlain[{u"Setup F4ABC"_s, u"Diplome Utilise"_s}] = u"0"_s;
    Change_Station(essai.poste, essai.saisie, u"F4ABC"_s);
    EXPECT_EQ(essai.etat.station.diplome, Diplome::DMF);
    EXPECT_EQ(essai.saisie.Texte(Controle::Dip_A), u"DMF"_s);
    EXPECT_EQ(essai.ecran_du_log.Liste_QSO().size(), 1U);
}

TEST_F(Changement, un_log_qui_manque_laisse_la_liste_vide_sans_un_mot)
{
    essai.Ouvre_Log(u"Ch_DFCF"_s, QSO({}).toLatin1() + "\r\n");
    essai.fichiers.Pose(u"F4ABC_DFCF.log"_s, "");
    Change_Station(essai.poste, essai.saisie, u"F4ABC"_s);
    EXPECT_TRUE(essai.ecran_du_log.Liste_QSO().empty());
    EXPECT_TRUE(essai.Messages().empty());
}

TEST_F(Changement, les_annees_de_challenge_sont_celles_de_la_station)
{
    essai.etat.station.annee_ch_dfcf = u"2025"_s;
    essai.reglages.vorlain[{u"Setup F4ABC"_s, u"Annee Challenge DMF"_s}] = u"2024"_s;
    essai.fichiers.Pose(u"F4ABC_DFCF.log"_s, "");
    essai.fichiers.Pose(u"F4ABC_Ch_DMF_2024.log"_s, QSO({}).toLatin1() + "\r\n");
    essai.etat.station.diplome = Diplome::Ch_DMF;
    Change_Station(essai.poste, essai.saisie, u"F4ABC"_s);
    EXPECT_EQ(essai.etat.station.annee_ch_dfcf, u"2000"_s);
    EXPECT_EQ(essai.etat.station.annee_ch_dmf, u"2024"_s);
    EXPECT_EQ(essai.ecran_du_log.Liste_QSO().size(), 1U);
}

TEST_F(Changement, un_indice_absurde_laisse_le_choix_comme_il_est)
{
    essai.fichiers.Pose(u"F4ABC_DFCF.log"_s, "");
    essai.reglages.vorlain[{u"Setup F4ABC"_s, u"bande Utilisee"_s}] = u"12"_s;
    essai.reglages.vorlain[{u"Setup F4ABC"_s, u"Mode Utilise"_s}] = u"x"_s;
    essai.saisie.Choisit(Controle::Mode_A, 3);
    Change_Station(essai.poste, essai.saisie, u"F4ABC"_s);
    EXPECT_EQ(essai.saisie.Texte(Controle::Bande_A), u"14 Mhz"_s);
    EXPECT_EQ(essai.saisie.Texte(Controle::Mode_A), u"TTY"_s);
    essai.reglages.vorlain[{u"Setup F4ABC"_s, u"bande Utilisee"_s}] = u"-2"_s;
    Change_Station(essai.poste, essai.saisie, u"F4ABC"_s);
    EXPECT_EQ(essai.saisie.Texte(Controle::Bande_A), u"14 Mhz"_s);
    essai.reglages.vorlain[{u"Setup F4ABC"_s, u"bande Utilisee"_s}] = u"-1"_s;
    Change_Station(essai.poste, essai.saisie, u"F4ABC"_s);
    EXPECT_EQ(essai.saisie.Texte(Controle::Bande_A), u""_s);
}

TEST_F(Changement, une_station_dont_un_import_fut_coupe_n_est_pas_neuve_et_ses_logs_reviennent)
{
    const QByteArray log = QSO({}).toLatin1() + "\r\n";
    for (const QString &code : {u"DFCF"_s, u"Ch_DMF"_s})
        essai.fichiers.Pose(u"F4ABC_"_s + code + u".bak", log);
    essai.reglages.vorlain[{u"Setup F4ABC"_s, u"bande Utilisee"_s}] = u"6"_s;
    Change_Station(essai.poste, essai.saisie, u"F4ABC"_s);
    for (const QString &code : {u"DFCF"_s, u"Ch_DMF"_s})
        EXPECT_EQ(essai.fichiers.Octets(u"F4ABC_"_s + code + u".log"), log);
    EXPECT_EQ(Reglage(u"Setup F4ABC"_s, u"bande Utilisee"_s), u"6"_s);
    EXPECT_EQ(essai.Messages().size(), 2U);
    EXPECT_FALSE(essai.fichiers.Existe(u"F4ABC_DFCF.bak"_s));
}

TEST_F(Changement, un_log_dfcf_qui_ne_s_ouvre_pas_ne_vide_pas_les_autres)
{
    const QByteArray log = QSO({}).toLatin1() + "\r\n";
    ASSERT_TRUE(QDir(essai.fichiers.Chemin()).mkdir(u"F4ABC_DFCF.log"_s));
    essai.fichiers.Pose(u"F4ABC_DMF.log"_s, log);
    Change_Station(essai.poste, essai.saisie, u"F4ABC"_s);
    EXPECT_EQ(essai.fichiers.Octets(u"F4ABC_DMF.log"_s), log);
    EXPECT_EQ(essai.etat.station.indicatif, u"F4ABC"_s);
}

TEST_F(Changement, les_logs_d_une_station_neuve_ne_vident_pas_un_log_qui_est_la)
{
    const QByteArray log = QSO({}).toLatin1() + "\r\n";
    essai.fichiers.Pose(u"F4ABC_DMF.log"_s, log);
    Cree_Logs(essai.poste, u"F4ABC");
    EXPECT_EQ(essai.fichiers.Octets(u"F4ABC_DMF.log"_s), log);
    EXPECT_EQ(essai.fichiers.Octets(u"F4ABC_DFCF.log"_s), "");
}
