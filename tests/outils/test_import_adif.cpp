#include "ADIF_Essai.h"
#include "outils/Export_ADIF.h"
#include "plateforme/Erreur_Execution.h"

#include "faux/Disque_Qui_Refuse.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr Choix_Import ajoute{.multi = false, .ajout = true};
constexpr Choix_Import remplace{.multi = false, .ajout = false};

struct Import : ::testing::Test {
    Poste_Essai essai;
    Dossier_Temporaire ailleurs;
    Ecran_Import_Faux ecran;

    void SetUp() override
    {
        essai.Ouvre(u"DFCF"_s);
        Pose_Log({Ancienne()});
    }
    static QString Ancienne() { return QSO({.ind = u"F1OLD"_s, .ref = u"01001"_s, .date = u"31/01/10"_s}); }
    /// The line of ADIF({}).
    static QString Nouvelle(const QString &ref = u"77001"_s)
    {
        return QSO({.dpt = u"77"_s,
                    .prenom = u"JEAN"_s,
                    .ref = ref,
                    .date = u"26/09/15"_s,
                    .heure = u"14:05"_s,
                    .rste = u"57"_s,
                    .nom = u"C. DE VAUX"_s,
                    .qsl = u"*"_s});
    }
    void Pose_Log(const std::vector<QString> &lignes) const
    {
        essai.fichiers.Pose(u"F9ZZY_DFCF.log"_s, Texte_Log(lignes).toLatin1());
    }
    [[nodiscard]] std::vector<QString> Log(const QString &nom = u"F9ZZY_DFCF.log"_s) const
    {
        return En_Lignes(QString::fromLatin1(essai.fichiers.Octets(nom)));
    }
    /// A file with the records behind a header, chosen in the dialogue.
    void Choisit(const QStringList &enregistrements, const QString &nom = u"F9ZZY_DFCF.adi"_s)
    {
        const QString texte = u"entete\r\n<EOH>\r\n" + enregistrements.join(u"\r\n"_s) + u"\r\n";
        ailleurs.Pose(nom, texte.toLatin1());
        ecran.chemin = ailleurs.Chemin(nom);
    }
    void Lance(const Choix_Import &choix) { Importe(essai.poste, choix, ecran); }
};

using Textes = std::vector<QString>;

} // namespace

TEST_F(Import, la_question_montre_ses_lignes_et_non_n_ouvre_rien)
{
    essai.boites.reponses = {false};
    Demande_Import(essai.poste);
    ASSERT_EQ(essai.boites.questions.size(), 1U);
    EXPECT_TRUE(essai.boites.questions[0].startsWith(
        u"Attention les champs suivants doivent etre renseignés :\n\n<STATE> Département (2 caractères)\n<SIG> "_s));
    EXPECT_TRUE(
        essai.boites.questions[0].endsWith(u"Nom de la réference activée (30 caractères maxi)\n\nContinuer ?\n"_s));
    EXPECT_EQ(essai.boites.questions[0].count(u'\n'), 10);
    EXPECT_TRUE(essai.ecrans.montres.empty());
}

TEST_F(Import, oui_ouvre_l_ecran)
{
    essai.boites.reponses = {true};
    Demande_Import(essai.poste);
    EXPECT_EQ(essai.ecrans.montres, std::vector{u"ADIF"_s});
}

TEST_F(Import, ajouter_met_les_lignes_derriere_celles_du_log)
{
    Choisit({ADIF({})});
    Lance(ajoute);
    EXPECT_EQ(Log(), (Textes{Ancienne(), Nouvelle()}));
    EXPECT_FALSE(essai.fichiers.Existe(u"F9ZZY_DFCF.bak"_s));
    EXPECT_TRUE(ecran.ferme);
    EXPECT_TRUE(essai.boites.messages.empty());
}

