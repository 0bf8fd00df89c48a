#include "Log_Essai.h"
#include "outils/Supprime_Doubles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

using namespace Qt::StringLiterals;

namespace {

std::vector<QString> Sans_Doubles(const std::vector<QString> &lignes)
{
    return En_Lignes(Texte_Sans_Doubles(Lignes_Texte(Texte_Log(lignes))));
}

QString Ref(const QString &ligne)
{
    return Lit_Rogne(ligne, colonnes_log::Ref).toString();
}

} // namespace

TEST(Supprime_Doubles, deux_stations_sur_la_meme_reference_n_en_laissent_qu_une)
{
    const QString a = QSO({.ind = u"F1ABC"_s, .ref = u"93013"_s});
    const QString b = QSO({.ind = u"F2ABC"_s, .ref = u"93013"_s});
    EXPECT_EQ(Sans_Doubles({b, a}), std::vector{b});
    EXPECT_EQ(Sans_Doubles({a, b}), std::vector{a});
}

TEST(Supprime_Doubles, le_jour_le_plus_petit_gagne_et_non_le_qso_le_plus_ancien)
{
    const QString ancien = QSO({.ref = u"93013"_s, .date = u"15/03/14"_s});
    const QString recent = QSO({.ref = u"93013"_s, .date = u"02/01/15"_s});
    EXPECT_EQ(Sans_Doubles({ancien, recent}), std::vector{recent});
}

TEST(Supprime_Doubles, derriere_la_date_decident_l_heure_puis_le_mode)
{
    const QString a = QSO({.ref = u"93013"_s, .heure = u"09:00"_s, .mode = u"SSB"_s});
    const QString b = QSO({.ref = u"93013"_s, .heure = u"08:00"_s, .mode = u"SSB"_s});
    const QString c = QSO({.ref = u"93013"_s, .heure = u"08:00"_s, .mode = u"CW"_s});
    EXPECT_EQ(Sans_Doubles({a, b, c}), std::vector{c});
}

TEST(Supprime_Doubles, des_lignes_sans_reference_la_premiere_reste)
{
    const QString a = QSO({.date = u"02/01/14"_s});
    const QString b = QSO({.date = u"01/01/14"_s});
    const QString c = QSO({.ref = u"93013"_s});
    EXPECT_EQ(Sans_Doubles({a, c, b}), (std::vector{c, b}));
}

TEST(Supprime_Doubles, les_lignes_gardees_restent_dans_leur_ordre)
{
    const QString a = QSO({.ref = u"93013"_s});
    const QString b = QSO({.ref = u"01001"_s});
    const QString c = QSO({.ref = u"50001"_s});
    EXPECT_EQ(Sans_Doubles({a, b, c}), (std::vector{a, b, c}));
    EXPECT_EQ(Sans_Doubles({c, a, b, QSO({.ref = u"01001"_s, .date = u"31/12/31"_s})}), (std::vector{c, a, b}));
}

TEST(Supprime_Doubles, l_ordre_tient_au_dela_de_dix_lignes)
{
    std::vector<QString> lignes;
    for (int i = 0; i < 120; ++i)
        lignes.push_back(QSO({.ref = QString::number(99000 - i)}));
    EXPECT_EQ(Sans_Doubles(lignes), lignes);
}

TEST(Supprime_Doubles, une_reference_plus_longue_n_est_pas_un_double)
{
    const QString a = QSO({.ref = u"93013"_s});
    const QString b = QSO({.ref = u"93013R"_s});
    EXPECT_EQ(Sans_Doubles({b, a}), (std::vector{b, a}));
}

TEST(Supprime_Doubles, deux_references_de_dix_caracteres_different_par_le_dernier)
{
    const QString a = QSO({.ref = u"GVM1800123"_s});
    const QString b = QSO({.ref = u"GVM1800124"_s});
    EXPECT_EQ(Sans_Doubles({a, b}), (std::vector{a, b}));
    EXPECT_EQ(Sans_Doubles({b, a}), (std::vector{b, a}));
}

TEST(Supprime_Doubles, ce_qui_deborde_des_colonnes_s_en_va)
{
    QString deborde = QSO({.dpt = u"97"_s, .ref = u"97101"_s});
    deborde[15] = u'1';
    const QString courte = QSO({.ref = u"97102"_s, .nom = u"C. DE VAUX"_s}).first(89);
    EXPECT_EQ(
        Sans_Doubles({deborde + u" et la suite", courte}),
        (std::vector{QSO({.dpt = u"97"_s, .ref = u"97101"_s}), QSO({.ref = u"97102"_s, .nom = u"C. DE VAUX"_s})}));
}

