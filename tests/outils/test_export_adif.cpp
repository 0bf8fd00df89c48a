#include "Log_Essai.h"
#include "outils/ADIF_SP.h"
#include "outils/Export_ADIF.h"
#include "plateforme/Erreur_Execution.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(ADIF_SP, les_champs_dans_leur_ordre_et_leurs_casses)
{
    EXPECT_EQ(ADIF_SP(QSO({.ind = u"F5ABC/P"_s,
                           .dpt = u"93"_s,
                           .prenom = u"JEAN"_s,
                           .ref = u"93013"_s,
                           .date = u"26/09/15"_s,
                           .heure = u"14:05"_s,
                           .nom = u"C. DE VAUX"_s,
                           .qsl = u"*"_s})),
              u"<CALL:7>F5ABC/P <STATE:2>93 <NAME:4>JEAN <SIG:5>93013 <QSO_DATE:8>20150926 <TIME_ON:4>1405 <MODE:3>SSB "
              u"<Band:3>20m <RST_RCVD:2>59 <RST_SENT:2>59 <SIG_INFO:10>C. DE VAUX <QSL_RCVD:1>Y <eor>"_s);
}

TEST(ADIF_SP, une_valeur_vide_a_le_compte_zero)
{
    const QString texte = ADIF_SP(QSO({}));
    EXPECT_TRUE(texte.contains(u"<STATE:0> <NAME:0> <SIG:0> <QSO_DATE"_s));
    EXPECT_TRUE(texte.contains(u"<SIG_INFO:0> <QSL_RCVD:1>N <eor>"_s));
}

TEST(ADIF_SP, le_siecle_est_toujours_20)
{
    EXPECT_TRUE(ADIF_SP(QSO({.date = u"31/12/99"_s})).contains(u"<QSO_DATE:8>20991231 "_s));
}

TEST(ADIF_SP, une_ligne_vide_donne_un_enregistrement_sans_valeurs)
{
    EXPECT_EQ(ADIF_SP(u""), u"<CALL:0> <STATE:0> <NAME:0> <SIG:0> <QSO_DATE:2>20 <TIME_ON:0> <MODE:0> <Band:0> "
                            u"<RST_RCVD:0> <RST_SENT:0> <SIG_INFO:0> <QSL_RCVD:1>N <eor>"_s);
}

TEST(ADIF_SP, seules_huit_bandes_sont_ecrites)
{
    const std::vector<std::pair<QString, QString>> attendues{
        {u"1.8 Mhz"_s, u"4>160m"_s}, {u"3.5 Mhz"_s, u"3>80m"_s}, {u"7.0 Mhz"_s, u"3>40m"_s}, {u"10 Mhz"_s, u"0>"_s},
        {u"14 Mhz"_s, u"3>20m"_s},   {u"18 Mhz"_s, u"0>"_s},     {u"21 Mhz"_s, u"3>15m"_s},  {u"24 Mhz"_s, u"0>"_s},
        {u"28 Mhz"_s, u"3>10m"_s},   {u"50 Mhz"_s, u"0>"_s},     {u"144 Mhz"_s, u"2>2m"_s},  {u"432 Mhz"_s, u"0>"_s},
        {u"432"_s, u"4>70cm"_s},     {u"14.250"_s, u"0>"_s},
    };
    for (const auto &[bande, ecrite] : attendues)
        EXPECT_TRUE(ADIF_SP(QSO({.bande = bande})).contains(u"SSB <Band:"_s + ecrite + u" <RST_RCVD"));
}

TEST(Export_ADIF, le_log_entier_octet_pour_octet)
{
    Poste_Essai essai;
    essai.Ouvre(u"DFCF"_s);
    essai.fichiers.Pose(u"F9ZZY_DFCF.log"_s, Octets_Essai(u"donnees/F9ZZY_DFCF.log"_s));
    essai.fichiers.Pose(u"F9ZZY_DFCF.adi"_s, QByteArray(5000, 'x'));
    Export_ADIF(essai.poste);
    EXPECT_EQ(essai.fichiers.Octets(u"F9ZZY_DFCF.adi"_s), Octets_Essai(u"attendus/F9ZZY_DFCF.adi"_s));
    EXPECT_EQ(essai.boites.messages, std::vector{u"Le fichier a été enregistré sous le nom : F9ZZY_DFCF.adi"_s});
    EXPECT_EQ(essai.fichiers.Fichiers(), (QStringList{u"F9ZZY_DFCF.adi"_s, u"F9ZZY_DFCF.log"_s}));
}

