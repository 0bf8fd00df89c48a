#include "faux/Impression.h"
#include "faux/QSO_Essai.h"
#include "log/Ligne_Affichage.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Ligne_Log, les_champs_tombent_dans_leurs_colonnes)
{
    const QString ligne = QSO({.ind = u"F5ABC/P"_s,
                               .dpt = u"77"_s,
                               .prenom = u"JEAN"_s,
                               .ref = u"77001"_s,
                               .nom = u"C. DE VAUX"_s,
                               .qsl = u"*"_s});
    EXPECT_EQ(ligne, u"F5ABC/P      77   JEAN            77001     12/05/07 14:48 SSB 14 Mhz  59  59  "
                     u"C. DE VAUX                     *"_s);
    EXPECT_EQ(ligne.size(), 111);
}

TEST(Ligne_Affichage, le_numero_et_les_champs_tombent_sous_l_en_tete)
{
    const QString ligne = QSO({.ind = u"F5ABC/P"_s,
                               .dpt = u"77"_s,
                               .prenom = u"JEAN"_s,
                               .ref = u"77001"_s,
                               .nom = u"C. DE VAUX"_s,
                               .qsl = u"*"_s});
    const QString entree = Ligne_Affichage(12, ligne);
    EXPECT_EQ(entree, u"     12  F5ABC/P       77 JEAN            77001      12/05/07  14:48  SSB  14 Mhz   59   59  "
                      u"C. DE VAUX                      *"_s);
    EXPECT_EQ(entree.size(), 126);
    EXPECT_EQ(Ligne_Log_Affichee(entree), ligne);
}

TEST(Ligne_Log, les_champs_relus_gardent_leurs_blancs)
{
    const Champs_QSO champs = Champs_Log(QSO({.ind = u"F5ABC"_s, .dpt = u"05"_s, .ref = u"05012"_s, .nom = u"C. É"_s}));
    EXPECT_EQ(champs.ind, u"F5ABC       "_s);
    EXPECT_EQ(champs.dpt, u"05"_s);
    EXPECT_EQ(champs.prenom, QString(15, u' '));
    EXPECT_EQ(champs.ref, u"05012     "_s);
    EXPECT_EQ(champs.date, u"12/05/07"_s);
    EXPECT_EQ(champs.heure, u"14:48"_s);
    EXPECT_EQ(champs.mode, u"SSB"_s);
    EXPECT_EQ(champs.bande, u"14 Mhz "_s);
    EXPECT_EQ(champs.rstr, u"59 "_s);
    EXPECT_EQ(champs.rste, u"59 "_s);
    EXPECT_EQ(champs.nom, u"C. É"_s + QString(26, u' '));
    EXPECT_EQ(champs.qsl, u" "_s);
}

TEST(Ligne_Log, recomposer_ne_garde_que_les_douze_champs)
{
    const QString pleine = QSO({.ind = u"TM5CHATEAUX1"_s,
                                .dpt = u"77"_s,
                                .prenom = u"JEAN-CHRISTOPHE"_s,
                                .ref = u"GVM1800123"_s,
                                .bande = u"144 Mhz"_s,
                                .rstr = u"599"_s,
                                .rste = u"579"_s,
                                .nom = QString(30, u'N'),
                                .qsl = u"*"_s});
    QString ratures = pleine;
    for (const int colonne : {13, 16, 17, 18, 34, 53, 59, 63, 71, 75, 79, 110})
        ratures[colonne - 1] = u'#';
    EXPECT_EQ(Recompose(QString(ratures + u"# et la suite")), pleine);
    EXPECT_EQ(Recompose(pleine), pleine);
}

TEST(Ligne_Log, recomposer_rend_ses_blancs_a_une_ligne_courte)
{
    EXPECT_EQ(Recompose(QSO({.nom = u"C. É"_s}).first(83)), QSO({.nom = u"C. É"_s}));
    EXPECT_EQ(Recompose(u"F5"), u"F5"_s + QString(109, u' '));
    EXPECT_EQ(Recompose(u""), QString(111, u' '));
}

TEST(Ligne_Log, les_memes_champs_font_le_meme_qso)
{
    const QString ligne = QSO({.dpt = u"77"_s, .ref = u"77001"_s, .nom = u"C. DE VAUX"_s});
    EXPECT_TRUE(Memes_Champs(ligne, ligne));
    EXPECT_TRUE(Memes_Champs(Rogne(ligne), ligne));
    EXPECT_TRUE(Memes_Champs(ligne, QString(ligne + u" et la suite")));
    EXPECT_TRUE(Memes_Champs(QString(ligne).replace(15, 3, u"###"_s), ligne));
    // Whoever compares a field drops the blanks around it.
    EXPECT_TRUE(Memes_Champs(QSO({.ref = u" 77001"_s}), QSO({.ref = u"77001"_s})));
    for (const Champ champ : colonnes_log::champs)
        EXPECT_FALSE(Memes_Champs(QString(ligne).replace(champ.colonne - 1, 1, u"#"_s), ligne)) << champ.colonne;
}

TEST(Ligne_Log, seule_l_etoile_de_la_colonne_111_confirme)
{
    EXPECT_TRUE(Est_Confirme(QSO({.qsl = u"*"_s})));
    EXPECT_FALSE(Est_Confirme(QSO({.qsl = u" "_s})));
    EXPECT_FALSE(Est_Confirme(QSO({.qsl = u"+"_s})));
    EXPECT_FALSE(Est_Confirme(QSO({.qsl = u"*"_s}).first(110)));
    EXPECT_FALSE(Est_Confirme(u""));
    EXPECT_FALSE(Est_Confirme(QString(QSO({}) + u"*")));
    EXPECT_TRUE(Est_Confirme(QString(QSO({.qsl = u"*"_s}) + u" suite")));
}

TEST(Ligne_Affichage, le_numero_est_a_droite_sur_sept_colonnes)
{
    EXPECT_EQ(Ligne_Affichage(1, QSO({})).first(7), u"      1"_s);
    EXPECT_EQ(Ligne_Affichage(32767, QSO({})).first(7), u"  32767"_s);
    EXPECT_EQ(Ligne_Affichage(999999, QSO({})).first(7), u" 999999"_s);
}

TEST(Ligne_Affichage, une_ligne_trop_courte_se_montre_comme_elle_est)
{
    EXPECT_EQ(Ligne_Affichage(3, u"F5ABC").first(14), u"      3  F5ABC"_s);
    EXPECT_EQ(Ligne_Affichage(3, u"").first(7), u"      3"_s);
    // Its last fields went with its trailing blanks.
    const QString sans_blancs = QSO({.nom = u"C. DE VAUX"_s}).left(89);
    EXPECT_EQ(Ligne_Affichage(3, sans_blancs).trimmed(), Ligne_Affichage(3, QSO({.nom = u"C. DE VAUX"_s})).trimmed());
}

TEST(Ligne_Affichage, une_ligne_trop_longue_perd_sa_suite_a_l_ecran)
{
    EXPECT_EQ(Ligne_Affichage(3, QString(QSO({}) + u"SUITE")), Ligne_Affichage(3, QSO({})));
}
