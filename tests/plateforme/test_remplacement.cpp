#include "faux/Echec.h"
#include "faux/Fils.h"
#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "plateforme/disque/Fichier_Sur.h"

#include <gtest/gtest.h>

#include <csignal>
#include <sched.h>
#include <string>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

const QString journal = u"F9ZZY_DFCF.log"_s;
const QString temporaire = u"Temporaire.txt"_s;

class Remplacement : public ::testing::Test {
protected:
    Dossier_Temporaire fichiers;
    Dossier_Disque dossier{fichiers.Chemin()};

    [[nodiscard]] std::optional<Erreur_Execution> Essaie(const QString &nom, const QString &texte)
    {
        return Echec([&] { dossier.Remplace(nom, texte, temporaire); });
    }

    /// The old log stands, alone, and the message names it.
    void Attend_Intact(const std::optional<Erreur_Execution> &echec, Cause cause, const QString &raison)
    {
        ASSERT_TRUE(echec);
        EXPECT_EQ(echec->La_Cause(), cause);
        EXPECT_TRUE(echec->Texte().startsWith(fichiers.Chemin(journal) + u" n'a pas été modifié : "))
            << echec->Texte().toStdString();
        EXPECT_TRUE(echec->Texte().contains(raison)) << echec->Texte().toStdString();
        EXPECT_EQ(fichiers.Octets(journal), "ancien\r\n");
        EXPECT_EQ(fichiers.Fichiers(), QStringList{journal});
    }
};

using Remplacement_Sous_Limite = Remplacement;

mode_t Droits(const QString &chemin)
{
    struct stat etat {};
    ::stat(QFile::encodeName(chemin).constData(), &etat);
    return etat.st_mode & 07777;
}

/// Files of this process end at `octets`; a write beyond fails instead of killing it.
void Limite_Fichiers(rlim_t octets)
{
    ::signal(SIGXFSZ, SIG_IGN);
    const rlimit limite{octets, octets};
    ::setrlimit(RLIMIT_FSIZE, &limite);
}

/// Puts a disk of 64 kB over a folder, seen by this process alone; false where it may not.
bool Monte_Petit_Disque(const QString &chemin)
{
    const bool roi = ::geteuid() == 0;
    const std::string uid = "0 " + std::to_string(::geteuid()) + " 1";
    if (::unshare(roi ? CLONE_NEWNS : CLONE_NEWNS | CLONE_NEWUSER) != 0)
        return false;
    QFile correspondance(u"/proc/self/uid_map"_s);
    if (!roi && !(correspondance.open(QIODevice::WriteOnly) && correspondance.write(uid.c_str()) > 0))
        return false;
    correspondance.close();
    return ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
           ::mount("tmpfs", QFile::encodeName(chemin).constData(), "tmpfs", 0, "size=64k") == 0;
}

/// This process becomes a user without rights; false where it may not.
bool Devient_Personne()
{
    return ::geteuid() != 0 || (::setgid(65534) == 0 && ::setuid(65534) == 0);
}

} // namespace

TEST_F(Remplacement, le_texte_entier_prend_la_place_de_l_ancien)
{
    fichiers.Pose(journal, "ancien\r\n");
    dossier.Remplace(journal, u"été à 5 €\r\n", temporaire);
    EXPECT_EQ(fichiers.Octets(journal), "\xE9t\xE9 \xE0 5 \x80\r\n");
    EXPECT_EQ(fichiers.Fichiers(), QStringList{journal});
}

TEST_F(Remplacement, un_fichier_absent_est_cree)
{
    dossier.Remplace(journal, u"nouveau\r\n", temporaire);
    EXPECT_EQ(fichiers.Octets(journal), "nouveau\r\n");
    dossier.Remplace(journal, u"", temporaire);
    EXPECT_EQ(fichiers.Octets(journal), "");
}

TEST_F(Remplacement, un_reste_d_une_panne_est_ecrase)
{
    fichiers.Pose(journal, "ancien\r\n");
    fichiers.Pose(temporaire, "un reste bien plus long que le nouveau texte");
    dossier.Remplace(journal, u"nouveau\r\n", temporaire);
    EXPECT_EQ(fichiers.Octets(journal), "nouveau\r\n");
    EXPECT_FALSE(fichiers.Existe(temporaire));
}

