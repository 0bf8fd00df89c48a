#include "faux/Echec.h"
#include "faux/Fils.h"
#include "faux/Impression.h"
#include "faux/Poste_Essai.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

class Dossier_Sur_Disque : public ::testing::Test {
protected:
    Dossier_Temporaire fichiers;
    Dossier_Disque dossier{fichiers.Chemin()};
};

} // namespace

TEST_F(Dossier_Sur_Disque, lit_tous_les_octets_et_leurs_lignes)
{
    fichiers.Pose(u"liste.csv"_s, "caf\xE9\r\n\x80;1\n");
    EXPECT_EQ(dossier.Lit(u"liste.csv"_s), u"café\r\n€;1\n"_s);
    const Lignes_Texte lignes = dossier.Lit_Lignes(u"liste.csv"_s);
    ASSERT_EQ(lignes.size(), 2U);
    EXPECT_EQ(lignes[1], u"€;1");
}

TEST_F(Dossier_Sur_Disque, lit_un_fichier_vide)
{
    fichiers.Pose(u"vide.log"_s, "");
    EXPECT_EQ(dossier.Lit(u"vide.log"_s), QString());
    EXPECT_TRUE(dossier.Lit_Lignes(u"vide.log"_s).empty());
}

TEST_F(Dossier_Sur_Disque, lit_un_long_fichier_entier)
{
    QByteArray octets;
    for (int i = 0; i < 1'000'000; ++i)
        octets += static_cast<char>(i * 7);
    fichiers.Pose(u"long.log"_s, octets);
    EXPECT_EQ(dossier.Lit(u"long.log"_s).size(), octets.size());
}

TEST_F(Dossier_Sur_Disque, un_fichier_absent_est_dit)
{
    const auto echec = Echec([&] { (void)dossier.Lit(u"absent.log"_s); });
    ASSERT_TRUE(echec);
    EXPECT_EQ(echec->La_Cause(), Cause::Fichier_Introuvable);
    EXPECT_EQ(echec->Texte(), u"%1 (fichier introuvable)"_s.arg(fichiers.Chemin(u"absent.log"_s)));
}

TEST_F(Dossier_Sur_Disque, un_repertoire_n_est_pas_un_fichier)
{
    ASSERT_TRUE(QDir(fichiers.Chemin()).mkdir(u"a.log"_s));
    const auto echec = Echec([&] { (void)dossier.Lit(u"a.log"_s); });
    ASSERT_TRUE(echec);
    EXPECT_EQ(echec->La_Cause(), Cause::Fichier_Refuse);
    EXPECT_EQ(echec->Texte(), u"%1 (c'est un répertoire)"_s.arg(fichiers.Chemin(u"a.log"_s)));
}

TEST_F(Dossier_Sur_Disque, un_chemin_a_travers_un_fichier_est_dit)
{
    fichiers.Pose(u"a.log"_s, "un\r\n");
    const auto echec = Echec([&] { (void)dossier.Lit(u"a.log/b.log"_s); });
    ASSERT_TRUE(echec);
    EXPECT_EQ(echec->Texte(),
              u"%1 (une partie du chemin n'est pas un répertoire)"_s.arg(fichiers.Chemin(u"a.log/b.log"_s)));
}

TEST_F(Dossier_Sur_Disque, cree_un_fichier_absent_et_lui_seul)
{
    dossier.Cree_Si_Absent(u"a.log"_s);
    EXPECT_EQ(fichiers.Octets(u"a.log"_s), "");
    fichiers.Pose(u"a.log"_s, "un\r\n");
    dossier.Cree_Si_Absent(u"a.log"_s);
    EXPECT_EQ(fichiers.Octets(u"a.log"_s), "un\r\n");
}

TEST_F(Dossier_Sur_Disque, un_fichier_illisible_n_est_pas_vide_par_sa_creation)
{
    fichiers.Pose(u"a.log"_s, "un\r\n");
    ASSERT_EQ(::chmod(QFile::encodeName(fichiers.Chemin(u"a.log"_s)).constData(), 0), 0);
    EXPECT_FALSE(Echec([&] { dossier.Cree_Si_Absent(u"a.log"_s); }));
    ASSERT_EQ(::chmod(QFile::encodeName(fichiers.Chemin(u"a.log"_s)).constData(), 0600), 0);
    EXPECT_EQ(fichiers.Octets(u"a.log"_s), "un\r\n");
}

TEST_F(Dossier_Sur_Disque, un_lien_sans_cible_n_est_pas_remplace_par_une_creation)
{
    ASSERT_TRUE(QFile::link(u"nulle_part"_s, fichiers.Chemin(u"a.log"_s)));
    EXPECT_FALSE(Echec([&] { dossier.Cree_Si_Absent(u"a.log"_s); }));
    EXPECT_TRUE(QFileInfo(fichiers.Chemin(u"a.log"_s)).isSymLink());
}

TEST_F(Dossier_Sur_Disque, une_creation_dans_un_repertoire_absent_est_dite)
{
    EXPECT_EQ(Echec([&] { dossier.Cree_Si_Absent(u"absent/a.log"_s); })->La_Cause(), Cause::Fichier_Introuvable);
}

TEST_F(Dossier_Sur_Disque, supprime_un_fichier)
{
    fichiers.Pose(u"a.log"_s, "un\r\n");
    dossier.Supprime(u"a.log"_s);
    EXPECT_FALSE(fichiers.Existe(u"a.log"_s));
}

