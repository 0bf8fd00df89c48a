#include "log/Garde_Copie.h"

#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "faux/QSO_Essai.h"
#include "log/Charge_Log.h"
#include "log/Ecritures_Log.h"
#include "plateforme/Erreur_Execution.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Room for a line, but for no copy.
class Dossier_Plein : public Dossier_Disque {
public:
    using Dossier_Disque::Dossier_Disque;
    Issue_Copie Garde(const QString &, const QString &, Avenir) override
    {
        throw Erreur_Execution(Cause::Disque_Plein, u"le disque est plein"_s);
    }
};

class Copies_De_Securite : public ::testing::Test {
protected:
    Copies_De_Securite()
    {
        essai.Ouvre(u"DFCF"_s);
        essai.fichiers.Pose(log, avant);
    }

    [[nodiscard]] QStringList Copies() const
    {
        return QDir(essai.fichiers.Chemin(u"Copies"_s)).entryList(QDir::Files, QDir::Name);
    }
    [[nodiscard]] QByteArray Copie_Seule() const
    {
        EXPECT_EQ(Copies().size(), 1);
        return essai.fichiers.Octets(u"Copies/"_s + Copies().value(0));
    }
    bool Reecrit(Outil outil, const QByteArray &octets)
    {
        return Remplace_En_Gardant(essai.poste, outil, log,
                                   [&] { essai.dossier.Remplace_Octets(log, octets, u"Temporaire.txt"_s); });
    }
    bool Echoue(Outil outil)
    {
        return Remplace_En_Gardant(essai.poste, outil, log,
                                   [] { throw Erreur_Execution(Cause::Disque_Plein, u"plein"_s); });
    }
    /// No folder can stand there.
    void Empeche_Les_Copies() { essai.fichiers.Pose(u"Copies"_s, "un fichier"); }

    Poste_Essai essai;
    const QString log = u"F9ZZY_DFCF.log"_s;
    const QString ligne = QSO({.ref = u"77001"_s});
    const QByteArray avant = ligne.toLatin1() + "\r\n";
    const QString nouvelle = QSO({.ref = u"77002"_s});
    const QByteArray suite = nouvelle.toLatin1() + "\r\n";
};

} // namespace

TEST_F(Copies_De_Securite, le_log_d_avant_l_outil_reste_dans_copies)
{
    EXPECT_TRUE(Reecrit(Outil::Tri, suite));
    EXPECT_EQ(Copies(), QStringList{u"F9ZZY_DFCF_20261115T144830Z_Tri.log"_s});
    EXPECT_EQ(Copie_Seule(), avant);
    EXPECT_EQ(essai.fichiers.Octets(log), suite);
    EXPECT_TRUE(essai.boites.questions.empty());
}

TEST_F(Copies_De_Securite, deux_outils_de_la_meme_seconde_ont_chacun_leur_copie)
{
    Reecrit(Outil::Tri, "b\r\n");
    Reecrit(Outil::Tri, "c\r\n");
    Reecrit(Outil::Doubles, "d\r\n");
    const std::vector<Copie> copies = Copies_De(essai.dossier, log);
    ASSERT_EQ(copies.size(), 3U);
    EXPECT_EQ(essai.dossier.Octets(Fichier_De_Copie(copies[0])), "c\r\n") << "newest first";
    EXPECT_EQ(essai.dossier.Octets(Fichier_De_Copie(copies[1])), "b\r\n");
    EXPECT_EQ(essai.dossier.Octets(Fichier_De_Copie(copies[2])), avant);
}

TEST_F(Copies_De_Securite, un_qso_apres_un_outil_qui_a_echoue_ne_touche_pas_la_copie)
{
    EXPECT_THROW(Echoue(Outil::Tri), Erreur_Execution);
    EXPECT_EQ(Copies(), QStringList()) << "nothing was changed, so the log lives on";
    Ajoute_Ligne(essai.poste, nouvelle, Diplome::DFCF);
    EXPECT_EQ(essai.fichiers.Octets(log), avant + suite);
    EXPECT_EQ(Copie_Seule(), avant);
}

TEST_F(Copies_De_Securite, un_qso_apres_un_outil_tue_ne_touche_pas_la_copie)
{
    essai.dossier.Garde(log, u"Copies/F9ZZY_DFCF_20261115T144829Z_Tri.log"_s, Avenir::Remplace);
    Ajoute_Ligne(essai.poste, nouvelle, Diplome::DFCF);
    Ajoute_Ligne(essai.poste, nouvelle, Diplome::DFCF);
    EXPECT_EQ(essai.fichiers.Octets(log), avant + suite + suite);
    EXPECT_EQ(essai.fichiers.Octets(u"Copies/F9ZZY_DFCF_20261115T144829Z_Tri.log"_s), avant);
}

TEST_F(Copies_De_Securite, le_premier_changement_du_jour_seulement)
{
    Ajoute_Ligne(essai.poste, nouvelle, Diplome::DFCF);
    Supprime_Ligne(essai.poste, nouvelle, Diplome::DFCF);
    Remplace_Ligne(essai.poste, nouvelle, ligne);
    EXPECT_EQ(Copies(), QStringList{u"F9ZZY_DFCF_20261115T144830Z_Saisie.log"_s});
    EXPECT_EQ(Copie_Seule(), avant);
    essai.horloge.utc = essai.horloge.utc.addDays(1);
    Insere_Ligne(essai.poste, ligne);
    EXPECT_EQ(Copies().size(), 2);
}

