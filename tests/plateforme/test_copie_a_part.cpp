#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "plateforme/disque/Fichier_Sur.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

class Copie_A_Part : public ::testing::Test {
protected:
    Copie_A_Part() { fichiers.Pose(log, "un\r\n"); }

    [[nodiscard]] struct stat Etat(const QString &nom) const
    {
        struct stat etat {};
        EXPECT_EQ(::stat(QFile::encodeName(fichiers.Chemin(nom)).constData(), &etat), 0) << nom.toStdString();
        return etat;
    }

    Dossier_Temporaire fichiers;
    Dossier_Disque dossier{fichiers.Chemin()};
    const QString log = u"F9ZZY_DFCF.log"_s;
    const QString copie = u"Copies/a.log"_s;
};

} // namespace

TEST_F(Copie_A_Part, de_ce_qui_sera_remplace_ne_prend_pas_de_place)
{
    EXPECT_EQ(dossier.Garde(log, copie, Avenir::Remplace), Issue_Copie::Faite);
    EXPECT_EQ(Etat(copie).st_ino, Etat(log).st_ino);
    dossier.Remplace(log, u"deux\r\n", u"Temporaire.txt"_s);
    EXPECT_EQ(fichiers.Octets(copie), "un\r\n");
    EXPECT_EQ(Etat(copie).st_nlink, 1U);
}

TEST_F(Copie_A_Part, de_ce_qui_vit_encore_est_un_autre_fichier)
{
    ::chmod(QFile::encodeName(fichiers.Chemin(log)).constData(), 0600);
    EXPECT_EQ(dossier.Garde(log, copie, Avenir::Modifie), Issue_Copie::Faite);
    EXPECT_NE(Etat(copie).st_ino, Etat(log).st_ino);
    EXPECT_EQ(Etat(copie).st_mode & 0777U, 0600U) << "nobody else may read it now";
    EXPECT_EQ(fichiers.Octets(copie), "un\r\n");
}

TEST_F(Copie_A_Part, ne_s_ecrit_pas_sur_une_autre)
{
    dossier.Garde(log, copie, Avenir::Modifie);
    dossier.Ajoute(log, u"deux");
    for (const Avenir avenir : {Avenir::Modifie, Avenir::Remplace})
        EXPECT_EQ(dossier.Garde(log, copie, avenir), Issue_Copie::Nom_Pris);
    EXPECT_EQ(fichiers.Octets(copie), "un\r\n");
}

TEST_F(Copie_A_Part, un_ajout_se_separe_de_la_copie)
{
    dossier.Garde(log, copie, Avenir::Remplace);
    dossier.Ajoute(log, u"deux");
    EXPECT_EQ(fichiers.Octets(log), "un\r\ndeux\r\n");
    EXPECT_EQ(fichiers.Octets(copie), "un\r\n");
    EXPECT_EQ(fichiers.Fichiers(), QStringList{log}) << "no temporary file stays";
}

TEST_F(Copie_A_Part, ce_qui_vit_encore_sous_son_nom_rend_la_copie_inutile)
{
    dossier.Garde(log, copie, Avenir::Remplace);
    dossier.Separe(copie);
    EXPECT_FALSE(fichiers.Existe(copie));
    EXPECT_EQ(fichiers.Octets(log), "un\r\n");
}

TEST_F(Copie_A_Part, le_seul_exemplaire_ne_part_jamais)
{
    dossier.Garde(log, copie, Avenir::Remplace);
    dossier.Remplace(log, u"deux\r\n", u"Temporaire.txt"_s);
    dossier.Separe(copie);
    EXPECT_EQ(fichiers.Octets(copie), "un\r\n");
}

TEST_F(Copie_A_Part, derriere_un_lien_c_est_le_fichier_qui_est_garde)
{
    Dossier_Temporaire ailleurs;
    ailleurs.Pose(u"vrai.log"_s, "un\r\n");
    QFile::link(ailleurs.Chemin(u"vrai.log"_s), fichiers.Chemin(u"F9ZZY_DMF.log"_s));
    EXPECT_EQ(dossier.Garde(u"F9ZZY_DMF.log"_s, copie, Avenir::Remplace), Issue_Copie::Faite);
    dossier.Remplace(u"F9ZZY_DMF.log"_s, u"deux\r\n", u"Temporaire.txt"_s);
    EXPECT_EQ(fichiers.Octets(copie), "un\r\n");
    EXPECT_EQ(ailleurs.Octets(u"vrai.log"_s), "deux\r\n");
}

TEST_F(Copie_A_Part, sans_fichier_il_n_y_a_rien_a_garder)
{
    EXPECT_EQ(dossier.Garde(u"F9ZZY_DMF.log"_s, copie, Avenir::Remplace), Issue_Copie::Sans_Objet);
    ::mkfifo(QFile::encodeName(fichiers.Chemin(u"tube.log"_s)).constData(), 0600);
    EXPECT_EQ(dossier.Garde(u"tube.log"_s, copie, Avenir::Modifie), Issue_Copie::Sans_Objet);
    EXPECT_TRUE(dossier.Fichiers(u"Copies"_s).empty());
}