TEST_F(Import, remplacer_ne_laisse_que_les_lignes_du_fichier_et_pas_de_bak)
{
    Choisit({ADIF({})});
    Lance(remplace);
    EXPECT_EQ(Log(), Textes{Nouvelle()});
    EXPECT_EQ(essai.fichiers.Fichiers(), QStringList{u"F9ZZY_DFCF.log"_s});
    EXPECT_TRUE(ecran.ferme);
}

TEST_F(Import, a_la_fin_le_log_est_sans_double_et_trie_et_le_dernier_qso_choisi)
{
    Choisit({ADIF({.sig = u"77002"_s, .qso_date = u"20160101"_s}), ADIF({.sig = u"77001"_s, .qso_date = u"20150101"_s}),
             ADIF({.call = u"F6XYZ"_s, .sig = u"77002"_s, .qso_date = u"20160102"_s})});
    Lance(ajoute);
    const Textes log = Log();
    ASSERT_EQ(log.size(), 3U);
    EXPECT_TRUE(log[1].contains(u"77001     01/01/15"_s));
    EXPECT_TRUE(log[2].contains(u"77002     01/01/16"_s));
    EXPECT_TRUE(essai.ecran.selection.contains(u"77002"_s));
    EXPECT_EQ(essai.ecran.appels.back(), u"Selectionne_Derniere"_s);
}

TEST_F(Import, l_ecran_se_ferme_avant_que_le_log_se_recharge)
{
    Choisit({ADIF({})});
    std::size_t appels = 99;
    ecran.a_la_fermeture = [&] { appels = essai.ecran.appels.size(); };
    Lance(ajoute);
    EXPECT_EQ(appels, 0U);
}

TEST_F(Import, l_avance_va_jusqu_au_bout)
{
    Choisit({ADIF({}), ADIF({})});
    Lance(ajoute);
    EXPECT_EQ(ecran.total, 4U);
    EXPECT_EQ(ecran.avances, 4U);
}

TEST_F(Import, les_minuscules_et_les_octets_hauts_deviennent_des_capitales_de_la_page_de_code)
{
    ailleurs.Pose(u"DFCF.adi"_s, "\xEF\xBB\xBF<eoh>\n<call:5>f5abc <state:2>77 <name:6>jos\xE9\xE9 <sig:5>77001 "
                                 "<qso_date:8>20150926 <time_on:4>1405 <band:3>20m <mode:3>ssb <eor>\n");
    ecran.chemin = ailleurs.Chemin(u"DFCF.adi"_s);
    Lance(remplace);
    ASSERT_EQ(Log().size(), 1U);
    EXPECT_TRUE(Log()[0].startsWith(u"F5ABC        77   JOSÉÉ           77001     26/09/15 14:05 SSB 14 Mhz  XX "_s));
}

TEST_F(Import, un_fichier_sans_eoh_ne_donne_rien_mais_finit_comme_les_autres)
{
    ailleurs.Pose(u"DFCF.adi"_s, ADIF({}).toLatin1());
    ecran.chemin = ailleurs.Chemin(u"DFCF.adi"_s);
    Lance(ajoute);
    EXPECT_EQ(Log(), Textes{Ancienne()});
    EXPECT_TRUE(ecran.ferme);
    Lance(remplace);
    EXPECT_EQ(Log(), Textes{});
    EXPECT_FALSE(essai.fichiers.Existe(u"F9ZZY_DFCF.bak"_s));
}

TEST_F(Import, les_messages_de_chaque_enregistrement_s_affichent_un_a_un)
{
    Choisit({ADIF({.sig = u"77001"_s, .time_on = u"-"_s}), ADIF({.sig = u"77002"_s, .time_on = u"-"_s})});
    Lance(ajoute);
    EXPECT_EQ(essai.boites.messages,
              (Textes{u"Heure absente, remplacée par 00:00"_s, u"Heure absente, remplacée par 00:00"_s}));
}

