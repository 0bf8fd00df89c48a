#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "log/Serveurs.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Serveur, vient_de_la_section_serveurs_des_reglages)
{
    Poste_Essai essai;
    essai.reglages.Ecrit(u"Serveurs"_s, u"DOHF"_s, u"127.0.0.1:8080"_s);
    EXPECT_EQ(Serveur(essai.poste, u"DOHF"), u"127.0.0.1:8080"_s);
    EXPECT_EQ(Adresse_Serveur(essai.poste, u"DOHF", u"/a b"), u"http://127.0.0.1:8080/a b"_s);
}

TEST(Serveur, les_cles_des_reglements_contiennent_un_blanc)
{
    Poste_Essai essai;
    essai.reglages.Ecrit(u"Serveurs"_s, u"Reglement DFF"_s, u" exemple.test "_s);
    EXPECT_EQ(Serveur(essai.poste, u"Reglement DFF"), u"exemple.test"_s);
    EXPECT_EQ(Adresse_Serveur(essai.poste, u"Reglement DFF", u""), u"http://exemple.test"_s);
}

TEST(Serveur, sans_reglage_est_vide_et_l_adresse_aussi)
{
    Poste_Essai essai;
    EXPECT_EQ(Serveur(essai.poste, u"cle inconnue"), u""_s);
    EXPECT_EQ(Adresse_Serveur(essai.poste, u"cle inconnue", u"/"), u""_s);
}
