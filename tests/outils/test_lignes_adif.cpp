#include "ADIF_Essai.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr Choix_Import simple{.multi = false};
constexpr Choix_Import multi{.multi = true};

Lecture_ADIF Lit_Seul(const QString &enregistrement, const QString &code = u"DFCF"_s,
                      const Choix_Import &choix = simple)
{
    return Lignes_ADIF(Diplome_De(code), choix).Lit(enregistrement);
}

/// A field of the line that a record gives.
QString Champ_De(const QString &enregistrement, Champ champ)
{
    const Lecture_ADIF lecture = Lit_Seul(enregistrement);
    return lecture.ligne ? Lit(*lecture.ligne, champ).toString() : u"(pas de ligne)"_s;
}

std::vector<QStringView> Messages(const QString &enregistrement)
{
    return Lit_Seul(enregistrement).messages;
}

namespace col = colonnes_log;

} // namespace

TEST(Lignes_ADIF, un_enregistrement_complet_donne_une_ligne_du_log)
{
    const Lecture_ADIF lecture = Lit_Seul(ADIF({}));
    EXPECT_EQ(lecture.ligne, QSO({.ind = u"F5ABC"_s,
                                  .dpt = u"77"_s,
                                  .prenom = u"JEAN"_s,
                                  .ref = u"77001"_s,
                                  .date = u"26/09/15"_s,
                                  .heure = u"14:05"_s,
                                  .rstr = u"59"_s,
                                  .rste = u"57"_s,
                                  .nom = u"C. DE VAUX"_s,
                                  .qsl = u"*"_s}));
    EXPECT_TRUE(lecture.messages.empty());
    EXPECT_FALSE(lecture.echec);
}

TEST(Lignes_ADIF, les_valeurs_trop_longues_sont_coupees)
{
    EXPECT_EQ(Champ_De(ADIF({.call = u"ABCDEFGHIJKLMNOP"_s}), col::Ind), u"ABCDEFGHIJKL"_s);
    EXPECT_EQ(Champ_De(ADIF({.name = u"ABCDEFGHIJKLMNOPQRST"_s}), col::Prenom), u"ABCDEFGHIJKLMNO"_s);
    EXPECT_EQ(Champ_De(ADIF({.mode = u"OLIVIA"_s}), col::Mode), u"OLI"_s);
    EXPECT_EQ(Champ_De(ADIF({.rst_rcvd = u"59999"_s}), col::RSTR), u"599"_s);
    EXPECT_EQ(Champ_De(ADIF({.rst_sent = u"58888"_s}), col::RSTE), u"588"_s);
    EXPECT_EQ(Champ_De(ADIF({.sig_info = QString(50, u'X')}), col::Nom), QString(30, u'X'));
}

TEST(Lignes_ADIF, les_comptes_des_etiquettes_sont_ignores)
{
    EXPECT_EQ(Champ_De(u"<CALL:2>F5ABC<STATE>77<SIG:99>77001<QSO_DATE:1>20150926<BAND:0>20M<EOR>"_s, col::Ref),
              u"77001     "_s);
}

TEST(Lignes_ADIF, une_valeur_est_rognee_de_ses_blancs_seuls)
{
    EXPECT_EQ(Champ_De(ADIF({.call = u"  F5ABC  "_s}), col::Ind), u"F5ABC       "_s);
    EXPECT_EQ(Champ_De(ADIF({.call = u"\tF5ABC"_s}), col::Ind), u"\tF5ABC      "_s);
}

TEST(Lignes_ADIF, une_etiquette_compte_par_le_debut_de_son_nom_et_a_sa_premiere_place)
{
    EXPECT_EQ(Champ_De(u"<BAND_RX:3>40M "_s + ADIF({}), col::Bande), u"7.0 Mhz"_s);
    EXPECT_EQ(Champ_De(ADIF({}) + ADIF({.call = u"F6XYZ"_s}), col::Ind), u"F5ABC       "_s);
    // What the first of two records on one line lacks is found in the second.
    EXPECT_EQ(Champ_De(ADIF({.name = u"-"_s}) + ADIF({.name = u"LUC"_s}), col::Prenom), u"LUC            "_s);
}

TEST(Lignes_ADIF, sig_ne_se_confond_pas_avec_sig_info)
{
    EXPECT_EQ(Champ_De(u"<SIG_INFO:4>VAUX "_s + ADIF({.sig_info = u"-"_s}), col::Ref), u"77001     "_s);
    EXPECT_EQ(Champ_De(u"<SIG_INFO:4>VAUX "_s + ADIF({.sig_info = u"-"_s}), col::Nom),
              u"VAUX                          "_s);
}

