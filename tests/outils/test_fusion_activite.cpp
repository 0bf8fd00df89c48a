#include "Log_Essai.h"
#include "outils/Fusion_Activite.h"
#include "plateforme/Erreur_Execution.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

using namespace Qt::StringLiterals;

namespace {

using Textes = std::vector<QString>;

struct Fusion_D_Activite : ::testing::Test {
    Poste_Essai essai;

    void SetUp() override
    {
        Ouvre(u"Ch_DFCF"_s);
        essai.etat.station.annee_ch_dfcf = u"2017"_s;
        essai.etat.station.annee_ch_dmf = u"2018"_s;
        Pose(u"F9ZZY_Ch_DFCF_2017.log"_s, {});
        Pose(u"F9ZZY_DFCF.log"_s, {});
    }
    void Ouvre(const QString &code) { essai.Ouvre(code); }
    void Pose(const QString &nom, const Textes &lignes) const
    {
        essai.fichiers.Pose(nom, Texte_Log(lignes).toLatin1());
    }
    [[nodiscard]] Textes Log(const QString &nom = u"F9ZZY_Ch_DFCF_2017.log"_s) const
    {
        return En_Lignes(QString::fromLatin1(essai.fichiers.Octets(nom)));
    }
};

} // namespace

TEST_F(Fusion_D_Activite, les_qso_de_l_annee_arrivent_avec_la_lettre_a)
{
    Pose(u"F9ZZY_DFCF.log"_s,
         {QSO({.ref = u"77001"_s, .date = u"01/02/17"_s}), QSO({.ref = u"77002"_s, .date = u"01/02/16"_s}),
          QSO({.ref = u"77003R"_s, .date = u"02/02/17"_s})});
    Fusion_Activite(essai.poste, Diplome::DFCF);
    EXPECT_EQ(Log(), (Textes{QSO({.ref = u"77001A"_s, .date = u"01/02/17"_s}),
                             QSO({.ref = u"77003A"_s, .date = u"02/02/17"_s})}));
    EXPECT_EQ(essai.boites.messages,
              Textes{u"Attention toutes les références importées sont uniquement des Activations 'A'\n"
                     u"N'oubliez pas d'enregistrer toutes les réactivations 'R'"_s});
}

TEST_F(Fusion_D_Activite, un_site_deja_dans_le_challenge_garde_sa_ligne)
{
    const QString ancienne = QSO({.ind = u"F1OLD"_s, .ref = u"77001R"_s, .date = u"05/05/17"_s, .qsl = u"*"_s});
    Pose(u"F9ZZY_Ch_DFCF_2017.log"_s, {ancienne, QSO({.ind = u"F2OLD"_s, .ref = u"77001A"_s, .date = u"01/01/17"_s})});
    Pose(u"F9ZZY_DFCF.log"_s, {QSO({.ref = u"77001"_s, .date = u"01/02/17"_s})});
    Fusion_Activite(essai.poste, Diplome::DFCF);
    // The first of the two is taken, the other one has no line in the source that asks for it.
    EXPECT_EQ(Log(), Textes{ancienne});
}

TEST_F(Fusion_D_Activite, une_ligne_du_challenge_sans_qso_de_l_annee_s_en_va)
{
    Pose(u"F9ZZY_Ch_DFCF_2017.log"_s, {QSO({.ref = u"93001R"_s, .date = u"05/05/17"_s})});
    Pose(u"F9ZZY_DFCF.log"_s,
         {QSO({.ref = u"77001"_s, .date = u"01/02/17"_s}), QSO({.ref = u"93001"_s, .date = u"01/02/15"_s})});
    Fusion_Activite(essai.poste, Diplome::DFCF);
    EXPECT_EQ(Log(), Textes{QSO({.ref = u"77001A"_s, .date = u"01/02/17"_s})});
}

TEST_F(Fusion_D_Activite, les_doubles_par_reference_s_en_vont_et_le_log_est_trie)
{
    Pose(u"F9ZZY_DFCF.log"_s,
         {QSO({.ref = u"77001"_s, .date = u"20/02/17"_s}), QSO({.ref = u"77001"_s, .date = u"02/08/17"_s}),
          QSO({.ref = u"77000"_s, .date = u"01/05/17"_s})});
    Fusion_Activite(essai.poste, Diplome::DFCF);
    EXPECT_EQ(Log(), (Textes{QSO({.ref = u"77000A"_s, .date = u"01/05/17"_s}),
                             QSO({.ref = u"77001A"_s, .date = u"02/08/17"_s})}));
}

