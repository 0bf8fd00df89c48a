#include "faux/Impression.h"
#include "saisie/Refus.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Refus, bande)
{
    EXPECT_EQ(Refus_Bande(u""), u"Entrez une QRG"_s);
    EXPECT_EQ(Refus_Bande(u"12345678"), u"7 caracteres maxi pour la bande"_s);
    EXPECT_EQ(Refus_Bande(u"144 Mhz"), std::nullopt);
    EXPECT_EQ(Refus_Bande(u" "), std::nullopt);
}

TEST(Refus, indicatif)
{
    EXPECT_EQ(Refus_Ind(u""), u"Entrez un indicatif"_s);
    EXPECT_EQ(Refus_Ind(u"F5ABC/P/MM/9Z"), u"12 caracteres maxi pour l'indicatif"_s);
    EXPECT_EQ(Refus_Ind(u"F5ABC/P/MM/9"), std::nullopt);
}

TEST(Refus, departement)
{
    EXPECT_EQ(Refus_Dpt(u""), u"Entrez un Departement"_s);
    EXPECT_EQ(Refus_Dpt(u"5"), u"2 caracteres pour le Departement ex : 05 ou 77"_s);
    EXPECT_EQ(Refus_Dpt(u"077"), u"2 caracteres pour le Departement ex : 05 ou 77"_s);
    EXPECT_EQ(Refus_Dpt(u"2A"), std::nullopt);
}

TEST(Refus, date)
{
    EXPECT_EQ(Refus_Date(u""), u"Entrez une date"_s);
    EXPECT_EQ(Refus_Date(u"12/5/07"), u"8 caracteres pour la date ex: 12/05/07"_s);
    EXPECT_EQ(Refus_Date(u"12/05/2007"), u"8 caracteres pour la date ex: 12/05/07"_s);
    for (const QStringView texte : {u"12-05-07", u"32/01/15", u"01/13/15", u"1A/05/07", u"12/A5/07", u"12/05/0B",
                                    u"12/05-07", u" 1/05/07", u"+1/05/07", u"1\u0662/05/07"})
        EXPECT_EQ(Refus_Date(texte), u"Le format de la date doit etre JJ/MM/AA"_s) << texte.toString().toStdString();
    for (const QStringView texte : {u"31/02/15", u"00/00/00", u"12/05/07", u"31/12/99"})
        EXPECT_EQ(Refus_Date(texte), std::nullopt) << texte.toString().toStdString();
}

TEST(Refus, heure)
{
    EXPECT_EQ(Refus_Heure(u""), u"Entrez une Heure"_s);
    EXPECT_EQ(Refus_Heure(u"1248"), u"5 caractereslour l'heure ex 12:48"_s);
    EXPECT_EQ(Refus_Heure(u"12:48:00"), u"5 caractereslour l'heure ex 12:48"_s);
    for (const QStringView texte : {u"24:00", u"23:60", u"12h48", u"1A:48", u"12:4B", u" 1:48"})
        EXPECT_EQ(Refus_Heure(texte), u"Le format de l'heure doit etre HH:MM"_s) << texte.toString().toStdString();
    for (const QStringView texte : {u"23:59", u"00:00"})
        EXPECT_EQ(Refus_Heure(texte), std::nullopt);
}

TEST(Refus, mode)
{
    EXPECT_EQ(Refus_Mode(u""), u"selectionnez un Mode"_s);
    EXPECT_EQ(Refus_Mode(u"JT65"), u"3 caracteres maxi pour le Mode"_s);
    EXPECT_EQ(Refus_Mode(u"FT8"), std::nullopt);
}

TEST(Refus, report)
{
    EXPECT_EQ(Refus_Report(u""), u"Entrez un Report"_s);
    EXPECT_EQ(Refus_Report(u"5999"), u"3 caracteres maxi pour le Report"_s);
    for (const QStringView texte : {u"659", u"9", u"A59", u"-5", u" 59"})
        EXPECT_EQ(Refus_Report(texte), u"R (de RST)doit etre compris entre 0 et 5"_s);
    for (const QStringView texte : {u"459", u"59", u"599", u"0", u"5NN"})
        EXPECT_EQ(Refus_Report(texte), std::nullopt);
}

TEST(Refus, nom)
{
    EXPECT_EQ(Refus_Nom(QString(51, u'X')), u"50 caracteres maxi pour le nom de la commune"_s);
    EXPECT_EQ(Refus_Nom(QString(50, u'X')), std::nullopt);
    EXPECT_EQ(Refus_Nom(u""), std::nullopt);
}

TEST(Verifie, une_autre_longueur_ne_passe_pas)
{
    EXPECT_FALSE(Verifie_Date(u""));
    EXPECT_FALSE(Verifie_Date(u"12/05/077"));
    EXPECT_TRUE(Verifie_Date(u"12/05/07"));
    EXPECT_FALSE(Verifie_Heure(u"12:480"));
    EXPECT_TRUE(Verifie_Heure(u"12:48"));
}

TEST(Premiere_Installation, les_deux_messages_different_par_leurs_apostrophes)
{
    EXPECT_EQ(
        Message_Premiere_Installation(),
        u"\n         Premiere installation, vous devez entrer votre Indicatif\n\nPour cela dans la barre des menus allez dans 'Station' puis 'Nouvel Indicatif'."_s);
    EXPECT_EQ(
        Message_Premiere_Installation_Ind(),
        u"\n         Premiere installation, vous devez entrer votre Indicatif\n\nPour cela dans la barre des menus allez dans Station puis Nouvel Indicatif."_s);
}