TEST(Lignes_ADIF, un_indicatif_absent_est_remplace_et_dit)
{
    for (const QString &absent : {u"-"_s, u""_s, u"   "_s}) {
        EXPECT_EQ(Champ_De(ADIF({.call = absent}), col::Ind), u"FXXXX       "_s);
        EXPECT_EQ(Messages(ADIF({.call = absent})), std::vector<QStringView>{u"Indicatif absent, remplacé par FXXXX"});
    }
}

TEST(Lignes_ADIF, une_heure_absente_est_remplacee_et_dite)
{
    EXPECT_EQ(Champ_De(ADIF({.time_on = u"-"_s}), col::Heure), u"00:00"_s);
    EXPECT_EQ(Messages(ADIF({.time_on = u"-"_s})), std::vector<QStringView>{u"Heure absente, remplacée par 00:00"});
}

TEST(Lignes_ADIF, une_bande_absente_ou_inconnue_est_remplacee_et_dite)
{
    const std::vector<QStringView> message{u"Bande absente, remplacée par 1.8 Mhz"};
    EXPECT_EQ(Champ_De(ADIF({.band = u"-"_s}), col::Bande), u"1.8 Mhz"_s);
    EXPECT_EQ(Messages(ADIF({.band = u"-"_s})), message);
    EXPECT_EQ(Messages(ADIF({.band = u"23CM"_s})), message);
    EXPECT_EQ(Messages(ADIF({.band = u"-"_s, .freq = u" "_s})), message);
    // A BAND that is there but empty keeps FREQ out.
    EXPECT_EQ(Messages(ADIF({.band = u""_s, .freq = u"14.250"_s})), message);
    // 160 metres by frequency comes to its band only so.
    EXPECT_EQ(Champ_De(ADIF({.band = u"-"_s, .freq = u"1.850"_s}), col::Bande), u"1.8 Mhz"_s);
    EXPECT_EQ(Messages(ADIF({.band = u"-"_s, .freq = u"1.850"_s})), message);
}

TEST(Lignes_ADIF, ce_qui_manque_sans_message)
{
    const QString enregistrement = ADIF({.name = u"-"_s,
                                         .sig = u"-"_s,
                                         .mode = u"-"_s,
                                         .rst_rcvd = u"-"_s,
                                         .rst_sent = u"-"_s,
                                         .sig_info = u"-"_s,
                                         .qsl_rcvd = u"-"_s});
    EXPECT_EQ(Lit_Seul(enregistrement).ligne, QSO({.dpt = u"77"_s,
                                                   .date = u"26/09/15"_s,
                                                   .heure = u"14:05"_s,
                                                   .mode = u"XXX"_s,
                                                   .rstr = u"XX"_s,
                                                   .rste = u"XX"_s}));
    EXPECT_TRUE(Messages(enregistrement).empty());
}

TEST(Lignes_ADIF, les_messages_viennent_dans_l_ordre_des_champs)
{
    EXPECT_EQ(Messages(ADIF({.call = u"-"_s, .time_on = u"-"_s, .band = u"-"_s})),
              (std::vector<QStringView>{u"Indicatif absent, remplacé par FXXXX", u"Heure absente, remplacée par 00:00",
                                        u"Bande absente, remplacée par 1.8 Mhz"}));
}

TEST(Lignes_ADIF, une_date_absente_est_dite_puis_fatale)
{
    const Lecture_ADIF lecture = Lit_Seul(ADIF({.qso_date = u"-"_s, .time_on = u"-"_s}));
    EXPECT_EQ(lecture.messages, (std::vector<QStringView>{u"Date absente, remplacée par 01/01/2000",
                                                          u"Heure absente, remplacée par 00:00"}));
    EXPECT_TRUE(lecture.echec);
    EXPECT_FALSE(lecture.ligne);
}

TEST(Lignes_ADIF, une_date_absente_est_fatale_meme_si_la_ligne_serait_ecartee)
{
    EXPECT_TRUE(Lit_Seul(ADIF({.state = u"-"_s, .qso_date = u"-"_s})).echec);
}

TEST(Lignes_ADIF, une_date_ou_une_heure_courte_garde_ses_separateurs)
{
    EXPECT_EQ(Champ_De(ADIF({.qso_date = u"2015"_s}), col::Date), u"15//15  "_s);
    EXPECT_EQ(Champ_De(ADIF({.qso_date = u"5"_s}), col::Date), u"5//     "_s);
    EXPECT_EQ(Champ_De(ADIF({.time_on = u"9"_s}), col::Heure), u"9:   "_s);
    EXPECT_EQ(Champ_De(ADIF({.time_on = u"140559"_s}), col::Heure), u"14:05"_s);
}