TEST_F(Fusion_D_Activite, le_challenge_dmf_prend_le_log_dmf_et_son_annee)
{
    Ouvre(u"Ch_DMF"_s);
    Pose(u"F9ZZY_Ch_DMF_2018.log"_s, {});
    Pose(u"F9ZZY_DMF.log"_s,
         {QSO({.ref = u"77001"_s, .date = u"01/02/18"_s}), QSO({.ref = u"77002"_s, .date = u"01/02/17"_s})});
    Fusion_Activite(essai.poste, Diplome::DMF);
    EXPECT_EQ(Log(u"F9ZZY_Ch_DMF_2018.log"_s), Textes{QSO({.ref = u"77001A"_s, .date = u"01/02/18"_s})});
}

TEST_F(Fusion_D_Activite, a_la_fin_la_saisie_est_au_repos_et_le_dernier_qso_choisi)
{
    Pose(u"F9ZZY_DFCF.log"_s, {QSO({.ref = u"77001"_s, .date = u"01/02/17"_s})});
    Fusion_Activite(essai.poste, Diplome::DFCF);
    ASSERT_GE(essai.ecran.appels.size(), 2U);
    EXPECT_EQ(essai.ecran.appels[essai.ecran.appels.size() - 2], u"Efface_Saisie"_s);
    EXPECT_EQ(essai.ecran.appels.back(), u"Selectionne_Derniere"_s);
    EXPECT_EQ(essai.ecran.liste.size(), 1U);
}

TEST_F(Fusion_D_Activite, un_log_manquant_est_fatal_et_rien_n_est_ecrit)
{
    const QString ancienne = QSO({.ref = u"77001R"_s, .date = u"05/05/17"_s});
    Pose(u"F9ZZY_Ch_DFCF_2017.log"_s, {ancienne});
    essai.dossier.Supprime(u"F9ZZY_DFCF.log"_s);
    EXPECT_THROW(Fusion_Activite(essai.poste, Diplome::DFCF), Erreur_Execution);
    EXPECT_EQ(Log(), Textes{ancienne});
    Pose(u"F9ZZY_DFCF.log"_s, {QSO({.ref = u"77001"_s, .date = u"05/05/17"_s})});
    essai.dossier.Supprime(u"F9ZZY_Ch_DFCF_2017.log"_s);
    EXPECT_THROW(Fusion_Activite(essai.poste, Diplome::DFCF), Erreur_Execution);
    EXPECT_FALSE(essai.fichiers.Existe(u"F9ZZY_Ch_DFCF_2017.log"_s));
}

TEST_F(Fusion_D_Activite, un_autre_diplome_dans_dip_a_est_refuse_et_rien_n_est_ecrit)
{
    const QString ancienne = QSO({.ref = u"77009R"_s, .date = u"05/05/18"_s});
    Pose(u"F9ZZY_Ch_DMF_2018.log"_s, {ancienne});
    Pose(u"F9ZZY_DFCF.log"_s, {QSO({.ref = u"77001"_s, .date = u"01/02/17"_s})});
    for (const QString &texte : {u"Ch_DMF"_s, u"WLF"_s, u""_s}) {
        essai.ecran.dip_a = texte;
        essai.ecran.appels.clear();
        essai.boites.messages.clear();
        Fusion_Activite(essai.poste, Diplome::DFCF);
        EXPECT_EQ(essai.boites.messages, Textes{u"Selectionnez un diplome"_s});
        EXPECT_EQ(essai.ecran.appels, Textes{u"Va_A_Dip_A"_s});
        EXPECT_EQ(Log(), Textes{});
        EXPECT_EQ(Log(u"F9ZZY_Ch_DMF_2018.log"_s), Textes{ancienne});
    }
}

TEST(Activations, comme_une_recherche_ligne_par_ligne)
{
    Logs_Au_Hasard hasard(31);
    for (int essai = 0; essai < 100; ++essai) {
        const Lignes_Texte source(Texte_Log(hasard.Log(80)));
        const Lignes_Texte challenge(Texte_Log(hasard.Log(80)));
        const QString annee = hasard.Deux_Chiffres(99);
        Textes attendues;
        for (const QStringView ligne : source) {
            if (ligne.sliced(50, 2) != annee)
                continue;
            const auto ancienne = std::find_if(challenge.begin(), challenge.end(), [&](QStringView autre) {
                return autre.sliced(34, 5) == ligne.sliced(34, 5);
            });
            attendues.push_back(ancienne == challenge.end() ? ligne.first(39) + u'A' + ligne.sliced(40)
                                                            : ancienne->toString());
        }
        ASSERT_EQ(Activations(source, challenge, annee), attendues);
    }
}