TEST_F(Import, un_log_absent_est_cree_en_ajout)
{
    essai.dossier.Supprime(u"F9ZZY_DFCF.log"_s);
    Choisit({ADIF({})});
    Lance(ajoute);
    EXPECT_EQ(Log(), Textes{Nouvelle()});
}

TEST_F(Import, sans_fichier_choisi_le_remplacement_est_defait_et_l_ecran_reste)
{
    Lance(remplace);
    EXPECT_EQ(essai.boites.messages, Textes{u"selectionnez un fichier ou quitter"_s});
    EXPECT_EQ(Log(), Textes{Ancienne()});
    EXPECT_EQ(essai.fichiers.Fichiers(), QStringList{u"F9ZZY_DFCF.log"_s});
    EXPECT_FALSE(ecran.ferme);
    EXPECT_TRUE(essai.ecran.liste.empty());
}

TEST_F(Import, un_nom_sans_le_code_du_diplome_est_refuse_et_le_log_remis)
{
    Choisit({ADIF({})}, u"F9ZZY_dfcf.adi"_s);
    Lance(remplace);
    EXPECT_EQ(essai.boites.messages, Textes{u"Attention le nom du fichier ne comporte pas le nom du diplome DFCF"_s});
    EXPECT_EQ(Log(), Textes{Ancienne()});
    EXPECT_FALSE(essai.fichiers.Existe(u"F9ZZY_DFCF.bak"_s));
    EXPECT_EQ(essai.ecran.liste.size(), 1U);
    EXPECT_FALSE(ecran.ferme);
}

TEST_F(Import, le_code_peut_se_trouver_ailleurs_dans_le_chemin)
{
    ASSERT_TRUE(QDir(ailleurs.Chemin()).mkdir(u"mes DFCF"_s));
    Choisit({ADIF({})}, u"mes DFCF/log.adi"_s);
    Lance(ajoute);
    EXPECT_EQ(Log().size(), 2U);
}

TEST_F(Import, en_multi_le_nom_du_fichier_est_libre)
{
    Choisit({ADIF({.sig = u"DFCF-77001"_s}), ADIF({.sig = u"DMF-93013"_s})}, u"log.adi"_s);
    Lance({.multi = true, .ajout = true});
    EXPECT_EQ(Log(), (Textes{Ancienne(), Nouvelle()}));
}

TEST_F(Import, un_fichier_sans_sig_est_refuse_et_le_log_remis)
{
    Choisit({ADIF({.sig = u"-"_s})});
    Lance(remplace);
    EXPECT_EQ(essai.boites.messages, Textes{u"Attention le fichier ne contient pas d'information 'SIG'"_s});
    EXPECT_EQ(Log(), Textes{Ancienne()});
    EXPECT_FALSE(essai.fichiers.Existe(u"F9ZZY_DFCF.bak"_s));
    EXPECT_EQ(essai.ecran.liste.size(), 1U);
}

TEST_F(Import, en_ajout_un_refus_est_fatal_derriere_son_message)
{
    // Nothing was put aside, so nothing can be put back.
    EXPECT_THROW(Lance(ajoute), Erreur_Execution);
    Choisit({ADIF({})}, u"log.adi"_s);
    EXPECT_THROW(Lance(ajoute), Erreur_Execution);
    Choisit({ADIF({.sig = u"-"_s})});
    EXPECT_THROW(Lance(ajoute), Erreur_Execution);
    EXPECT_EQ(essai.boites.messages.size(), 3U);
    EXPECT_EQ(Log(), Textes{Ancienne()});
}

TEST_F(Import, un_fichier_qui_ne_s_ouvre_pas_est_fatal_et_le_bak_reste)
{
    ecran.chemin = ailleurs.Chemin(u"absent_DFCF.adi"_s);
    EXPECT_THROW(Lance(remplace), Erreur_Execution);
    EXPECT_EQ(Log(u"F9ZZY_DFCF.bak"_s), Textes{Ancienne()});
}