TEST_F(Dossier_Sur_Disque, une_suppression_refusee_est_dite)
{
    const auto absent = Echec([&] { dossier.Supprime(u"a.log"_s); });
    ASSERT_TRUE(absent);
    EXPECT_EQ(absent->La_Cause(), Cause::Fichier_Introuvable);
    EXPECT_EQ(absent->Texte(), u"%1 (fichier introuvable)"_s.arg(fichiers.Chemin(u"a.log"_s)));
    ASSERT_TRUE(QDir(fichiers.Chemin()).mkdir(u"a.log"_s));
    const auto repertoire = Echec([&] { dossier.Supprime(u"a.log"_s); });
    ASSERT_TRUE(repertoire);
    EXPECT_EQ(repertoire->Texte(), u"%1 (c'est un répertoire)"_s.arg(fichiers.Chemin(u"a.log"_s)));
    EXPECT_TRUE(fichiers.Existe(u"a.log"_s));
}

TEST_F(Dossier_Sur_Disque, copie_les_octets_comme_ils_sont)
{
    QByteArray octets;
    for (int i = 0; i < 256; ++i)
        octets += static_cast<char>(i);
    fichiers.Pose(u"a.log"_s, octets);
    const Dossier_Temporaire sauvegarde;
    sauvegarde.Pose(u"a.log"_s, "une copie plus ancienne, et plus longue que la nouvelle" + octets + octets);
    dossier.Copie(u"a.log"_s, sauvegarde.Chemin(u"a.log"_s));
    EXPECT_EQ(sauvegarde.Octets(u"a.log"_s), octets);
    EXPECT_EQ(sauvegarde.Fichiers(), QStringList{u"a.log"_s});
    EXPECT_EQ(fichiers.Octets(u"a.log"_s), octets);
}

TEST_F(Dossier_Sur_Disque, une_copie_ratee_garde_la_cible_et_la_nomme)
{
    const Dossier_Temporaire sauvegarde;
    sauvegarde.Pose(u"a.log"_s, "ancienne\r\n");
    EXPECT_EQ(Echec([&] { dossier.Copie(u"a.log"_s, sauvegarde.Chemin(u"a.log"_s)); })->La_Cause(),
              Cause::Fichier_Introuvable);
    EXPECT_EQ(sauvegarde.Octets(u"a.log"_s), "ancienne\r\n");

    fichiers.Pose(u"a.log"_s, "un\r\n");
    const QString cible = sauvegarde.Chemin(u"absent/a.log"_s);
    const auto echec = Echec([&] { dossier.Copie(u"a.log"_s, cible); });
    ASSERT_TRUE(echec);
    EXPECT_TRUE(echec->Texte().startsWith(cible + u" n'a pas été modifié : ")) << echec->Texte().toStdString();
}

TEST_F(Dossier_Sur_Disque, un_nom_accentue_ou_trop_long)
{
    dossier.Ajoute(u"Année_été.log"_s, u"un");
    EXPECT_EQ(fichiers.Octets(u"Année_été.log"_s), "un\r\n");
    const QString long_nom(300, u'x');
    EXPECT_EQ(Echec([&] { (void)dossier.Lit(long_nom); })->Texte(),
              u"%1 (nom de fichier trop long)"_s.arg(fichiers.Chemin(long_nom)));
}

TEST_F(Dossier_Sur_Disque, existe_dit_si_un_nom_est_pris)
{
    EXPECT_FALSE(dossier.Existe(u"a.log"_s));
    ASSERT_TRUE(QDir(fichiers.Chemin()).mkdir(u"a.log"_s));
    EXPECT_TRUE(dossier.Existe(u"a.log"_s));
    ASSERT_TRUE(QFile::link(u"nulle_part"_s, fichiers.Chemin(u"lien.log"_s)));
    EXPECT_TRUE(dossier.Existe(u"lien.log"_s));
}

TEST_F(Dossier_Sur_Disque, une_question_sans_reponse_n_est_pas_un_non)
{
    fichiers.Pose(u"a.log"_s, "un\r\n");
    const auto echec = Echec([&] { (void)dossier.Existe(u"a.log/b.log"_s); });
    ASSERT_TRUE(echec);
    EXPECT_EQ(echec->Texte(),
              u"%1 (une partie du chemin n'est pas un répertoire)"_s.arg(fichiers.Chemin(u"a.log/b.log"_s)));
}

TEST_F(Dossier_Sur_Disque, un_tube_a_la_place_d_un_log_est_refuse_aussitot)
{
    const QString nom = u"a.log"_s;
    ASSERT_EQ(::mkfifo(QFile::encodeName(fichiers.Chemin(nom)).constData(), 0600), 0);
    const QString raison = u"ce n'est pas un fichier ordinaire"_s;
    EXPECT_EQ(Echec([&] { (void)dossier.Lit(nom); })->Texte(), u"%1 (%2)"_s.arg(fichiers.Chemin(nom), raison));
    EXPECT_EQ(Echec([&] { dossier.Ajoute(nom, u"un"); })->Texte(), u"%1 (%2)"_s.arg(fichiers.Chemin(nom), raison));
    EXPECT_EQ(Echec([&] { dossier.Remplace(nom, u"un", u"Temporaire.txt"_s); })->Texte(),
              u"%1 n'a pas été modifié : %2"_s.arg(fichiers.Chemin(nom), raison));
}

TEST_F(Dossier_Sur_Disque, des_octets_etrangers_sont_pris_tels_quels)
{
    const QByteArray octets("\xE2\x82\xAC\n\0suite", 10);
    dossier.Remplace_Octets(u"liste.csv"_s, octets, u"Temporaire.txt"_s);
    EXPECT_EQ(fichiers.Octets(u"liste.csv"_s), octets);
    EXPECT_EQ(dossier.Octets(u"liste.csv"_s), octets);
    EXPECT_EQ(fichiers.Fichiers(), QStringList{u"liste.csv"_s});
}
