#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "log/Cles.h"
#include "log/Reglages_Station.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Reglages_Station, la_section_porte_l_indicatif_derriere_un_blanc)
{
    EXPECT_EQ(Section_Station(u"F9ZZY_P"), u"Setup F9ZZY_P"_s);
}

TEST(Reglages_Station, chaque_station_a_les_siens)
{
    Poste_Essai essai;
    Ecrit_Station(essai.poste, cles::bande_utilisee, u"4"_s);
    EXPECT_EQ(essai.reglages.vorlain.at({u"Setup F9ZZY"_s, u"bande Utilisee"_s}), u"4"_s);
    EXPECT_EQ(Lit_Station(essai.poste, cles::bande_utilisee, u"0"), u"4"_s);
    essai.etat.station.indicatif = u"F9ZZX"_s;
    EXPECT_EQ(Lit_Station(essai.poste, cles::bande_utilisee, u"0"), u"0"_s);
}

TEST(Reglages_Station, les_reglages_communs_sont_a_part)
{
    Poste_Essai essai;
    Ecrit_General(essai.poste, cles::indicatif_station, u"F9ZZY"_s);
    EXPECT_EQ(essai.reglages.vorlain.at({u"Setup "_s, u"Indicatif Station"_s}), u"F9ZZY"_s);
    EXPECT_EQ(Lit_General(essai.poste, cles::indicatif_station, u"FXXXX"), u"F9ZZY"_s);
    EXPECT_EQ(Lit_General(essai.poste, cles::revision, u"rien"), u"rien"_s);
}

TEST(Reglages_Station, les_annees_de_challenge_de_la_station)
{
    Poste_Essai essai;
    essai.etat.station.annee_ch_dfcf = u"1999"_s;
    essai.reglages.vorlain[{u"Setup F9ZZY"_s, u"Annee Challenge DMF"_s}] = u"2026"_s;
    Lit_Annees_Challenge(essai.poste);
    EXPECT_EQ(essai.etat.station.annee_ch_dmf, u"2026"_s);
    EXPECT_EQ(essai.etat.station.annee_ch_dfcf, u"2000"_s);
}

TEST(Cles, les_noms_et_les_defauts_du_magasin)
{
    EXPECT_EQ(cles::generale, u"Setup ");
    EXPECT_EQ(cles::chemin_repertoire, u"Chemin Repertoire");
    EXPECT_EQ(cles::revision, u"Revision");
    EXPECT_EQ(cles::mode_utilise, u"Mode Utilise");
    EXPECT_EQ(cles::diplome_utilise, u"Diplome Utilise");
    EXPECT_EQ(cles::chemin_sauvegarde, u"Chemin Sauvegarde");
    EXPECT_EQ(cles::date_sauvegarde, u"Date_Sauvegarde");
    EXPECT_EQ(cles::separateur_auto, u"Separateur Auto");
    EXPECT_EQ(cles::date_auto, u"Date Auto");
    EXPECT_EQ(cles::annee_challenge_dfcf, u"Annee Challenge DFCF");
    EXPECT_EQ(cles::annee_challenge_dmf, u"Annee Challenge DMF");
    EXPECT_EQ(cles::revision_liste_wff, u"Revision_Liste_WFF");
    EXPECT_EQ(cles::chemin_sauvegarde_absent, u"C:\\Sauvegarde_Vorlain");
    EXPECT_EQ(cles::date_sauvegarde_absente, u"01/01/2015");
    EXPECT_EQ(cles::revision_liste_absente, u"Rev 000 du 01/01/12");
    EXPECT_EQ(indicatif_absent, u"FXXXX");
}