TEST_F(Import, un_echec_garde_les_lignes_d_avant_lui_et_le_bak)
{
    Choisit({ADIF({}), ADIF({.sig = u"77002"_s}), ADIF({.qso_date = u"-"_s}), ADIF({.sig = u"77003"_s})});
    EXPECT_THROW(Lance(remplace), Erreur_Execution);
    EXPECT_EQ(Log(), (Textes{Nouvelle(), Nouvelle(u"77002"_s)}));
    EXPECT_EQ(Log(u"F9ZZY_DFCF.bak"_s), Textes{Ancienne()});
    EXPECT_EQ(essai.boites.messages, Textes{u"Date absente, remplacée par 01/01/2000"_s});
    EXPECT_FALSE(ecran.ferme);
}

TEST_F(Import, un_echec_en_ajout_garde_le_log_et_les_lignes_d_avant_lui)
{
    Choisit({ADIF({}), ADIF({.qso_date = u"-"_s})});
    EXPECT_THROW(Lance(ajoute), Erreur_Execution);
    EXPECT_EQ(Log(), (Textes{Ancienne(), Nouvelle()}));
}

TEST_F(Import, un_bak_sans_log_est_retabli_avant_d_etre_remplace)
{
    essai.dossier.Copie(u"F9ZZY_DFCF.log"_s, u"F9ZZY_DFCF.bak"_s);
    essai.dossier.Supprime(u"F9ZZY_DFCF.log"_s);
    Lance(remplace);
    EXPECT_EQ(essai.boites.messages,
              (Textes{u"Une importation précédente a été interrompue, le log F9ZZY_DFCF.log a été rétabli"_s,
                      u"selectionnez un fichier ou quitter"_s}));
    EXPECT_EQ(Log(), Textes{Ancienne()});
}

TEST_F(Import, un_bak_sans_log_est_retabli_aussi_avant_un_ajout)
{
    essai.dossier.Copie(u"F9ZZY_DFCF.log"_s, u"F9ZZY_DFCF.bak"_s);
    essai.dossier.Supprime(u"F9ZZY_DFCF.log"_s);
    Choisit({ADIF({})});
    Lance(ajoute);
    EXPECT_EQ(Log(), (Textes{Ancienne(), Nouvelle()}));
    EXPECT_FALSE(essai.fichiers.Existe(u"F9ZZY_DFCF.bak"_s));
}

TEST_F(Import, un_bak_a_cote_d_un_log_ne_touche_pas_au_log)
{
    essai.fichiers.Pose(u"F9ZZY_DFCF.bak"_s, Texte_Log({QSO({.ind = u"F2BAK"_s, .ref = u"02002"_s})}).toLatin1());
    Choisit({ADIF({})});
    Lance(ajoute);
    EXPECT_EQ(Log(), (Textes{Ancienne(), Nouvelle()}));
    EXPECT_EQ(Log(u"F9ZZY_DFCF.bak"_s), Textes{QSO({.ind = u"F2BAK"_s, .ref = u"02002"_s})});
    EXPECT_TRUE(essai.boites.messages.empty());
}

TEST_F(Import, un_second_remplacement_apres_un_echec_garde_le_log_d_avant_le_premier)
{
    Choisit({ADIF({}), ADIF({.qso_date = u"-"_s})});
    EXPECT_THROW(Lance(remplace), Erreur_Execution);
    essai.boites.messages.clear();
    EXPECT_THROW(Lance(remplace), Erreur_Execution);
    ASSERT_FALSE(essai.boites.messages.empty());
    EXPECT_EQ(essai.boites.messages[0], u"Une importation précédente ne s'est pas terminée, le log d'avant elle est "
                                        u"gardé dans F9ZZY_DFCF_2.bak\njusqu'à la fin d'une importation"_s);
    EXPECT_EQ(Log(u"F9ZZY_DFCF_2.bak"_s), Textes{Ancienne()});
    EXPECT_EQ(Log(u"F9ZZY_DFCF.bak"_s), Textes{Nouvelle()});
    essai.fichiers.Pose(u"F9ZZY_DFCF.log"_s, "");
    EXPECT_THROW(Lance(remplace), Erreur_Execution);
    EXPECT_EQ(Log(u"F9ZZY_DFCF_2.bak"_s), Textes{Ancienne()});
    EXPECT_EQ(Log(u"F9ZZY_DFCF_3.bak"_s), Textes{Nouvelle()});
    Choisit({ADIF({})});
    Lance(remplace);
    EXPECT_EQ(essai.fichiers.Fichiers(), QStringList{u"F9ZZY_DFCF.log"_s});
}

