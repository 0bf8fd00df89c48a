#include "Log_Essai.h"
#include "outils/Fusion_Trelune.h"
#include "plateforme/Erreur_Execution.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using Textes = std::vector<QString>;

/// One QSO of the sibling's log, in its columns.
struct QSO_Trelune {
    QString date = u"12/05/17"_s;
    QString ind = u"F5ABC"_s;
    QString site = u"77001"_s;
    QString genre = u" 1"_s;
    QString nom = u"de Vaux"_s;
    QString qsl = u" "_s;
};

QString Ligne(const QSO_Trelune &qso)
{
    QString ligne(200, u'.');
    const auto pose = [&](qsizetype colonne, qsizetype largeur, const QString &texte) {
        ligne.replace(colonne - 1, largeur, texte.leftJustified(largeur));
    };
    pose(1, 8, qso.date);
    pose(11, 12, qso.ind);
    pose(23, 5, u"14:48"_s);
    pose(37, 2, u"77"_s);
    pose(50, 7, u"14 Mhz"_s);
    pose(60, 3, u"SSB"_s);
    pose(69, 3, u"59"_s);
    pose(79, 3, u"57"_s);
    pose(qso.genre.contains(u'2') ? 93 : 94, 5, qso.site);
    pose(111, 15, u"JEAN"_s);
    pose(135, 1, qso.qsl);
    pose(165, 2, qso.genre);
    pose(169, 30, qso.nom);
    return ligne;
}

/// The log line that the sibling's default QSO becomes.
QString Attendue(const QString &ref, const QString &nom, const QString &qsl = u" "_s)
{
    return QSO({.dpt = u"77"_s,
                .prenom = u"JEAN"_s,
                .ref = ref,
                .date = u"12/05/17"_s,
                .rstr = u"57"_s,
                .rste = u"59"_s,
                .nom = nom,
                .qsl = qsl});
}

struct Fusion_De_Trelune : ::testing::Test {
    Poste_Essai essai;
    Dossier_Temporaire trelune;

    void SetUp() override
    {
        essai.Ouvre(u"Ch_DFCF"_s);
        essai.etat.station.annee_ch_dfcf = u"2017"_s;
        essai.etat.station.annee_ch_dmf = u"2017"_s;
        essai.reglages.trelune[{u"Setup"_s, u"Chemin Repertoire"_s}] = trelune.Chemin();
        essai.fichiers.Pose(u"Liste_DFCF.csv"_s, "Rev 001 du 01/01/12;;;;;\r\n77-001;Ch\xE2teau de Vaux;;;Vaux;77\r\n");
        Pose({});
    }
    void Pose(const Textes &lignes) const
    {
        const QString code = Code(essai.etat.station.diplome).toString();
        essai.fichiers.Pose(u"F9ZZY_"_s + code + u"_2017.log", Texte_Log(lignes).toLatin1());
    }
    void Pose_Trelune(const std::vector<QSO_Trelune> &qsos) const
    {
        Textes lignes;
        for (const QSO_Trelune &qso : qsos)
            lignes.push_back(Ligne(qso));
        trelune.Pose(u"F9ZZY.log"_s, Texte_Log(lignes).toLatin1());
    }
    [[nodiscard]] Textes Log() const
    {
        const QString code = Code(essai.etat.station.diplome).toString();
        return En_Lignes(QString::fromLatin1(essai.fichiers.Octets(u"F9ZZY_"_s + code + u"_2017.log")));
    }
    Textes Fusionne(const std::vector<QSO_Trelune> &qsos)
    {
        Pose_Trelune(qsos);
        Fusion_Trelune(essai.poste);
        return Log();
    }
};

} // namespace

TEST_F(Fusion_De_Trelune, un_qso_de_l_annee_prend_le_nom_de_la_liste_en_capitales)
{
    EXPECT_EQ(Fusionne({{}}), Textes{Attendue(u"77001A"_s, u"C.CHÂTEAU DE VAUX"_s)});
    EXPECT_EQ(essai.boites.messages.size(), 1U);
    EXPECT_TRUE(essai.boites.messages[0].endsWith(u"même si ce sont des réactivations\nDans le cas d'une réactivation "
                                                  u"pensez à renommer la référence en remplacant la lettre 'A' par la "
                                                  u"lettre 'R' "_s));
}

TEST_F(Fusion_De_Trelune, une_reference_hors_liste_a_le_nom_c)
{
    EXPECT_EQ(Fusionne({{.site = u"99999"_s}}), Textes{Attendue(u"99999A"_s, u"C."_s)});
}

TEST_F(Fusion_De_Trelune, un_qso_d_une_autre_annee_ou_d_un_autre_genre_n_est_pas_pris)
{
    EXPECT_EQ(Fusionne({{.date = u"12/05/16"_s}, {.genre = u" 2"_s}, {.genre = u"  "_s}, {.genre = u"11"_s}}),
              Textes{});
}

TEST_F(Fusion_De_Trelune, le_genre_se_lit_comme_un_nombre)
{
    EXPECT_EQ(Fusionne({{.site = u"77001"_s, .genre = u"1 "_s}, {.site = u"77002"_s, .genre = u"01"_s}}).size(), 2U);
}

TEST_F(Fusion_De_Trelune, une_ligne_courte_du_log_voisin_ne_compte_pas)
{
    trelune.Pose(u"F9ZZY.log"_s, "\r\n12/05/17\r\n");
    Fusion_Trelune(essai.poste);
    EXPECT_EQ(Log(), Textes{});
}

