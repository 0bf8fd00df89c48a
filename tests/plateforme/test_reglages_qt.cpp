#include "faux/Echec.h"
#include "faux/Fils.h"
#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "plateforme/disque/Reglages_Qt.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>

#include <csignal>
#include <random>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

class Reglages_Reels : public ::testing::Test {
protected:
    Reglages_Reels()
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, dossier.Chemin());
        QSettings::setPath(QSettings::NativeFormat, QSettings::SystemScope, dossier.Chemin(u"systeme"_s));
    }

    Dossier_Temporaire dossier;
    const QString fichier = u"Vorlain/Vorlain.conf"_s;

    static void Ecrit(const QString &section, const QString &cle, const QString &valeur)
    {
        Reglages_Qt().Ecrit(section, cle, valeur);
    }
    static QString Relit(const QString &section, const QString &cle)
    {
        return Reglages_Qt().Lit(section, cle, u"(rien)"_s);
    }
};

} // namespace

TEST_F(Reglages_Reels, une_cle_absente_rend_son_defaut)
{
    EXPECT_EQ(Reglages_Qt().Lit(u"Setup "_s, u"Indicatif Station"_s, u"FXXXX"_s), u"FXXXX"_s);
}

TEST_F(Reglages_Reels, la_section_commune_garde_son_blanc)
{
    Ecrit(u"Setup "_s, u"Indicatif Station"_s, u"F9ZZY"_s);
    Ecrit(u"Setup F9ZZY"_s, u"bande Utilisee"_s, u"4"_s);
    EXPECT_EQ(Relit(u"Setup "_s, u"Indicatif Station"_s), u"F9ZZY"_s);
    EXPECT_EQ(Relit(u"Setup F9ZZY"_s, u"bande Utilisee"_s), u"4"_s);
    EXPECT_EQ(Relit(u"Setup"_s, u"Indicatif Station"_s), u"(rien)"_s);
    EXPECT_EQ(Relit(u"Setup F9ZZX"_s, u"bande Utilisee"_s), u"(rien)"_s);
    EXPECT_TRUE(dossier.Octets(fichier).contains("[Setup%20]"));
}

TEST_F(Reglages_Reels, un_texte_revient_comme_il_etait)
{
    for (const QString &texte : {u"C:\\Sauvegarde_Vorlain"_s, u"Rev 017, du 01/01/12"_s, u"/home/é/a;b=c \"d\""_s,
                                 u"@Invalid()"_s, u"  blancs  "_s, u""_s, u"\\\\serveur\\logs\\"_s, u"a,b,c"_s}) {
        Ecrit(u"Setup F9ZZY"_s, u"Chemin Sauvegarde"_s, texte);
        EXPECT_EQ(Relit(u"Setup F9ZZY"_s, u"Chemin Sauvegarde"_s), texte);
    }
}

TEST_F(Reglages_Reels, une_ecriture_est_sur_le_disque_quand_elle_revient)
{
    Reglages_Qt reglages;
    reglages.Ecrit(u"Setup F9ZZY"_s, u"Separateur Auto"_s, u"Oui"_s);
    EXPECT_TRUE(dossier.Octets(fichier).contains("Separateur%20Auto=Oui"));
}

TEST_F(Reglages_Reels, une_virgule_nue_ecrite_a_la_main_reste_un_texte)
{
    ASSERT_TRUE(QDir(dossier.Chemin()).mkdir(u"Vorlain"_s));
    dossier.Pose(fichier, "[Setup%20F9ZZY]\nChemin%20Sauvegarde=/mnt/a, b\n");
    EXPECT_EQ(Relit(u"Setup F9ZZY"_s, u"Chemin Sauvegarde"_s), u"/mnt/a, b"_s);
}

TEST_F(Reglages_Reels, un_fichier_de_reglages_abime_rend_les_defauts)
{
    ASSERT_TRUE(QDir(dossier.Chemin()).mkdir(u"Vorlain"_s));
    QByteArray octets;
    for (int i = 0; i < 256; ++i)
        octets += static_cast<char>(i);
    dossier.Pose(fichier, octets);
    EXPECT_EQ(Relit(u"Setup "_s, u"Indicatif Station"_s), u"(rien)"_s);
}

TEST_F(Reglages_Reels, le_programme_frere_est_lu_et_jamais_ecrit)
{
    ASSERT_TRUE(QDir(dossier.Chemin()).mkdir(u"Trelune"_s));
    dossier.Pose(u"Trelune/Trelune.conf"_s, "[Setup]\nChemin%20Repertoire=/opt/trelune\n");
    const Reglages_Qt reglages;
    EXPECT_EQ(reglages.Lit_Trelune(u"Setup"_s, u"Chemin Repertoire"_s, u"Absent"_s), u"/opt/trelune"_s);
    EXPECT_EQ(reglages.Lit_Trelune(u"Setup"_s, u"Autre"_s, u"Absent"_s), u"Absent"_s);
    EXPECT_EQ(reglages.Lit(u"Setup"_s, u"Chemin Repertoire"_s, u"(rien)"_s), u"(rien)"_s);
    Ecrit(u"Setup "_s, u"Revision"_s, u"V1.2.5c"_s);
    EXPECT_EQ(dossier.Octets(u"Trelune/Trelune.conf"_s), "[Setup]\nChemin%20Repertoire=/opt/trelune\n");
}