TEST_F(Import, un_bak_dont_le_log_a_toutes_les_lignes_n_est_pas_garde)
{
    essai.fichiers.Pose(u"F9ZZY_DFCF.bak"_s, essai.fichiers.Octets(u"F9ZZY_DFCF.log"_s));
    Lance(remplace);
    EXPECT_EQ(essai.fichiers.Fichiers(), QStringList{u"F9ZZY_DFCF.log"_s});
    EXPECT_EQ(essai.boites.messages, Textes{u"selectionnez un fichier ou quitter"_s});
}

TEST_F(Import, un_departement_de_trois_caracteres_ne_laisse_rien_entre_les_colonnes)
{
    Choisit({ADIF({.state = u"971"_s, .sig = u"97101"_s})});
    Lance(remplace);
    ASSERT_EQ(Log().size(), 1U);
    EXPECT_EQ(Log()[0].sliced(13, 5), u"97   "_s);
    EXPECT_EQ(Log()[0].size(), colonnes_log::longueur);
}

TEST_F(Import, un_log_qui_ne_peut_pas_etre_ecrit_en_remplacement_reste_absent_a_cote_de_son_bak)
{
    Choisit({ADIF({})});
    std::optional<Disque_Qui_Refuse> disque;
    ecran.pendant_le_choix = [&] { disque.emplace(); };
    EXPECT_THROW(Lance(remplace), Erreur_Execution);
    disque.reset();
    ecran.pendant_le_choix = nullptr;
    EXPECT_EQ(essai.fichiers.Fichiers(), QStringList{u"F9ZZY_DFCF.bak"_s});
    Lance(remplace);
    EXPECT_EQ(Log(), Textes{Nouvelle()});
}

TEST_F(Import, sans_log_le_remplacement_est_fatal)
{
    essai.dossier.Supprime(u"F9ZZY_DFCF.log"_s);
    EXPECT_THROW(Lance(remplace), Erreur_Execution);
    EXPECT_TRUE(essai.fichiers.Fichiers().isEmpty());
}

TEST_F(Import, le_challenge_dfcf_va_dans_le_log_de_son_annee)
{
    essai.Ouvre(u"Ch_DFCF"_s);
    essai.etat.station.annee_ch_dfcf = u"2015"_s;
    essai.fichiers.Pose(u"F9ZZY_Ch_DFCF_2015.log"_s, "");
    Choisit({ADIF({.sig = u"77001A"_s})}, u"Ch_DFCF.adi"_s);
    Lance(ajoute);
    EXPECT_EQ(Log(u"F9ZZY_Ch_DFCF_2015.log"_s), Textes{Nouvelle(u"77001A"_s)});
    EXPECT_FALSE(essai.fichiers.Existe(u"F9ZZY_Ch_DFCF.log"_s));
}

TEST_F(Import, le_challenge_dmf_va_dans_un_log_sans_annee_et_la_liste_montre_celui_de_l_annee)
{
    essai.Ouvre(u"Ch_DMF"_s);
    essai.etat.station.annee_ch_dmf = u"2015"_s;
    essai.fichiers.Pose(u"F9ZZY_Ch_DMF_2015.log"_s, "");
    Choisit({ADIF({.sig = u"77001A"_s})}, u"Ch_DMF.adi"_s);
    Lance(ajoute);
    EXPECT_EQ(Log(u"F9ZZY_Ch_DMF.log"_s), Textes{Nouvelle(u"77001A"_s)});
    EXPECT_TRUE(essai.ecran.liste.empty());
}