TEST_F(Remplacement, les_droits_du_fichier_restent)
{
    fichiers.Pose(journal, "ancien\r\n");
    ASSERT_EQ(::chmod(QFile::encodeName(fichiers.Chemin(journal)).constData(), 0640), 0);
    dossier.Remplace(journal, u"nouveau\r\n", temporaire);
    EXPECT_EQ(Droits(fichiers.Chemin(journal)), 0640U);
}

TEST_F(Remplacement, un_lien_reste_un_lien_et_sa_cible_est_remplacee)
{
    ASSERT_TRUE(QDir(fichiers.Chemin()).mkdir(u"ailleurs"_s));
    fichiers.Pose(u"ailleurs/vrai.log"_s, "ancien\r\n");
    ASSERT_TRUE(QFile::link(u"ailleurs/vrai.log"_s, fichiers.Chemin(journal)));
    dossier.Remplace(journal, u"nouveau\r\n", temporaire);
    EXPECT_TRUE(QFileInfo(fichiers.Chemin(journal)).isSymLink());
    EXPECT_EQ(fichiers.Octets(u"ailleurs/vrai.log"_s), "nouveau\r\n");
}

TEST_F(Remplacement, un_chemin_entier_sort_du_repertoire)
{
    const Dossier_Temporaire autre;
    dossier.Remplace(autre.Chemin(u"liste.txt"_s), u"a\r\n", temporaire);
    EXPECT_EQ(autre.Octets(u"liste.txt"_s), "a\r\n");
}

TEST_F(Remplacement, un_repertoire_a_la_place_du_fichier_reste)
{
    ASSERT_TRUE(QDir(fichiers.Chemin()).mkpath(journal + u"/dedans"));
    const auto echec = Essaie(journal, u"nouveau\r\n"_s);
    ASSERT_TRUE(echec);
    EXPECT_EQ(echec->La_Cause(), Cause::Fichier_Refuse);
    EXPECT_EQ(echec->Texte(), u"%1 n'a pas été modifié : c'est un répertoire"_s.arg(fichiers.Chemin(journal)));
    EXPECT_TRUE(fichiers.Existe(journal + u"/dedans"));
    EXPECT_FALSE(fichiers.Existe(temporaire));
}

TEST_F(Remplacement, ce_qui_porte_le_nom_du_temporaire_ne_gene_pas_et_reste)
{
    fichiers.Pose(journal, "ancien\r\n");
    ASSERT_TRUE(QDir(fichiers.Chemin()).mkdir(temporaire));
    EXPECT_FALSE(Essaie(journal, u"nouveau\r\n"_s));
    EXPECT_EQ(fichiers.Octets(journal), "nouveau\r\n");
    EXPECT_TRUE(fichiers.Existe(temporaire));
}

TEST_F(Remplacement, un_lien_au_nom_du_temporaire_n_est_pas_suivi)
{
    fichiers.Pose(journal, "ancien\r\n");
    fichiers.Pose(u"autre.log"_s, "autre\r\n");
    ASSERT_TRUE(QFile::link(u"autre.log"_s, fichiers.Chemin(temporaire)));
    EXPECT_FALSE(Essaie(journal, u"nouveau\r\n"_s));
    EXPECT_EQ(fichiers.Octets(journal), "nouveau\r\n");
    EXPECT_EQ(fichiers.Octets(u"autre.log"_s), "autre\r\n");
}

TEST_F(Remplacement, le_proprietaire_et_le_groupe_restent)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "only root may give a file away";
    fichiers.Pose(journal, "ancien\r\n");
    const QByteArray chemin = QFile::encodeName(fichiers.Chemin(journal));
    ASSERT_EQ(::chown(chemin.constData(), 65534, 65533), 0);
    dossier.Remplace(journal, u"nouveau\r\n", temporaire);
    struct stat etat {};
    ASSERT_EQ(::stat(chemin.constData(), &etat), 0);
    EXPECT_EQ(etat.st_uid, 65534U);
    EXPECT_EQ(etat.st_gid, 65533U);
}