TEST(Lignes_ADIF, une_reference_de_plus_de_dix_caracteres_est_fatale)
{
    EXPECT_EQ(Champ_De(ADIF({.sig = u"ABCDEFGHIJ"_s}), col::Ref), u"ABCDEFGHIJ"_s);
    EXPECT_TRUE(Lit_Seul(ADIF({.sig = u"ABCDEFGHIJK"_s})).echec);
    EXPECT_FALSE(Lit_Seul(ADIF({.sig = u"DFCF-ABCDEFGHIJ"_s})).echec);
}

TEST(Lignes_ADIF, un_departement_deborde_dans_ses_trois_blancs_puis_est_fatal)
{
    const Lecture_ADIF lecture = Lit_Seul(ADIF({.state = u"ABCDE"_s}));
    ASSERT_TRUE(lecture.ligne);
    EXPECT_EQ(lecture.ligne->size(), 111);
    EXPECT_EQ(lecture.ligne->sliced(13, 9), u"ABCDEJEAN"_s);
    EXPECT_EQ(Lit_Seul(ADIF({.state = u"7"_s})).ligne->sliced(13, 9), u"7    JEAN"_s);
    EXPECT_TRUE(Lit_Seul(ADIF({.state = u"ABCDEF"_s})).echec);
}

TEST(Lignes_ADIF, une_valeur_que_rien_ne_ferme_est_fatale)
{
    EXPECT_TRUE(Lit_Seul(u"<CALL:5>F5ABC"_s).echec);
    EXPECT_TRUE(Lit_Seul(u"<CALL:5"_s).echec);
    // The message of a field before it has been shown by then, one behind it has not.
    const Lecture_ADIF lecture = Lit_Seul(u"<STATE:2>77 <SIG:5>77001"_s);
    EXPECT_EQ(lecture.messages, std::vector<QStringView>{u"Indicatif absent, remplacé par FXXXX"});
    EXPECT_TRUE(lecture.echec);
}

TEST(Lignes_ADIF, le_qsl_est_tenu_pour_y_seul)
{
    EXPECT_EQ(Champ_De(ADIF({.qsl_rcvd = u"Y"_s}), col::QSL), u"*"_s);
    EXPECT_EQ(Champ_De(ADIF({.qsl_rcvd = u"N"_s}), col::QSL), u" "_s);
    EXPECT_EQ(Champ_De(ADIF({.qsl_rcvd = u"YES"_s}), col::QSL), u" "_s);
}

TEST(Lignes_ADIF, chaque_cle_de_bande)
{
    const std::vector<std::pair<QString, QString>> cles{
        {u"160M"_s, u"1.8 Mhz"_s}, {u"160"_s, u"1.8 Mhz"_s}, {u"1.8"_s, u"1.8 Mhz"_s}, {u"80M"_s, u"3.5 Mhz"_s},
        {u"80"_s, u"3.5 Mhz"_s},   {u"3.5"_s, u"3.5 Mhz"_s}, {u"3.6"_s, u"3.5 Mhz"_s}, {u"3"_s, u"3.5 Mhz"_s},
        {u"40M"_s, u"7.0 Mhz"_s},  {u"40"_s, u"7.0 Mhz"_s},  {u"7"_s, u"7.0 Mhz"_s},   {u"30M"_s, u"10 Mhz"_s},
        {u"30"_s, u"10 Mhz"_s},    {u"10"_s, u"10 Mhz"_s},   {u"20M"_s, u"14 Mhz"_s},  {u"20"_s, u"14 Mhz"_s},
        {u"14"_s, u"14 Mhz"_s},    {u"17M"_s, u"18 Mhz"_s},  {u"17"_s, u"18 Mhz"_s},   {u"18"_s, u"18 Mhz"_s},
        {u"15M"_s, u"21 Mhz"_s},   {u"15"_s, u"21 Mhz"_s},   {u"21"_s, u"21 Mhz"_s},   {u"12M"_s, u"24 Mhz"_s},
        {u"12"_s, u"24 Mhz"_s},    {u"24"_s, u"24 Mhz"_s},   {u"10M"_s, u"28 Mhz"_s},  {u"28"_s, u"28 Mhz"_s},
        {u"6M"_s, u"50 Mhz"_s},    {u"6"_s, u"50 Mhz"_s},    {u"50"_s, u"50 Mhz"_s},   {u"2M"_s, u"144 Mhz"_s},
        {u"2"_s, u"144 Mhz"_s},    {u"144"_s, u"144 Mhz"_s}, {u"145"_s, u"144 Mhz"_s}, {u"70CM"_s, u"432 Mhz"_s},
        {u"70"_s, u"432 Mhz"_s},   {u"432"_s, u"432 Mhz"_s},
    };
    for (const auto &[cle, bande] : cles) {
        EXPECT_EQ(Champ_De(ADIF({.band = cle}), col::Bande), bande.leftJustified(7)) << cle.toStdString();
        EXPECT_TRUE(Messages(ADIF({.band = cle})).empty());
    }
    for (const QString &cle : {u"1"_s, u"7.0"_s, u"14.250"_s, u"20 M"_s, u"433"_s, u"XX MHZ"_s})
        EXPECT_EQ(Messages(ADIF({.band = cle})).size(), 1U) << cle.toStdString();
}