TEST(Export_ADIF, un_log_vide_donne_les_six_lignes_d_en_tete_et_le_message)
{
    Poste_Essai essai;
    essai.Ouvre(u"WLF"_s);
    essai.fichiers.Pose(u"F9ZZY_WLF.log"_s, "");
    Export_ADIF(essai.poste);
    const QByteArray octets = essai.fichiers.Octets(u"F9ZZY_WLF.adi"_s);
    EXPECT_EQ(octets.count("\r\n"), 6);
    EXPECT_TRUE(octets.startsWith("Exportation du log de la station F9ZZY WLF au format ADIF\r\n\r\nVorlain_WLF"));
    EXPECT_TRUE(octets.endsWith("\r\n\r\n\r\n<eoh>\r\n"));
    EXPECT_EQ(essai.boites.messages.size(), 1U);
}

TEST(Export_ADIF, les_lignes_vides_ne_sont_pas_ecartees)
{
    Poste_Essai essai;
    essai.Ouvre(u"WLF"_s);
    essai.fichiers.Pose(u"F9ZZY_WLF.log"_s, "\r\n\r\n");
    Export_ADIF(essai.poste);
    EXPECT_EQ(essai.fichiers.Octets(u"F9ZZY_WLF.adi"_s).count("<eor>"), 2);
}

TEST(Export_ADIF, les_noms_prennent_la_forme_enregistree_et_le_texte_celle_de_l_ecran)
{
    Poste_Essai essai;
    essai.Ouvre(u"WLF"_s);
    essai.etat.station.indicatif = u"F9ZZY_P"_s;
    essai.ecran.i_station = u"F9ZZY/P"_s;
    essai.fichiers.Pose(u"F9ZZY_P_WLF.log"_s, "");
    Export_ADIF(essai.poste);
    EXPECT_TRUE(essai.fichiers.Octets(u"F9ZZY_P_WLF.adi"_s).startsWith("Exportation du log de la station F9ZZY/P WLF"));
}

TEST(Export_ADIF, le_challenge_dfcf_lit_le_log_de_son_annee)
{
    Poste_Essai essai;
    essai.Ouvre(u"Ch_DFCF"_s);
    essai.etat.station.annee_ch_dfcf = u"2017"_s;
    essai.fichiers.Pose(u"F9ZZY_Ch_DFCF_2017.log"_s, Texte_Log({QSO({.ref = u"77001A"_s})}).toLatin1());
    Export_ADIF(essai.poste);
    EXPECT_TRUE(essai.fichiers.Octets(u"F9ZZY_Ch_DFCF.adi"_s).contains("<SIG:6>77001A "));
}

TEST(Export_ADIF, le_challenge_dmf_cherche_un_log_sans_annee)
{
    Poste_Essai essai;
    essai.Ouvre(u"Ch_DMF"_s);
    essai.etat.station.annee_ch_dmf = u"2017"_s;
    essai.fichiers.Pose(u"F9ZZY_Ch_DMF_2017.log"_s, Texte_Log({QSO({.ref = u"77001A"_s})}).toLatin1());
    EXPECT_THROW(Export_ADIF(essai.poste), Erreur_Execution);
    EXPECT_FALSE(essai.fichiers.Existe(u"F9ZZY_Ch_DMF.adi"_s));
    essai.fichiers.Pose(u"F9ZZY_Ch_DMF.log"_s, Texte_Log({QSO({.ref = u"93013A"_s})}).toLatin1());
    Export_ADIF(essai.poste);
    EXPECT_TRUE(essai.fichiers.Octets(u"F9ZZY_Ch_DMF.adi"_s).contains("<SIG:6>93013A "));
}
