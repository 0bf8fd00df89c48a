#include "faux/Echec.h"
#include "faux/Fils.h"
#include "faux/Impression.h"
#include "faux/Poste_Essai.h"

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

const QString journal = u"F9ZZY_DFCF.log"_s;

class Ajout : public ::testing::Test {
protected:
    Dossier_Temporaire fichiers;
    Dossier_Disque dossier{fichiers.Chemin()};

    /// An append in a process whose files end at `octets`: true if it failed with a cause and the log's name.
    [[nodiscard]] bool Refuse_Sous_Limite(rlim_t octets, const QString &ligne)
    {
        return Dans_Un_Fils([&] {
                   ::signal(SIGXFSZ, SIG_IGN);
                   const rlimit limite{octets, octets};
                   ::setrlimit(RLIMIT_FSIZE, &limite);
                   const auto echec = Echec([&] { dossier.Ajoute(journal, ligne); });
                   return echec && echec->Texte() == u"%1 (fichier trop gros)"_s.arg(fichiers.Chemin(journal)) ? 0 : 1;
               }) == 0;
    }
};

} // namespace

TEST_F(Ajout, une_ligne_va_a_la_fin_avec_sa_fin_de_ligne)
{
    fichiers.Pose(journal, "un\r\n");
    dossier.Ajoute(journal, u"été");
    EXPECT_EQ(fichiers.Octets(journal), "un\r\n\xE9t\xE9\r\n");
}

TEST_F(Ajout, un_fichier_absent_est_cree)
{
    dossier.Ajoute(journal, u"un");
    EXPECT_EQ(fichiers.Octets(journal), "un\r\n");
}

TEST_F(Ajout, un_fichier_vide_ne_recoit_pas_de_ligne_vide)
{
    fichiers.Pose(journal, "");
    dossier.Ajoute(journal, u"un");
    EXPECT_EQ(fichiers.Octets(journal), "un\r\n");
}

TEST_F(Ajout, une_derniere_ligne_sans_fin_la_recoit_d_abord)
{
    fichiers.Pose(journal, "un");
    dossier.Ajoute(journal, u"deux");
    EXPECT_EQ(fichiers.Octets(journal), "un\r\ndeux\r\n");
}

TEST_F(Ajout, une_fin_de_ligne_courte_suffit)
{
    fichiers.Pose(journal, "un\n");
    dossier.Ajoute(journal, u"deux");
    EXPECT_EQ(fichiers.Octets(journal), "un\ndeux\r\n");
}

TEST_F(Ajout, un_cr_seul_a_la_fin_reste_dans_sa_ligne)
{
    fichiers.Pose(journal, "un\r");
    dossier.Ajoute(journal, u"deux");
    EXPECT_EQ(fichiers.Octets(journal), "un\r\r\ndeux\r\n");
    EXPECT_EQ(dossier.Lit_Lignes(journal)[0], u"un\r");
}

TEST_F(Ajout, une_ligne_coupee_par_le_disque_ne_reste_pas)
{
    fichiers.Pose(journal, "un\r\n");
    EXPECT_TRUE(Refuse_Sous_Limite(10, u"une ligne qui ne tient pas"_s));
    EXPECT_EQ(fichiers.Octets(journal), "un\r\n");
}

TEST_F(Ajout, la_fin_ajoutee_a_l_ancienne_ligne_part_avec_la_ligne_coupee)
{
    fichiers.Pose(journal, "un");
    EXPECT_TRUE(Refuse_Sous_Limite(10, u"une ligne qui ne tient pas"_s));
    EXPECT_EQ(fichiers.Octets(journal), "un");
}

TEST_F(Ajout, un_fichier_qui_n_a_pas_pu_naitre_ne_reste_pas)
{
    EXPECT_TRUE(Refuse_Sous_Limite(5, u"une ligne"_s));
    EXPECT_FALSE(fichiers.Existe(journal));
}

TEST_F(Ajout, un_peripherique_a_la_place_du_log_est_refuse)
{
    ASSERT_TRUE(QFile::link(u"/dev/full"_s, fichiers.Chemin(journal)));
    const auto echec = Echec([&] { dossier.Ajoute(journal, u"un"); });
    ASSERT_TRUE(echec);
    EXPECT_EQ(echec->Texte(), u"%1 (ce n'est pas un fichier ordinaire)"_s.arg(fichiers.Chemin(journal)));
}

TEST_F(Ajout, un_lien_vers_un_fichier_absent_le_fait)
{
    ASSERT_TRUE(QFile::link(u"vrai.log"_s, fichiers.Chemin(journal)));
    dossier.Ajoute(journal, u"un");
    EXPECT_TRUE(QFileInfo(fichiers.Chemin(journal)).isSymLink());
    EXPECT_EQ(fichiers.Octets(u"vrai.log"_s), "un\r\n");
}

TEST_F(Ajout, un_repertoire_est_refuse)
{
    ASSERT_TRUE(QDir(fichiers.Chemin()).mkdir(journal));
    const auto echec = Echec([&] { dossier.Ajoute(journal, u"un"); });
    ASSERT_TRUE(echec);
    EXPECT_EQ(echec->La_Cause(), Cause::Fichier_Refuse);
    EXPECT_EQ(echec->Texte(), u"%1 (c'est un répertoire)"_s.arg(fichiers.Chemin(journal)));
}

TEST_F(Ajout, un_repertoire_absent_est_dit)
{
    const auto echec = Echec([&] { dossier.Ajoute(u"absent/a.log"_s, u"un"); });
    ASSERT_TRUE(echec);
    EXPECT_EQ(echec->La_Cause(), Cause::Fichier_Introuvable);
}

TEST_F(Ajout, un_caractere_hors_de_la_table_n_ecrit_rien)
{
    fichiers.Pose(journal, "un\r\n");
    const auto echec = Echec([&] { dossier.Ajoute(journal, u"tour Δ"); });
    ASSERT_TRUE(echec);
    EXPECT_EQ(echec->La_Cause(), Cause::Caractere);
    EXPECT_TRUE(echec->Texte().contains(journal)) << echec->Texte().toStdString();
    EXPECT_EQ(fichiers.Octets(journal), "un\r\n");
}
