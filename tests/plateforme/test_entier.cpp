#include "faux/Echec.h"
#include "faux/Impression.h"
#include "plateforme/Entier.h"
#include "plateforme/Tolere.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Entier, un_nombre_est_lu_avec_ses_blancs_et_ses_zeros)
{
    EXPECT_EQ(Entier(u"17"), 17);
    EXPECT_EQ(Entier(u" 017 "), 17);
    EXPECT_EQ(Entier(u"-3"), -3);
    EXPECT_EQ(Entier(u"2147483647"), 2147483647);
}

TEST(Entier, ce_qui_n_est_pas_un_nombre_entier_est_une_erreur_de_type)
{
    for (const QStringView texte : {u""_s, u"  "_s, u"2A"_s, u"1.8"_s, u"1 7"_s, u"2147483648"_s, u"0x10"_s}) {
        const auto echec = Echec([&] { Entier(texte); });
        ASSERT_TRUE(echec) << texte.toString().toStdString();
        EXPECT_EQ(echec->La_Cause(), Cause::Type);
        EXPECT_EQ(echec->Texte(), u"« "_s + texte + u" » n'est pas un nombre entier");
    }
}

TEST(Entier, un_pour_cent_dans_le_texte_reste_tel_quel)
{
    const auto echec = Echec([] { Entier(u"%1"); });
    ASSERT_TRUE(echec);
    EXPECT_EQ(echec->Texte(), u"« %1 » n'est pas un nombre entier"_s);
}

TEST(Indice, une_place_de_la_table_est_rendue)
{
    EXPECT_EQ(Indice(0, 3), 0U);
    EXPECT_EQ(Indice(2, 3), 2U);
}

TEST(Indice, hors_de_la_table_est_une_erreur_d_indice)
{
    for (const int valeur : {-1, 3, 98}) {
        const auto echec = Echec([&] { Indice(valeur, 3); });
        ASSERT_TRUE(echec) << valeur;
        EXPECT_EQ(echec->La_Cause(), Cause::Indice);
    }
    EXPECT_TRUE(Echec([] { Indice(0, 0); }));
    EXPECT_EQ(Echec([] { Indice(-1, 3); })->Texte(), u"l'indice -1 est en dehors de sa table"_s);
}

TEST(Erreur_Execution, le_rapport_dit_la_cause)
{
    const Erreur_Execution erreur(Cause::Fichier_Introuvable, u"/logs/F9ZZY_DFCF.log (fichier introuvable)"_s);
    EXPECT_EQ(Rapport(erreur), u"Erreur d'exécution : /logs/F9ZZY_DFCF.log (fichier introuvable)"_s);
    EXPECT_EQ(erreur.La_Cause(), Cause::Fichier_Introuvable);
}

TEST(Erreur_Execution, une_copie_garde_son_texte)
{
    std::optional<Erreur_Execution> originale(std::in_place, Cause::Type, u"été"_s);
    const Erreur_Execution copie = *originale;
    originale.reset();
    EXPECT_STREQ(copie.what(), "\xC3\xA9t\xC3\xA9");
    EXPECT_EQ(copie.Texte(), u"été"_s);
}

TEST(Tolere, un_echec_est_passe_et_rapporte)
{
    bool suite = false;
    EXPECT_FALSE(Tolere([&] {
        Entier(u"x");
        suite = true;
    }));
    EXPECT_FALSE(suite);
    EXPECT_TRUE(Tolere([&] { suite = true; }));
    EXPECT_TRUE(suite);
}

TEST(Tolere, un_defaut_du_programme_n_est_pas_passe)
{
    EXPECT_THROW(Tolere([] { throw std::logic_error("defect"); }), std::logic_error);
}

TEST(Entier_De_Tete, les_chiffres_du_debut_font_le_nombre)
{
    EXPECT_EQ(Entier_De_Tete(u"77"), 77);
    EXPECT_EQ(Entier_De_Tete(u" 01 "), 1);
    EXPECT_EQ(Entier_De_Tete(u"2A"), 2);
    EXPECT_EQ(Entier_De_Tete(u"A2"), 0);
    EXPECT_EQ(Entier_De_Tete(u"  "), 0);
    EXPECT_EQ(Entier_De_Tete(u"-1"), 0);
}