TEST_F(Remplacement, un_lien_sans_cible_reste_un_lien)
{
    ASSERT_TRUE(QFile::link(u"vrai.log"_s, fichiers.Chemin(journal)));
    dossier.Remplace(journal, u"nouveau\r\n", temporaire);
    EXPECT_TRUE(QFileInfo(fichiers.Chemin(journal)).isSymLink());
    EXPECT_EQ(fichiers.Octets(u"vrai.log"_s), "nouveau\r\n");
}

TEST_F(Remplacement, des_liens_en_rond_sont_dits)
{
    ASSERT_TRUE(QFile::link(u"autre.log"_s, fichiers.Chemin(journal)));
    ASSERT_TRUE(QFile::link(journal, fichiers.Chemin(u"autre.log"_s)));
    const auto echec = Essaie(journal, u"nouveau\r\n"_s);
    ASSERT_TRUE(echec);
    EXPECT_TRUE(echec->Texte().endsWith(u"un lien qui tourne en rond")) << echec->Texte().toStdString();
}

TEST_F(Remplacement, un_repertoire_absent_est_dit)
{
    const QString nom = u"absent/F9ZZY_DFCF.log"_s;
    const auto echec = Essaie(nom, u"nouveau\r\n"_s);
    ASSERT_TRUE(echec);
    EXPECT_EQ(echec->La_Cause(), Cause::Fichier_Introuvable);
    EXPECT_TRUE(echec->Texte().contains(u"absent/F9ZZY_DFCF.log n'a pas été modifié : fichier introuvable"));
    EXPECT_EQ(fichiers.Fichiers(), QStringList());

    Dossier_Disque perdu(fichiers.Chemin(u"absent"_s));
    EXPECT_EQ(Echec([&] { perdu.Remplace(journal, u"", temporaire); })->La_Cause(), Cause::Fichier_Introuvable);
}

TEST_F(Remplacement, un_caractere_hors_de_la_table_laisse_l_ancien)
{
    fichiers.Pose(journal, "ancien\r\n");
    Attend_Intact(Essaie(journal, u"tour Δ\r\n"_s), Cause::Caractere, u"le caractère « Δ »"_s);
    Attend_Intact(Essaie(journal, u"tour 🗼\r\n"_s), Cause::Caractere, u"le caractère « 🗼 »"_s);
}

