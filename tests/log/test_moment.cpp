#include "faux/Impression.h"
#include "faux/QSO_Essai.h"
#include "log/Moment.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

std::optional<QString> Moment_De(const QString &date, const QString &heure)
{
    return Moment(QSO({.date = date, .heure = heure}));
}

} // namespace

TEST(Moment, l_annee_a_deux_chiffres_va_de_1950_a_2049)
{
    EXPECT_EQ(Annee_Entiere(50), 1950);
    EXPECT_EQ(Annee_Entiere(99), 1999);
    EXPECT_EQ(Annee_Entiere(0), 2000);
    EXPECT_EQ(Annee_Entiere(49), 2049);
    EXPECT_EQ(Moment_De(u"01/01/50"_s, u"00:00"_s), u"1950010100:00"_s);
    EXPECT_EQ(Moment_De(u"31/12/49"_s, u"23:59"_s), u"2049123123:59"_s);
}

TEST(Moment, le_temps_va_comme_le_texte)
{
    EXPECT_LT(Moment_De(u"31/12/99"_s, u"23:59"_s), Moment_De(u"01/01/00"_s, u"00:00"_s));
    EXPECT_LT(Moment_De(u"30/11/07"_s, u"14:48"_s), Moment_De(u"01/12/07"_s, u"14:47"_s));
    EXPECT_LT(Moment_De(u"01/12/07"_s, u"14:47"_s), Moment_De(u"01/12/07"_s, u"14:48"_s));
}

TEST(Moment, le_calendrier_n_est_pas_verifie)
{
    EXPECT_EQ(Moment_De(u"31/02/15"_s, u"14:48"_s), u"2015023114:48"_s);
    EXPECT_EQ(Moment_De(u"00/00/00"_s, u"99:99"_s), u"2000000099:99"_s);
}

TEST(Moment, une_forme_etrangere_n_a_pas_de_moment)
{
    EXPECT_FALSE(Moment_De(u"12-05-07"_s, u"14:48"_s));
    EXPECT_FALSE(Moment_De(u"1A/05/07"_s, u"14:48"_s));
    EXPECT_FALSE(Moment_De(u"12/05/07"_s, u"14h48"_s));
    EXPECT_FALSE(Moment_De(u"12/05/07"_s, u"     "_s));
    EXPECT_FALSE(Moment(u""));
    EXPECT_FALSE(Moment(QSO({}).first(57)));
    EXPECT_TRUE(Moment(QSO({}).first(58)));
}

TEST(Date_De_Fichier, jour_mois_annee_soulignes)
{
    EXPECT_EQ(Date_De_Fichier(QDate(2026, 11, 5)), u"05_11_26"_s);
}

TEST(Date_De_Reglage, va_et_revient)
{
    EXPECT_EQ(Date_De_Reglage(QDate(2026, 11, 5)), u"05/11/2026"_s);
    EXPECT_EQ(Lit_Date_De_Reglage(u"05/11/2026"_s), QDate(2026, 11, 5));
    EXPECT_EQ(Lit_Date_De_Reglage(u"01/01/2015"_s), QDate(2015, 1, 1));
}

TEST(Date_De_Reglage, ce_qui_n_est_pas_une_date_n_en_donne_pas)
{
    for (const QString &texte : {u""_s, u"hier"_s, u"31/02/2026"_s, u"2026-11-05"_s, u"05/11/26"_s, u"05/11/2026 "_s})
        EXPECT_FALSE(Lit_Date_De_Reglage(texte)) << texte.toStdString();
}