TEST_F(Reglages_Reels, un_refus_du_disque_est_dit)
{
    dossier.Pose(u"Vorlain"_s, "a file where the folder should be");
    const auto echec = Echec([] { Ecrit(u"Setup "_s, u"Revision"_s, u"V1.2.5c"_s); });
    ASSERT_TRUE(echec);
    EXPECT_EQ(echec->La_Cause(), Cause::Fichier_Refuse);
    EXPECT_EQ(echec->Texte(),
              u"les réglages ne peuvent pas être lus : %1 (une partie du chemin n'est pas un répertoire)"_s.arg(
                  dossier.Chemin(fichier)));
}

TEST_F(Reglages_Reels, un_disque_plein_garde_les_anciens_reglages)
{
    Ecrit(u"Setup "_s, u"Indicatif Station"_s, u"F9ZZY"_s);
    const QByteArray anciens = dossier.Octets(fichier);
    const int etat = Dans_Un_Fils([] {
        ::signal(SIGXFSZ, SIG_IGN);
        const rlimit limite{20, 20};
        ::setrlimit(RLIMIT_FSIZE, &limite);
        return Echec([] { Ecrit(u"Setup "_s, u"Revision"_s, u"V1.2.5c"_s); }) ? 0 : 1;
    });
    EXPECT_EQ(etat, 0);
    EXPECT_EQ(dossier.Octets(fichier), anciens);
}

TEST_F(Reglages_Reels, un_magasin_illisible_n_est_pas_une_premiere_installation)
{
    ASSERT_TRUE(QDir(dossier.Chemin()).mkpath(fichier));
    const auto echec = Echec([] { (void)Relit(u"Setup "_s, u"Indicatif Station"_s); });
    ASSERT_TRUE(echec);
    EXPECT_EQ(echec->Texte(),
              u"les réglages ne peuvent pas être lus : %1 (c'est un répertoire)"_s.arg(dossier.Chemin(fichier)));
}

TEST_F(Reglages_Reels, un_verrou_laisse_par_une_panne_ne_retient_personne)
{
    ASSERT_TRUE(QDir(dossier.Chemin()).mkdir(u"Vorlain"_s));
    dossier.Pose(fichier + u".lock", "1\nVorlain\nautre-machine\n");
    QElapsedTimer duree;
    duree.start();
    Ecrit(u"Setup "_s, u"Revision"_s, u"V1.2.5c"_s);
    EXPECT_LT(duree.elapsed(), 2000);
    EXPECT_EQ(Relit(u"Setup "_s, u"Revision"_s), u"V1.2.5c"_s);
}

TEST_F(Reglages_Reels, le_magasin_se_lit_comme_qsettings_l_ecrirait)
{
    const QString chemin = dossier.Chemin(u"temoin.conf"_s);
    std::mt19937 hasard(20261121);
    const QString signes = u"aZ09 ;,=\"\\%@#[]/\t\n\r\u0001\u00E9\u20AC\u00A0xf'"_s;
    Contenu_Reglages contenu;
    for (int cle = 0; cle < 600; ++cle) {
        QString valeur;
        for (std::size_t reste = hasard() % 12; reste > 0; --reste)
            valeur += signes[static_cast<qsizetype>(hasard() % static_cast<std::size_t>(signes.size()))];
        contenu[u"Setup F%1/cle é %2"_s.arg(cle / 10).arg(cle)] = valeur;
    }
    {
        QSettings temoin(chemin, QSettings::NativeFormat);
        for (auto place = contenu.begin(); place != contenu.end(); ++place)
            temoin.setValue(place.key(), place.value());
    }
    EXPECT_EQ(Decode_Reglages(dossier.Octets(u"temoin.conf"_s)), contenu);
    EXPECT_EQ(Decode_Reglages(Encode_Reglages(contenu)), contenu);
}

TEST_F(Reglages_Reels, un_magasin_abime_s_ecrit_encore)
{
    ASSERT_TRUE(QDir(dossier.Chemin()).mkdir(u"Vorlain"_s));
    QByteArray octets;
    for (int i = 0; i < 256; ++i)
        octets += static_cast<char>(i);
    dossier.Pose(fichier, "[Setup%20F9ZZY]\nbande%20Utilisee=4\n" + octets);
    Ecrit(u"Setup "_s, u"Revision"_s, u"V1.2.5c"_s);
    EXPECT_EQ(Relit(u"Setup "_s, u"Revision"_s), u"V1.2.5c"_s);
    EXPECT_EQ(Relit(u"Setup F9ZZY"_s, u"bande Utilisee"_s), u"4"_s);
}

TEST_F(Reglages_Reels, un_lien_reste_un_lien_et_les_droits_restent)
{
    ASSERT_TRUE(QDir(dossier.Chemin()).mkdir(u"Vorlain"_s));
    dossier.Pose(u"vrai.conf"_s, "[Setup%20]\nRevision=V1.0.0\n");
    ASSERT_TRUE(QFile::link(u"../vrai.conf"_s, dossier.Chemin(fichier)));
    Ecrit(u"Setup "_s, u"Revision"_s, u"V1.2.5c"_s);
    EXPECT_TRUE(QFileInfo(dossier.Chemin(fichier)).isSymLink());
    EXPECT_TRUE(dossier.Octets(u"vrai.conf"_s).contains("Revision=V1.2.5c"));
}