TEST(Lignes_ADIF, d_une_frequence_restent_les_megahertz_entiers)
{
    EXPECT_EQ(Champ_De(u"<FREQ:6>14.250 <MODE:3>SSB "_s + ADIF({.band = u"-"_s}), col::Bande), u"14 Mhz "_s);
    EXPECT_EQ(Champ_De(u"<FREQ:5>3.710"_s + ADIF({.band = u"-"_s}), col::Bande), u"3.5 Mhz"_s);
    EXPECT_EQ(Champ_De(u"<FREQ:7>144.300"_s + ADIF({.band = u"-"_s}), col::Bande), u"144 Mhz"_s);
    EXPECT_EQ(Champ_De(ADIF({.band = u"-"_s, .freq = u"28"_s}), col::Bande), u"28 Mhz "_s);
    // Directly before the next tag it loses its last digit.
    EXPECT_EQ(Champ_De(u"<FREQ:2>28<CALL:1>X "_s + ADIF({.band = u"-"_s}), col::Bande), u"144 Mhz"_s);
    // Five characters are looked at.
    EXPECT_EQ(Champ_De(ADIF({.band = u"-"_s, .freq = u"00014.250"_s}), col::Bande), u"1.8 Mhz"_s);
    EXPECT_EQ(Champ_De(ADIF({.band = u"40M"_s, .freq = u"14.250"_s}), col::Bande), u"7.0 Mhz"_s);
}

TEST(Lignes_ADIF, sans_departement_rien_n_est_ecrit_sauf_pour_fff)
{
    const Lecture_ADIF lecture = Lit_Seul(ADIF({.state = u"-"_s}));
    EXPECT_FALSE(lecture.ligne);
    EXPECT_TRUE(lecture.messages.empty());
    EXPECT_FALSE(lecture.echec);
    EXPECT_TRUE(Lit_Seul(ADIF({.state = u"-"_s}), u"FFF"_s).ligne);
}

TEST(Lignes_ADIF, en_simple_une_reference_avec_code_est_coupee_et_prise)
{
    EXPECT_EQ(Champ_De(ADIF({.sig = u"DMF-93013"_s}), col::Ref), u"93013     "_s);
    EXPECT_EQ(Champ_De(ADIF({.sig = u"11-008-1"_s}), col::Ref), u"008-1     "_s);
}

TEST(Lignes_ADIF, en_multi_seul_le_diplome_ouvert_est_pris)
{
    EXPECT_TRUE(Lit_Seul(ADIF({.sig = u"DMF-93013"_s}), u"DMF"_s, multi).ligne);
    EXPECT_FALSE(Lit_Seul(ADIF({.sig = u"DMF-93013"_s}), u"DFCF"_s, multi).ligne);
    EXPECT_FALSE(Lit_Seul(ADIF({.sig = u"93013"_s}), u"DMF"_s, multi).ligne);
    // The file was turned to capitals, the code was not.
    EXPECT_FALSE(Lit_Seul(ADIF({.sig = u"CH_DMF-93013A"_s}), u"Ch_DMF"_s, multi).ligne);
}

TEST(Lignes_ADIF, en_multi_le_code_d_un_enregistrement_reste_pour_les_suivants)
{
    Lignes_ADIF lignes(Diplome::DMF, multi);
    EXPECT_FALSE(lignes.Lit(ADIF({.sig = u"93001"_s})).ligne);
    EXPECT_TRUE(lignes.Lit(ADIF({.sig = u"DMF-93013"_s})).ligne);
    EXPECT_TRUE(lignes.Lit(ADIF({.sig = u"93014"_s})).ligne);
    EXPECT_TRUE(lignes.Lit(ADIF({.sig = u"-"_s})).ligne);
    EXPECT_FALSE(lignes.Lit(ADIF({.sig = u"DFCF-93013"_s})).ligne);
    EXPECT_FALSE(lignes.Lit(ADIF({.sig = u"93014"_s})).ligne);
    // A record that is passed over for want of a department leaves its code all the same.
    EXPECT_FALSE(lignes.Lit(ADIF({.state = u"-"_s, .sig = u"DMF-93013"_s})).ligne);
    EXPECT_TRUE(lignes.Lit(ADIF({.sig = u"93014"_s})).ligne);
}
