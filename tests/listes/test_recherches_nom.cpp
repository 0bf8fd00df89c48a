#include "Listes_Essai.h"
#include "listes/Recherches_Liste.h"
#include "log/Ancienne_Ref_TDC.h"
#include "plateforme/Erreur_Execution.h"

using namespace Qt::StringLiterals;

TEST(Nom_Ouvrage, les_deux_sorties_sont_le_nom)
{
    const Poste_Essai essai;
    Pose_Liste(essai, u"Liste_Ouvrages.csv"_s, {u"Rev"_s, u"45-EC-102;Ecluse de Briare;Ecluse;45;Canal;1;"_s});
    EXPECT_EQ(Nom_Ouvrage(essai.dossier, u"45EC102"),
              (Reference_Trouvee{u"Ecluse de Briare"_s, u"Ecluse de Briare"_s}));
    EXPECT_EQ(Nom_Ouvrage(essai.dossier, u"45EC103"), (Reference_Trouvee{u""_s, u"  "_s}));
}

TEST(Nom_Ouvrage, un_premier_champ_vide_finit_la_liste)
{
    const Poste_Essai essai;
    Pose_Liste(essai, u"Liste_Ouvrages.csv"_s,
               {u"Rev"_s, u"45EC102;Briare;;45;;1;"_s, u";;;;;;"_s, u"45EC103;Châtillon;;45;;1;"_s, u"cassee"_s});
    EXPECT_EQ(Nom_Ouvrage(essai.dossier, u"45EC103").nom, u""_s);
    EXPECT_EQ(Cherche_Ouvrage(essai.dossier, u"45EC103").nom, u"Châtillon"_s) << "the entry look-up goes on";
}

TEST(Nom_Ouvrage, une_ligne_vide_finit_la_liste_que_la_saisie_ne_passe_pas)
{
    const Poste_Essai essai;
    Pose_Liste(essai, u"Liste_Ouvrages.csv"_s, {u"Rev"_s, u"45EC102;Briare;;45;;1;"_s, u""_s});
    EXPECT_EQ(Nom_Ouvrage(essai.dossier, u"45EC103").nom, u""_s);
    EXPECT_THROW(Cherche_Ouvrage(essai.dossier, u"45EC103"), Erreur_Execution);
}

TEST(Nom_DFCF, le_nom_n_est_pas_coupe)
{
    const Poste_Essai essai;
    Pose_Liste(essai, u"Liste_DFCF.csv"_s,
               {u"77001;En tete;;;;"_s, u""_s, u"77-0-01;123456789012345678901234567890;;;;"_s, u" 77002;Blanc;;;;"_s});
    EXPECT_EQ(Nom_DFCF(essai.dossier, u"77001"), u"C.123456789012345678901234567890"_s);
    EXPECT_EQ(Nom_DFCF(essai.dossier, u"77002"), u""_s) << "field 1 is not trimmed here";
}

TEST(Nom_DPLF, prend_le_nombre_derriere_les_deux_premiers_caracteres)
{
    const Poste_Essai essai;
    Pose_Liste(essai, u"Liste_DPLF.txt"_s, {u"Garoupe"_s, u"0012"_s, u""_s, u"6"_s, u""_s, u"*"_s});
    EXPECT_EQ(Nom_DPLF(essai.dossier, u"PB12"), (Reference_Trouvee{u"P. Garoupe"_s, u"06"_s}));
    EXPECT_EQ(Nom_DPLF(essai.dossier, u"PB0012").nom, u"P. Garoupe"_s);
    EXPECT_EQ(Nom_DPLF(essai.dossier, u"P"), Reference_Trouvee{});
    EXPECT_EQ(Nom_DPLF(essai.dossier, u"PB013"), Reference_Trouvee{});
}

TEST(Nom_DPLF, une_etoile_en_cinquieme_ligne_finit_la_liste)
{
    const Poste_Essai essai;
    Pose_Liste(essai, u"Liste_DPLF.txt"_s,
               {u"A"_s, u"1"_s, u""_s, u"29"_s, u"*"_s, u"B"_s, u"2"_s, u""_s, u"29"_s, u""_s});
    EXPECT_EQ(Nom_DPLF(essai.dossier, u"PB001").nom, u"P. A"_s);
    EXPECT_EQ(Nom_DPLF(essai.dossier, u"PB002"), Reference_Trouvee{});
}

TEST(Nom_FFF, ne_passe_qu_une_ligne_et_prend_tous_les_prefixes)
{
    const Poste_Essai essai;
    Pose_Liste(essai, u"Liste_FFF.csv"_s,
               {u"court"_s, u";;;FFF-0009;en tete;;"_s, u""_s, u";;;ONFF- 0051 ;Belge;;"_s, u"1;;;FFF-0051;Orient;;"_s,
                u"1;;;;sans reference;;"_s});
    EXPECT_EQ(Nom_FFF(essai.dossier, u"0009"), u"en tete"_s);
    EXPECT_EQ(Nom_FFF(essai.dossier, u" 0051 "), u"Belge"_s);
    EXPECT_EQ(Nom_FFF(essai.dossier, u"0052"), QString(30, u' '));
    EXPECT_EQ(Nom_FFF(essai.dossier, u""), QString(30, u' '));
}

TEST(Ancienne_Ref_TDC, donne_le_poste_sans_zeros)
{
    const Poste_Essai essai;
    Pose_Liste(essai, u"Liste_TDC.csv"_s, {u"Rev 1"_s, u""_s, u"8;11;3;A;Bordeaux - Narbonne;F; TC118 ;"_s});
    EXPECT_EQ(Ancienne_Ref_TDC(essai.dossier, u"TC118    "), u"11-8"_s);
    EXPECT_EQ(Ancienne_Ref_TDC(essai.dossier, u"TC119"), std::nullopt);
}

TEST(Recherches_Nom, une_liste_vide_est_une_liste_sans_lignes)
{
    const Poste_Essai essai;
    for (const QString &nom :
         {u"Liste_DFCF.csv"_s, u"Liste_FFF.csv"_s, u"Liste_DPLF.txt"_s, u"Liste_TDC.csv"_s, u"Liste_Ouvrages.csv"_s})
        essai.fichiers.Pose(nom, "");
    EXPECT_EQ(Nom_DFCF(essai.dossier, u"77001"), u""_s);
    EXPECT_EQ(Nom_FFF(essai.dossier, u"0051"), QString(30, u' '));
    EXPECT_EQ(Nom_DPLF(essai.dossier, u"PB001"), Reference_Trouvee{});
    EXPECT_EQ(Nom_Ouvrage(essai.dossier, u"45EC102"), (Reference_Trouvee{u""_s, u"  "_s}));
    EXPECT_EQ(Ancienne_Ref_TDC(essai.dossier, u"TC118"), std::nullopt);
}

TEST(Recherches_Nom, une_liste_absente_est_un_echec)
{
    const Poste_Essai essai;
    EXPECT_THROW(Nom_DFCF(essai.dossier, u"77001"), Erreur_Execution);
    EXPECT_THROW(Nom_FFF(essai.dossier, u"0051"), Erreur_Execution);
    EXPECT_THROW(Nom_DPLF(essai.dossier, u"PB001"), Erreur_Execution);
    EXPECT_THROW(Nom_Ouvrage(essai.dossier, u"45EC102"), Erreur_Execution);
    EXPECT_THROW(Ancienne_Ref_TDC(essai.dossier, u"TC118"), Erreur_Execution);
}