TEST_F(Copies_De_Securite, une_migration_garde_les_anciennes_references)
{
    essai.Ouvre(u"FFF"_s);
    const QByteArray anciennes = QSO({.ref = u"51"_s}).toLatin1() + "\r\n";
    essai.fichiers.Pose(u"F9ZZY_FFF.log"_s, anciennes);
    Charge_Log(essai.poste, Diplome::FFF);
    EXPECT_EQ(Copies(), QStringList{u"F9ZZY_FFF_20261115T144830Z_Migration.log"_s});
    EXPECT_EQ(Copie_Seule(), anciennes);
}

TEST_F(Copies_De_Securite, sans_copie_l_outil_demande_et_un_non_laisse_tout)
{
    Empeche_Les_Copies();
    essai.boites.reponses = {false, true};
    EXPECT_FALSE(Reecrit(Outil::Tri, suite));
    EXPECT_EQ(essai.fichiers.Octets(log), avant);
    ASSERT_EQ(essai.boites.questions.size(), 1U);
    EXPECT_TRUE(
        essai.boites.questions[0].startsWith(u"La copie de sécurité de F9ZZY_DFCF.log n'a pas pu être faite :\n"_s));
    EXPECT_TRUE(Reecrit(Outil::Tri, suite));
    EXPECT_EQ(essai.fichiers.Octets(log), suite);
}

TEST_F(Copies_De_Securite, sans_copie_et_sans_oui_aucun_qso_ne_change)
{
    Empeche_Les_Copies();
    essai.boites.reponses = {false, false, false, false};
    EXPECT_FALSE(Ajoute_Ligne(essai.poste, nouvelle, Diplome::DFCF));
    EXPECT_FALSE(Insere_Ligne(essai.poste, nouvelle));
    EXPECT_FALSE(Remplace_Ligne(essai.poste, nouvelle, ligne));
    EXPECT_FALSE(Supprime_Ligne(essai.poste, ligne, Diplome::DFCF));
    EXPECT_EQ(essai.boites.questions.size(), 4U);
    EXPECT_EQ(essai.fichiers.Octets(log), avant);
}

TEST_F(Copies_De_Securite, un_disque_plein_ne_retient_pas_un_qso_mais_un_outil)
{
    Dossier_Plein plein(essai.fichiers.Chemin());
    Poste poste{{plein, essai.reglages, essai.horloge, essai.boites, essai.ecrans, essai.imprimante,
                 essai.telechargement, essai.vues_web},
                essai.etat,
                essai.ecran};
    EXPECT_TRUE(Ajoute_Ligne(poste, nouvelle, Diplome::DFCF));
    EXPECT_EQ(essai.fichiers.Octets(log), avant + suite);
    EXPECT_TRUE(essai.boites.questions.empty());
    essai.boites.reponses = {false};
    EXPECT_FALSE(Remplace_Ligne(poste, nouvelle, ligne));
    EXPECT_EQ(essai.boites.questions.size(), 1U);
}

TEST_F(Copies_De_Securite, un_log_absent_n_en_demande_pas)
{
    Ajoute_Ligne(essai.poste, nouvelle, Diplome::DMF);
    EXPECT_EQ(Copies(), QStringList());
    EXPECT_TRUE(essai.boites.questions.empty());
}

TEST_F(Copies_De_Securite, les_copies_en_trop_partent_et_rien_d_autre)
{
    QDir(essai.fichiers.Chemin()).mkdir(u"Copies"_s);
    for (int jour = 0; jour < 25; ++jour)
        essai.fichiers.Pose(
            Fichier_De_Copie({.nom = log, .moment = essai.horloge.utc.addDays(-200 - jour), .outil = Outil::Tri}), "a");
    essai.fichiers.Pose(u"Copies/lisez moi.txt"_s, "a");
    Reecrit(Outil::Tri, suite);
    EXPECT_EQ(Copies().size(), 21);
    EXPECT_TRUE(essai.fichiers.Existe(u"Copies/lisez moi.txt"_s));
}

TEST_F(Copies_De_Securite, revenir_rend_tous_les_octets_et_garde_ce_que_le_log_etait)
{
    const QByteArray mal_fait = "une ligne courte\n" + avant;
    essai.fichiers.Pose(log, mal_fait);
    Reecrit(Outil::Import, suite);
    essai.horloge.utc = essai.horloge.utc.addSecs(60);
    EXPECT_TRUE(Revient_A_La_Copie(essai.poste, Copies_De(essai.dossier, log).at(0)));
    EXPECT_EQ(essai.fichiers.Octets(log), mal_fait);
    const std::vector<Copie> copies = Copies_De(essai.dossier, log);
    ASSERT_EQ(copies.size(), 2U);
    EXPECT_EQ(copies[0].outil, Outil::Retour);
    EXPECT_EQ(essai.dossier.Octets(Fichier_De_Copie(copies[0])), suite);
    EXPECT_EQ(essai.ecran.appels, (std::vector<QString>{u"Active_Ind_A"_s, u"Selectionne_Derniere"_s}));
}