TEST(Supprime_Doubles, une_date_hors_format_reste_comme_elle_est)
{
    // Only the sort composes date and time anew.
    const QString ligne = QSO({.ref = u"97101"_s, .date = u"12-05.XX"_s, .heure = u"14h48"_s});
    EXPECT_EQ(Sans_Doubles({ligne}), std::vector{ligne});
}

TEST(Supprime_Doubles, les_blancs_autour_d_une_reference_ne_comptent_pas)
{
    const QString a = QSO({.ref = u" 93013"_s});
    const QString b = QSO({.ref = u"93013"_s});
    EXPECT_EQ(Sans_Doubles({b, a}), std::vector{a});
}

TEST(Supprime_Doubles, la_casse_ordonne_mais_ne_confond_pas)
{
    const QString a = QSO({.ref = u"93013r"_s});
    const QString b = QSO({.ref = u"93013R"_s});
    EXPECT_EQ(Sans_Doubles({a, b}), (std::vector{a, b}));
}

TEST(Supprime_Doubles, deux_fois_ne_change_rien_et_chaque_reference_reste_une_fois)
{
    Logs_Au_Hasard hasard(19960704);
    for (int essai = 0; essai < 200; ++essai) {
        const std::vector<QString> lignes = hasard.Log(60);
        const std::vector<QString> gardees = Sans_Doubles(lignes);
        ASSERT_EQ(Sans_Doubles(gardees), gardees);
        std::set<QString> refs;
        std::set<QString> refs_gardees;
        for (const QString &ligne : lignes)
            refs.insert(Ref(ligne));
        for (const QString &ligne : gardees)
            ASSERT_TRUE(refs_gardees.insert(Ref(ligne)).second);
        ASSERT_EQ(refs_gardees, refs);
        // What stays is a part of the log, in its order.
        auto place = lignes.begin();
        for (const QString &ligne : gardees) {
            place = std::find(place, lignes.end(), ligne);
            ASSERT_NE(place, lignes.end());
            ++place;
        }
    }
}

TEST(Supprime_Doubles, le_log_sur_le_disque_est_reecrit_et_recharge)
{
    Poste_Essai essai;
    essai.Ouvre(u"DFCF"_s);
    const QString a = QSO({.ref = u"93013"_s});
    const QString b = QSO({.ind = u"F6ABC"_s, .ref = u"93013"_s});
    essai.fichiers.Pose(u"F9ZZY_DFCF.log"_s, Texte_Log({a, b}).toLatin1());
    Supprime_Doubles(essai.poste);
    EXPECT_EQ(essai.fichiers.Octets(u"F9ZZY_DFCF.log"_s), Texte_Log({a}).toLatin1());
    EXPECT_EQ(essai.ecran.liste.size(), 1U);
    EXPECT_EQ(essai.ecran.appels.back(), u"Selectionne_Derniere"_s);
    EXPECT_TRUE(essai.boites.messages.empty());
    EXPECT_EQ(essai.fichiers.Fichiers(), QStringList{u"F9ZZY_DFCF.log"_s});
}

TEST(Supprime_Doubles, un_log_sans_double_garde_ses_octets)
{
    Poste_Essai essai;
    essai.Ouvre(u"DFCF"_s);
    const QByteArray octets = Texte_Log({QSO({.ref = u"93013"_s}), QSO({.ref = u"01001"_s})}).toLatin1();
    essai.fichiers.Pose(u"F9ZZY_DFCF.log"_s, octets);
    Supprime_Doubles(essai.poste);
    EXPECT_EQ(essai.fichiers.Octets(u"F9ZZY_DFCF.log"_s), octets);
}

TEST(Supprime_Doubles, le_challenge_reecrit_le_log_de_son_annee)
{
    Poste_Essai essai;
    essai.Ouvre(u"Ch_DFCF"_s);
    essai.etat.station.annee_ch_dfcf = u"2017"_s;
    const QString a = QSO({.ref = u"93013A"_s});
    essai.fichiers.Pose(u"F9ZZY_Ch_DFCF_2017.log"_s, Texte_Log({a, a}).toLatin1());
    essai.fichiers.Pose(u"F9ZZY_Ch_DFCF.log"_s, "autre");
    Supprime_Doubles(essai.poste);
    EXPECT_EQ(essai.fichiers.Octets(u"F9ZZY_Ch_DFCF_2017.log"_s), Texte_Log({a}).toLatin1());
    EXPECT_EQ(essai.fichiers.Octets(u"F9ZZY_Ch_DFCF.log"_s), "autre");
}