TEST_F(Fusion_De_Trelune, les_etats_3_et_4_tiennent_la_qsl)
{
    const Textes log = Fusionne({{.site = u"77002"_s, .qsl = u"2"_s},
                                 {.site = u"77003"_s, .qsl = u"3"_s},
                                 {.site = u"77004"_s, .qsl = u"4"_s}});
    EXPECT_EQ(log, (Textes{Attendue(u"77002A"_s, u"C."_s), Attendue(u"77003A"_s, u"C."_s, u"*"_s),
                           Attendue(u"77004A"_s, u"C."_s, u"*"_s)}));
}

TEST_F(Fusion_De_Trelune, un_site_deja_dans_le_challenge_garde_lettre_nom_et_qsl)
{
    const QString ancienne = QSO({.ind = u"F1OLD"_s, .ref = u"77001R"_s, .nom = u"C. A MOI"_s, .qsl = u"*"_s});
    Pose({ancienne, QSO({.ref = u"77001A"_s, .nom = u"AUTRE"_s})});
    EXPECT_EQ(Fusionne({{}}), Textes{ancienne});
}

TEST_F(Fusion_De_Trelune, une_ligne_sans_nom_de_ch_dfcf_cede_la_place)
{
    Pose({QSO({.ref = u"77001R"_s})});
    EXPECT_EQ(Fusionne({{}}), Textes{Attendue(u"77001A"_s, u"C.CHÂTEAU DE VAUX"_s)});
}

TEST_F(Fusion_De_Trelune, une_ligne_sans_nom_de_ch_dmf_reste)
{
    essai.Ouvre(u"Ch_DMF"_s);
    Pose({QSO({.ref = u"77001R"_s})});
    EXPECT_EQ(Fusionne({{.genre = u" 2"_s}}), Textes{QSO({.ref = u"77001R"_s})});
}

TEST_F(Fusion_De_Trelune, ch_dmf_prend_sa_reference_et_le_nom_du_log_voisin)
{
    essai.Ouvre(u"Ch_DMF"_s);
    Pose({});
    essai.dossier.Supprime(u"Liste_DFCF.csv"_s);
    EXPECT_EQ(Fusionne({{.genre = u" 2"_s, .nom = u"M. de l'écluse"_s}, {.genre = u" 1"_s}}),
              Textes{Attendue(u"77001A"_s, u"M. DE L'ÉCLUSE"_s)});
}

TEST_F(Fusion_De_Trelune, une_ligne_du_challenge_absente_du_log_voisin_s_en_va)
{
    Pose({QSO({.ref = u"93001R"_s, .nom = u"C. A MOI"_s})});
    EXPECT_EQ(Fusionne({{}}).size(), 1U);
    EXPECT_FALSE(Log()[0].contains(u"93001"_s));
}

TEST_F(Fusion_De_Trelune, le_log_est_sans_double_et_trie_et_la_saisie_au_repos)
{
    const Textes log =
        Fusionne({{.date = u"20/05/17"_s, .site = u"77002"_s}, {.ind = u"F9AAA"_s}, {.ind = u"F1AAA"_s}});
    ASSERT_EQ(log.size(), 2U);
    // Of two QSOs that differ in their stations alone the one stays that the sorted list had first.
    EXPECT_TRUE(log[0].startsWith(u"F1AAA "_s));
    EXPECT_TRUE(log[1].contains(u"77002A"_s));
    EXPECT_EQ(essai.ecran.appels[essai.ecran.appels.size() - 2], u"Efface_Saisie"_s);
    EXPECT_EQ(essai.ecran.appels.back(), u"Selectionne_Derniere"_s);
}

TEST_F(Fusion_De_Trelune, un_autre_diplome_dans_dip_a_ne_change_pas_de_log)
{
    essai.etat.station.annee_ch_dmf = u"2018"_s;
    const Textes moulins{QSO({.ref = u"77009R"_s, .nom = u"M. A MOI"_s})};
    essai.fichiers.Pose(u"F9ZZY_Ch_DMF_2018.log"_s, Texte_Log(moulins).toLatin1());
    const QString ancienne = QSO({.ref = u"77001R"_s, .nom = u"C. A MOI"_s});
    Pose({ancienne});
    essai.ecran.dip_a = u"Ch_DMF"_s;
    EXPECT_EQ(Fusionne({{.site = u"77001"_s}}), Textes{ancienne});
    EXPECT_EQ(En_Lignes(QString::fromLatin1(essai.fichiers.Octets(u"F9ZZY_Ch_DMF_2018.log"_s))), moulins);
    EXPECT_EQ(essai.ecran.liste[0], ancienne);
}

TEST_F(Fusion_De_Trelune, ce_qui_manque_est_fatal_derriere_le_message_et_rien_n_est_ecrit)
{
    const Textes anciennes{QSO({.ref = u"93001R"_s})};
    Pose(anciennes);
    EXPECT_THROW(Fusion_Trelune(essai.poste), Erreur_Execution);
    essai.reglages.trelune.clear();
    EXPECT_THROW(Fusion_Trelune(essai.poste), Erreur_Execution);
    essai.reglages.trelune[{u"Setup"_s, u"Chemin Repertoire"_s}] = trelune.Chemin();
    Pose_Trelune({{}});
    essai.dossier.Supprime(u"Liste_DFCF.csv"_s);
    EXPECT_THROW(Fusion_Trelune(essai.poste), Erreur_Execution);
    EXPECT_EQ(essai.boites.messages.size(), 3U);
    EXPECT_EQ(Log(), anciennes);
}
