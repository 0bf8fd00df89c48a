#include "Log_Essai.h"
#include "outils/Trie_Log.h"
#include "plateforme/Erreur_Execution.h"

#include "faux/Disque_Qui_Refuse.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

std::vector<QString> Tries(const std::vector<QString> &lignes)
{
    return En_Lignes(Texte_Trie(Lignes_Texte(Texte_Log(lignes))));
}

} // namespace

TEST(Trie_Log, les_annees_50_a_99_sont_du_siecle_passe)
{
    const QString a = QSO({.date = u"31/12/99"_s});
    const QString b = QSO({.date = u"01/01/00"_s});
    const QString c = QSO({.date = u"01/01/50"_s});
    const QString d = QSO({.date = u"01/01/49"_s});
    EXPECT_EQ(Tries({d, b, a, c}), (std::vector{c, a, b, d}));
}

TEST(Trie_Log, l_ordre_est_celui_du_temps_a_la_minute)
{
    const QString a = QSO({.date = u"15/03/14"_s, .heure = u"08:09"_s});
    const QString b = QSO({.date = u"15/03/14"_s, .heure = u"08:10"_s});
    const QString c = QSO({.date = u"02/04/14"_s, .heure = u"00:00"_s});
    const QString d = QSO({.date = u"01/01/15"_s, .heure = u"00:00"_s});
    EXPECT_EQ(Tries({d, c, b, a}), (std::vector{a, b, c, d}));
}

TEST(Trie_Log, la_meme_minute_va_par_indicatif)
{
    const QString a = QSO({.ind = u"F1ABC"_s, .ref = u"99001"_s});
    const QString b = QSO({.ind = u"F2ABC"_s, .ref = u"01001"_s});
    EXPECT_EQ(Tries({b, a}), (std::vector{a, b}));
}

TEST(Trie_Log, derriere_l_indicatif_viennent_les_champs_dans_leur_ordre)
{
    // Date and time take no place among them.
    const QString a = QSO({.dpt = u"01"_s, .prenom = u"Z"_s, .qsl = u"*"_s});
    const QString b = QSO({.dpt = u"02"_s, .prenom = u"A"_s, .ref = u"Z"_s});
    const QString c = QSO({.dpt = u"02"_s, .prenom = u"B"_s, .ref = u"A"_s, .mode = u"SSB"_s});
    const QString d = QSO({.dpt = u"02"_s, .prenom = u"B"_s, .ref = u"B"_s, .mode = u"CW"_s});
    const QString e = QSO({.dpt = u"02"_s, .prenom = u"B"_s, .ref = u"B"_s, .mode = u"CW"_s, .qsl = u"*"_s});
    EXPECT_EQ(Tries({e, d, c, b, a}), (std::vector{a, b, c, d, e}));
}

TEST(Trie_Log, la_casse_ne_compte_pas)
{
    const QString a = QSO({.ind = u"f1abc"_s});
    const QString b = QSO({.ind = u"F1ABD"_s});
    EXPECT_EQ(Tries({b, a}), (std::vector{a, b}));
}

TEST(Trie_Log, une_annee_qui_n_est_pas_un_nombre_compte_pour_00)
{
    const QString a = QSO({.date = u"31/12/99"_s});
    const QString b = QSO({.date = u"01/01/XX"_s});
    const QString c = QSO({.date = u"01/01/01"_s});
    EXPECT_EQ(Tries({c, b, a}), (std::vector{a, QSO({.date = u"01/01/00"_s}), c}));
}

TEST(Trie_Log, la_cle_de_tri_est_la_ligne_de_travail)
{
    const QString ligne = QSO({.ind = u"F5ABC/P"_s,
                               .dpt = u"77"_s,
                               .prenom = u"JEAN"_s,
                               .ref = u"77001"_s,
                               .date = u"12/05/97"_s,
                               .nom = u"C. DE VAUX"_s,
                               .qsl = u"*"_s});
    const QString cle = Cle_De_Tri(ligne);
    EXPECT_EQ(cle,
              u"199705121448     F5ABC/P       77 JEAN            77001     SSB  14 Mhz   59   59  C. DE VAUX      "
              u"                *"_s);
    EXPECT_EQ(cle.size(), 116);
}

TEST(Trie_Log, ce_qui_deborde_des_colonnes_s_en_va)
{
    // A department of three characters runs into the blanks behind its columns; a hand left words behind the last one.
    QString deborde = QSO({.dpt = u"97"_s, .ref = u"97101"_s});
    deborde[15] = u'1';
    EXPECT_EQ(Tries({deborde + u" et la suite"}), std::vector{QSO({.dpt = u"97"_s, .ref = u"97101"_s})});
}

TEST(Trie_Log, une_ligne_qui_a_perdu_ses_derniers_blancs_les_retrouve)
{
    const QString pleine = QSO({.ref = u"77001"_s, .nom = u"C. DE VAUX"_s});
    EXPECT_EQ(Tries({Rogne(pleine).toString()}), std::vector{pleine});
}

TEST(Trie_Log, la_date_et_l_heure_retrouvent_leurs_separateurs)
{
    EXPECT_EQ(Tries({QSO({.date = u"12-05.07"_s, .heure = u"14h48"_s})}), std::vector{QSO({})});
}

