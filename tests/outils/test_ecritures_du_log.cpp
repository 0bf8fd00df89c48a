#include "ADIF_Essai.h"
#include "Poste_Compte.h"
#include "outils/Fusion_Activite.h"
#include "outils/Fusion_Trelune.h"
#include "outils/Supprime_Doubles.h"
#include "outils/Trie_Log.h"
#include "plateforme/Erreur_Execution.h"

#include "faux/Disque_Qui_Refuse.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr Choix_Import ajoute{.multi = false, .ajout = true};
constexpr Choix_Import remplace{.multi = false, .ajout = false};

struct Ecritures_Du_Log : ::testing::Test {
    Poste_Compte essai;
    Dossier_Temporaire ailleurs;
    Ecran_Import_Faux ecran;

    void Ouvre(const QString &code, const std::vector<QString> &lignes, const QString &annee = {})
    {
        essai.Ouvre(code);
        log = u"F9ZZY_"_s + code + annee + u".log";
        Pose(log, lignes);
    }
    void Pose(const QString &nom, const std::vector<QString> &lignes) const
    {
        essai.fichiers.Pose(nom, Texte_Log(lignes).toLatin1());
    }
    void Lance(const Choix_Import &choix, const QStringList &enregistrements)
    {
        const QString nom = essai.ecran.dip_a + u".adi";
        ailleurs.Pose(nom, (u"<EOH>\r\n" + enregistrements.join(u"\r\n"_s) + u"\r\n").toLatin1());
        ecran.chemin = ailleurs.Chemin(nom);
        Importe(essai.compteur, choix, ecran);
    }
    [[nodiscard]] std::vector<QString> Lignes() const
    {
        return En_Lignes(QString::fromLatin1(essai.fichiers.Octets(log)));
    }

    QString log;
};

/// Three records with a double among them, in no order of time.
const QStringList trois = {ADIF({.sig = u"77002"_s, .qso_date = u"20160101"_s}), ADIF({.sig = u"77001"_s}),
                           ADIF({.sig = u"77001"_s})};

} // namespace

TEST_F(Ecritures_Du_Log, un_import_qui_ajoute_lit_et_ecrit_le_log_une_fois_puis_le_montre)
{
    Ouvre(u"DFCF"_s, {QSO({.ref = u"01001"_s, .date = u"31/01/20"_s})});
    Lance(ajoute, trois);
    EXPECT_EQ(Lignes().size(), 3U);
    EXPECT_TRUE(Lignes()[2].contains(u"01001"_s));
    EXPECT_EQ(essai.compte.ecrits, QStringList{log});
    EXPECT_EQ(essai.compte.lus.count(log), 2);
}

TEST_F(Ecritures_Du_Log, un_import_qui_remplace_ecrit_le_log_une_fois)
{
    Ouvre(u"DFCF"_s, {QSO({.ref = u"01001"_s})});
    Lance(remplace, trois);
    EXPECT_EQ(Lignes().size(), 2U);
    EXPECT_EQ(essai.compte.ecrits, QStringList{log});
    EXPECT_EQ(essai.compte.lus.count(log), 1);
}

TEST_F(Ecritures_Du_Log, un_log_sans_fin_de_ligne_ne_joint_pas_ses_qso)
{
    Ouvre(u"DFCF"_s, {});
    essai.fichiers.Pose(log, QSO({.ref = u"01001"_s, .date = u"31/01/10"_s}).toLatin1());
    Lance(ajoute, {ADIF({})});
    ASSERT_EQ(Lignes().size(), 2U);
    EXPECT_TRUE(Lignes()[0].contains(u"01001"_s));
    EXPECT_TRUE(Lignes()[1].contains(u"77001"_s));
}