TEST_F(Import, remplacer_un_challenge_sans_log_sans_annee_est_fatal)
{
    for (const QString &code : {u"Ch_DFCF"_s, u"Ch_DMF"_s}) {
        essai.Ouvre(code);
        essai.fichiers.Pose(u"F9ZZY_"_s + code + u"_2000.log", "");
        Choisit({ADIF({})}, code + u".adi");
        EXPECT_THROW(Lance(remplace), Erreur_Execution);
        EXPECT_EQ(Log(u"F9ZZY_"_s + code + u"_2000.log"), Textes{});
    }
}

TEST_F(Import, remplacer_le_challenge_dfcf_ajoute_a_son_annee_puis_ne_trouve_pas_de_bak)
{
    essai.Ouvre(u"Ch_DFCF"_s);
    essai.fichiers.Pose(u"F9ZZY_Ch_DFCF_2000.log"_s, Texte_Log({Ancienne()}).toLatin1());
    essai.fichiers.Pose(u"F9ZZY_Ch_DFCF.log"_s, "");
    Choisit({ADIF({})}, u"Ch_DFCF.adi"_s);
    EXPECT_THROW(Lance(remplace), Erreur_Execution);
    EXPECT_EQ(Log(u"F9ZZY_Ch_DFCF_2000.log"_s), (Textes{Ancienne(), Nouvelle()}));
    EXPECT_TRUE(essai.fichiers.Existe(u"F9ZZY_Ch_DFCF.bak"_s));
}

TEST_F(Import, un_diplome_sans_references_ne_garde_qu_une_ligne)
{
    essai.Ouvre(u"DPF"_s);
    essai.fichiers.Pose(u"F9ZZY_DPF.log"_s, "");
    Choisit({ADIF({.sig = u""_s, .qso_date = u"20150102"_s}), ADIF({.sig = u""_s, .qso_date = u"20150101"_s})},
            u"DPF.adi"_s);
    Lance(ajoute);
    EXPECT_EQ(Log(u"F9ZZY_DPF.log"_s).size(), 1U);
}

TEST_F(Import, exporter_puis_importer_rend_le_log)
{
    // Fields that the export keeps: known bands, upper case, a department, this century, one line a reference, in
    // order.
    Logs_Au_Hasard hasard(7);
    Textes lignes;
    for (int i = 0; i < 300; ++i) {
        Champs_QSO champs;
        champs.ind = u"F"_s + hasard.Deux_Chiffres(99);
        champs.dpt = hasard.Deux_Chiffres(95);
        champs.prenom = hasard.Nombre(1) ? u"ANDRÉ"_s : QString();
        champs.ref = u"770"_s + QString::number(100 + i);
        champs.date = hasard.Deux_Chiffres(27) + u'/' + hasard.Deux_Chiffres(11) + u'/' + hasard.Deux_Chiffres(49);
        champs.heure = hasard.Deux_Chiffres(23) + u':' + hasard.Deux_Chiffres(59);
        champs.nom = hasard.Nombre(1) ? u"C. DE L'ÎLE"_s : QString();
        champs.qsl = hasard.Nombre(1) ? u"*"_s : u" "_s;
        lignes.push_back(QSO(champs));
    }
    Pose_Log(lignes);
    Export_ADIF(essai.poste);
    ecran.chemin = essai.fichiers.Chemin(u"F9ZZY_DFCF.adi"_s);
    Lance(remplace);
    Textes importees = Log();
    EXPECT_EQ(importees.size(), lignes.size());
    EXPECT_TRUE(std::is_permutation(importees.begin(), importees.end(), lignes.begin(), lignes.end()));
}