TEST_F(Remplacement, un_vrai_disque_plein_garde_l_ancien)
{
    // One large write meets the end of a small file system: its first part is written without an error.
    const int etat = Dans_Un_Fils([&] {
        if (!Monte_Petit_Disque(fichiers.Chemin()))
            return epreuve_impossible;
        fichiers.Pose(journal, "ancien\r\n");
        const auto echec = Essaie(journal, QString(3'000'000, u'x'));
        const bool plein =
            echec && echec->La_Cause() == Cause::Disque_Plein && echec->Texte().endsWith(u": le disque est plein");
        const bool intact = fichiers.Octets(journal) == "ancien\r\n" && fichiers.Fichiers() == QStringList{journal};
        return plein && intact && !Essaie(journal, QString(30'000, u'x')) ? 0 : 1;
    });
    if (etat == epreuve_impossible)
        GTEST_SKIP() << "this user may not mount a small file system";
    EXPECT_EQ(etat, 0);
}

TEST_F(Remplacement, un_ajout_a_un_vrai_disque_plein_garde_les_lignes)
{
    const int etat = Dans_Un_Fils([&] {
        if (!Monte_Petit_Disque(fichiers.Chemin()))
            return epreuve_impossible;
        fichiers.Pose(journal, "ancien\r\n");
        const auto echec = Echec([&] { dossier.Ajoute(journal, QString(300'000, u'x')); });
        return echec && echec->La_Cause() == Cause::Disque_Plein && fichiers.Octets(journal) == "ancien\r\n" ? 0 : 1;
    });
    if (etat == epreuve_impossible)
        GTEST_SKIP() << "this user may not mount a small file system";
    EXPECT_EQ(etat, 0);
}

TEST_F(Remplacement_Sous_Limite, une_ecriture_coupee_garde_l_ancien)
{
    fichiers.Pose(journal, "ancien\r\n");
    const int etat = Dans_Un_Fils([&] {
        Limite_Fichiers(1000);
        const auto echec = Essaie(journal, QString(3000, u'x'));
        return echec && echec->La_Cause() == Cause::Fichier_Refuse && echec->Texte().contains(u"fichier trop gros") ? 0
                                                                                                                    : 1;
    });
    EXPECT_EQ(etat, 0);
    EXPECT_EQ(fichiers.Octets(journal), "ancien\r\n");
    EXPECT_EQ(fichiers.Fichiers(), QStringList{journal});
}

TEST_F(Remplacement_Sous_Limite, un_fichier_protege_n_est_pas_remplace)
{
    fichiers.Pose(journal, "ancien\r\n");
    const QByteArray chemin = QFile::encodeName(fichiers.Chemin(journal));
    ASSERT_EQ(::chmod(chemin.constData(), 0444), 0);
    ASSERT_EQ(::chmod(QFile::encodeName(fichiers.Chemin()).constData(), 0777), 0);
    const int etat = Dans_Un_Fils([&] {
        if (!Devient_Personne())
            return epreuve_impossible;
        const auto echec = Essaie(journal, u"nouveau\r\n"_s);
        return echec && echec->La_Cause() == Cause::Fichier_Refuse && echec->Texte().endsWith(u": accès refusé") ? 0
                                                                                                                 : 1;
    });
    if (etat == epreuve_impossible)
        GTEST_SKIP() << "this user may not become another one";
    EXPECT_EQ(etat, 0);
    EXPECT_EQ(fichiers.Octets(journal), "ancien\r\n");
    EXPECT_EQ(fichiers.Fichiers(), QStringList{journal});
}

TEST_F(Remplacement_Sous_Limite, un_repertoire_protege_est_dit)
{
    fichiers.Pose(journal, "ancien\r\n");
    const QByteArray chemin = QFile::encodeName(fichiers.Chemin());
    ASSERT_EQ(::chmod(chemin.constData(), 0555), 0);
    const int etat = Dans_Un_Fils([&] {
        if (!Devient_Personne())
            return epreuve_impossible;
        const auto echec = Essaie(journal, u"nouveau\r\n"_s);
        return echec && echec->Texte().contains(u"F9ZZY_DFCF.log n'a pas été modifié : accès refusé") ? 0 : 1;
    });
    ASSERT_EQ(::chmod(chemin.constData(), 0755), 0);
    if (etat == epreuve_impossible)
        GTEST_SKIP() << "this user may not become another one";
    EXPECT_EQ(etat, 0);
    EXPECT_EQ(fichiers.Octets(journal), "ancien\r\n");
    EXPECT_EQ(fichiers.Fichiers(), QStringList{journal});
}

TEST_F(Remplacement, un_lien_vers_un_autre_disque_est_suivi_et_sa_cible_remplacee)
{
    struct stat ici {};
    struct stat memoire {};
    ASSERT_EQ(::stat(QFile::encodeName(fichiers.Chemin()).constData(), &ici), 0);
    if (::stat("/dev/shm", &memoire) != 0 || ici.st_dev == memoire.st_dev || ::access("/dev/shm", W_OK) != 0)
        GTEST_SKIP() << "no second file system here";
    QTemporaryDir ailleurs(u"/dev/shm/vorlain-XXXXXX"_s);
    QFile vrai(ailleurs.filePath(u"vrai.log"_s));
    ASSERT_TRUE(vrai.open(QIODevice::WriteOnly));
    vrai.write("ancien\r\n");
    vrai.close();
    ASSERT_TRUE(QFile::link(vrai.fileName(), fichiers.Chemin(journal)));
    EXPECT_FALSE(Essaie(journal, u"nouveau\r\n"_s));
    EXPECT_EQ(fichiers.Octets(journal), "nouveau\r\n");
    EXPECT_TRUE(QFileInfo(fichiers.Chemin(journal)).isSymLink());
    EXPECT_EQ(QDir(ailleurs.path()).entryList(QDir::Files), QStringList{u"vrai.log"_s});
}