TEST_F(Ecritures_Du_Log, des_references_anciennes_du_fichier_passent_a_leur_forme_en_une_ecriture)
{
    Ouvre(u"FFF"_s, {QSO({.ref = u"0051"_s, .date = u"31/01/20"_s})});
    bool dit_trop_tot = true;
    ecran.a_la_fermeture = [&] { dit_trop_tot = !essai.boites.messages.empty(); };
    Lance(ajoute, {ADIF({.sig = u"51"_s}), ADIF({.sig = u"7"_s})});
    ASSERT_EQ(Lignes().size(), 2U);
    EXPECT_TRUE(Lignes()[0].contains(u"0007      26/09/15"_s) || Lignes()[0].contains(u"0051      26/09/15"_s));
    EXPECT_EQ(essai.compte.ecrits, QStringList{log});
    EXPECT_EQ(essai.boites.messages,
              std::vector{u"Mettez à jour la liste FFF (Outils puis Mise à jour des références FFF)"_s});
    EXPECT_FALSE(dit_trop_tot);
}

TEST_F(Ecritures_Du_Log, un_import_que_le_disque_refuse_en_ajout_laisse_le_log_comme_il_etait)
{
    const QString ancienne = QSO({.ref = u"01001"_s});
    Ouvre(u"DFCF"_s, {ancienne});
    std::optional<Disque_Qui_Refuse> disque;
    ecran.pendant_le_choix = [&] { disque.emplace(); };
    EXPECT_THROW(Lance(ajoute, trois), Erreur_Execution);
    disque.reset();
    EXPECT_EQ(Lignes(), std::vector{ancienne});
    EXPECT_FALSE(ecran.ferme);
}

TEST_F(Ecritures_Du_Log, le_challenge_dmf_ecrit_une_fois_le_log_de_l_import_et_une_fois_celui_de_l_annee)
{
    Ouvre(u"Ch_DMF"_s, {QSO({.ref = u"77002A"_s}), QSO({.ref = u"77002A"_s})}, u"_2000"_s);
    Lance(ajoute, trois);
    EXPECT_EQ(essai.compte.ecrits, (QStringList{u"F9ZZY_Ch_DMF.log"_s, log}));
    EXPECT_EQ(Lignes().size(), 1U);
    EXPECT_EQ(En_Lignes(QString::fromLatin1(essai.fichiers.Octets(u"F9ZZY_Ch_DMF.log"_s))).size(), 3U);
}

TEST_F(Ecritures_Du_Log, une_fusion_ecrit_le_challenge_une_fois)
{
    Ouvre(u"Ch_DFCF"_s, {}, u"_2017"_s);
    essai.etat.station.annee_ch_dfcf = u"2017"_s;
    Pose(u"F9ZZY_DFCF.log"_s,
         {QSO({.ref = u"77002"_s, .date = u"02/02/17"_s}), QSO({.ref = u"77001"_s, .date = u"01/02/17"_s}),
          QSO({.ref = u"77001"_s, .date = u"03/02/17"_s})});
    Fusion_Activite(essai.compteur, Diplome::DFCF);
    EXPECT_EQ(Lignes().size(), 2U);
    EXPECT_EQ(essai.compte.ecrits, QStringList{log});
    EXPECT_EQ(essai.compte.lus.count(log), 2);
}

TEST_F(Ecritures_Du_Log, une_fusion_de_trelune_ecrit_le_challenge_une_fois)
{
    Ouvre(u"Ch_DMF"_s, {QSO({.ref = u"77001A"_s})}, u"_2000"_s);
    essai.reglages.trelune[{u"Setup"_s, u"Chemin Repertoire"_s}] = ailleurs.Chemin();
    ailleurs.Pose(u"F9ZZY.log"_s, "");
    Fusion_Trelune(essai.compteur);
    EXPECT_EQ(Lignes().size(), 0U);
    EXPECT_EQ(essai.compte.ecrits, QStringList{log});
}

TEST_F(Ecritures_Du_Log, le_tri_et_les_doubles_seuls_ecrivent_le_log_une_fois)
{
    Ouvre(u"FFF"_s, {QSO({.ref = u"51"_s, .date = u"02/01/15"_s}), QSO({.ref = u"0051"_s, .date = u"01/01/15"_s})});
    Trie_Log(essai.compteur);
    EXPECT_EQ(essai.compte.ecrits, QStringList{log});
    Supprime_Doubles(essai.compteur);
    EXPECT_EQ(essai.compte.ecrits, (QStringList{log, log}));
    EXPECT_EQ(Lignes().size(), 1U);
    EXPECT_EQ(essai.boites.messages.size(), 1U);
}