TEST(Trie_Log, des_lignes_hors_format_gardent_chacune_leur_place)
{
    const QString vide = QSO({.ind = u""_s,
                              .date = u"  /  /00"_s,
                              .heure = u"  :  "_s,
                              .mode = u""_s,
                              .bande = u""_s,
                              .rstr = u""_s,
                              .rste = u""_s});
    EXPECT_EQ(
        Tries({QSO({}), u""_s, u"court"_s, QString(QChar(0))}),
        (std::vector{QString(vide).replace(0, 1, QChar(0)), vide, QString(vide).replace(0, 5, u"court"_s), QSO({})}));
}

TEST(Trie_Log, trier_est_une_permutation_et_trier_deux_fois_ne_change_rien)
{
    Logs_Au_Hasard hasard(20260115);
    for (int essai = 0; essai < 200; ++essai) {
        const std::vector<QString> lignes = hasard.Log(60);
        const std::vector<QString> tries = Tries(lignes);
        ASSERT_TRUE(std::is_permutation(tries.begin(), tries.end(), lignes.begin(), lignes.end()));
        ASSERT_EQ(Tries(tries), tries);
    }
}

TEST(Trie_Log, le_log_sur_le_disque_est_trie_et_recharge)
{
    Poste_Essai essai;
    essai.Ouvre(u"DFCF"_s);
    const QString a = QSO({.date = u"01/01/14"_s});
    const QString b = QSO({.date = u"01/01/15"_s});
    essai.fichiers.Pose(u"F9ZZY_DFCF.log"_s, Texte_Log({b, a}).toLatin1());
    Trie_Log(essai.poste);
    EXPECT_EQ(essai.fichiers.Octets(u"F9ZZY_DFCF.log"_s), Texte_Log({a, b}).toLatin1());
    EXPECT_EQ(essai.ecran.liste[0], a);
    EXPECT_EQ(essai.ecran.appels.back(), u"Selectionne_Derniere"_s);
    EXPECT_TRUE(essai.ecran.selection.contains(u"01/01/15"_s));
    EXPECT_TRUE(essai.boites.messages.empty());
    EXPECT_EQ(essai.fichiers.Fichiers(), QStringList{u"F9ZZY_DFCF.log"_s});
}

TEST(Trie_Log, ce_que_la_liste_montrait_avant_ne_compte_pas)
{
    Poste_Essai essai;
    essai.Ouvre(u"DFCF"_s);
    essai.ecran.liste = Lignes_Texte(Texte_Log({QSO({.ind = u"PERIME"_s})}));
    essai.fichiers.Pose(u"F9ZZY_DFCF.log"_s, Texte_Log({QSO({})}).toLatin1());
    Trie_Log(essai.poste);
    EXPECT_EQ(essai.fichiers.Octets(u"F9ZZY_DFCF.log"_s), Texte_Log({QSO({})}).toLatin1());
}

TEST(Trie_Log, les_migrations_deviennent_durables)
{
    Poste_Essai essai;
    essai.Ouvre(u"FFF"_s);
    essai.fichiers.Pose(u"F9ZZY_FFF.log"_s, Texte_Log({QSO({.ref = u"51"_s})}).toLatin1());
    Trie_Log(essai.poste);
    EXPECT_EQ(essai.fichiers.Octets(u"F9ZZY_FFF.log"_s), Texte_Log({QSO({.ref = u"0051"_s})}).toLatin1());
}

TEST(Trie_Log, un_challenge_est_trie_dans_le_log_de_son_annee)
{
    Poste_Essai essai;
    essai.Ouvre(u"Ch_DMF"_s);
    essai.etat.station.annee_ch_dmf = u"2018"_s;
    const QString a = QSO({.date = u"01/01/18"_s});
    const QString b = QSO({.date = u"02/01/18"_s});
    essai.fichiers.Pose(u"F9ZZY_Ch_DMF_2018.log"_s, Texte_Log({b, a}).toLatin1());
    Trie_Log(essai.poste);
    EXPECT_EQ(essai.fichiers.Octets(u"F9ZZY_Ch_DMF_2018.log"_s), Texte_Log({a, b}).toLatin1());
}

TEST(Trie_Log, un_log_vide_reste_vide_sans_selection)
{
    Poste_Essai essai;
    essai.Ouvre(u"DFCF"_s);
    essai.fichiers.Pose(u"F9ZZY_DFCF.log"_s, "");
    Trie_Log(essai.poste);
    EXPECT_EQ(essai.fichiers.Octets(u"F9ZZY_DFCF.log"_s), QByteArray());
    EXPECT_EQ(essai.ecran.selection, QString());
}

TEST(Trie_Log, un_disque_qui_refuse_laisse_le_log_comme_il_etait)
{
    Poste_Essai essai;
    essai.Ouvre(u"DFCF"_s);
    const QByteArray octets = Texte_Log({QSO({.date = u"01/01/15"_s}), QSO({.date = u"01/01/14"_s})}).toLatin1();
    essai.fichiers.Pose(u"F9ZZY_DFCF.log"_s, octets);
    {
        const Disque_Qui_Refuse disque;
        EXPECT_THROW(Trie_Log(essai.poste), Erreur_Execution);
    }
    EXPECT_EQ(essai.fichiers.Octets(u"F9ZZY_DFCF.log"_s), octets);
}
