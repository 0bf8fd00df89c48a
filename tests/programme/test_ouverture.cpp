#include "programme/Programme_Essai.h"

#include "faux/QSO_Essai.h"
#include "programme/Repertoire.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

class Ouverture : public Programme_Essai {
protected:
    /// Chooses the code and presses Enter; gives the texts of the boxes that it brings.
    std::vector<QString> Choisit(const QString &code)
    {
        return conduite::Repond({}, [&] {
            Controle_Nomme<QComboBox>(u"Dip_A"_s).setCurrentText(code);
            conduite::Entree(Controle_Nomme(u"Dip_A"_s));
        });
    }
};

} // namespace

TEST_F(Ouverture, apres_dpf_dfcf_laisse_le_mot_ville)
{
    Installe_Station(u"DFCF"_s);
    Ouvre();
    Choisit(u"DPF"_s);
    EXPECT_EQ(Texte(Controle::Nom_L), u"Ville"_s);
    EXPECT_EQ(Texte(Controle::Type_Ref), u""_s);
    Choisit(u"DFCF"_s);
    EXPECT_EQ(Texte(Controle::Nom_L), u"Ville"_s);
    EXPECT_EQ(Texte(Controle::Frame3), u"Diplome des Forts et Chateaux de France"_s);
    EXPECT_EQ(Texte(Controle::Detail), u"Detail référence"_s);
    Choisit(u"DMF"_s);
    EXPECT_EQ(Texte(Controle::Nom_L), u"Nom activité"_s);
    EXPECT_EQ(Texte(Controle::Detail), u""_s);
}

TEST_F(Ouverture, une_liste_fff_avant_la_revision_17_previent_et_s_ouvre)
{
    Installe_Station(u"DFCF"_s);
    Regle(section, u"Revision_Liste_WFF"_s, u"Rev 016 du 01/01/16"_s);
    Ouvre();
    EXPECT_EQ(Choisit(u"FFF"_s), std::vector<QString>{u"Attention vous devez mettre à jour la liste FFF\nAllez dans "
                                                      u"'Outils' et 'Mise à jour des references FFF'"_s});
    EXPECT_EQ(Texte(Controle::Frame3), u"Diplome France Flora Fauna"_s);
    EXPECT_EQ(Texte(Controle::Type_Ref), u"FFF -"_s);
    Regle(section, u"Revision_Liste_WFF"_s, u"Rev 017 du 01/01/16"_s);
    programme.reset();
    Ouvre();
    EXPECT_TRUE(Choisit(u"FFF"_s).empty());
}

TEST_F(Ouverture, un_challenge_sans_annee_la_demande_d_abord)
{
    Installe_Station(u"DFCF"_s);
    Ouvre();
    std::vector<QString> messages;
    conduite::Pendant_Modal(
        u"Select_Annee"_s, [&] { messages = Choisit(u"Ch_DFCF"_s); },
        [](QWidget &annee) {
            auto *champ = conduite::Trouve<QLineEdit>(annee, u"New_Annee"_s);
            champ->selectAll();
            conduite::Tape(*champ, u"2026"_s);
            conduite::Entree(*champ);
            conduite::Entree(*conduite::Trouve(annee, u"Validation"_s));
        });
    EXPECT_EQ(Texte(Controle::Frame3), u"Challenge DFCF année 2026"_s);
    EXPECT_EQ(messages, std::vector<QString>{u" Lettres qui doivent suivent la référence :\n\n"
                                             u" - A - Activation contactée et validée\n"
                                             u" - R - Réactivation contactée et validée\n"
                                             u" - C - Activeur de Chateau validé\n"
                                             u" - B - Activeur de Chateau réactivé et validé\n"_s});
    EXPECT_TRUE(fichiers.Existe(u"F9ZZY_Ch_DFCF_2026.log"_s));
    EXPECT_EQ(Texte(Controle::Label1), u"Référence (X)"_s);
    EXPECT_EQ(Texte(Controle::Type_Ref), u"DFCF"_s);
    EXPECT_EQ(Texte(Controle::Detail), u"Mise a jour via Vorlain"_s);
}

TEST_F(Ouverture, un_choix_d_annee_referme_sans_choix_n_ouvre_pas_le_challenge)
{
    Installe_Station(u"DFCF"_s);
    Ouvre();
    Choisit(u"DFCF"_s);
    conduite::Pendant_Modal(
        u"Select_Annee"_s, [&] { Choisit(u"Ch_DMF"_s); }, [](QWidget &annee) { annee.close(); });
    EXPECT_EQ(Texte(Controle::Frame3), u"Diplome des Forts et Chateaux de France"_s);
    EXPECT_TRUE(Ecran().isVisible());
}

TEST_F(Ouverture, sans_le_programme_frere_detail_1_garde_son_mot)
{
    Installe_Station(u"DFCF"_s);
    Regle(section, u"Annee Challenge DFCF"_s, u"2026"_s);
    fichiers.Pose(u"F9ZZY_Ch_DFCF_2026.log"_s, {});
    Ouvre();
    Ecran().La_Saisie().Ecrit(Controle::Detail_1, u"un mot"_s);
    Choisit(u"Ch_DFCF"_s);
    EXPECT_EQ(Texte(Controle::Detail_1), u"un mot"_s);
}

TEST_F(Ouverture, avec_le_programme_frere_detail_1_prend_le_sien)
{
    Installe_Station(u"DFCF"_s);
    Regle(section, u"Annee Challenge DMF"_s, u"2026"_s);
    fichiers.Pose(u"F9ZZY_Ch_DMF_2026.log"_s, {});
    QSettings(u"Trelune"_s, u"Trelune"_s).setValue(u"Setup/Chemin Repertoire"_s, u"/trelune"_s);
    Ouvre();
    Choisit(u"Ch_DMF"_s);
    EXPECT_EQ(Texte(Controle::Detail_1), u"Mise a jour via Trelune"_s);
    EXPECT_EQ(Texte(Controle::Frame3), u"Challenge DMF année 2026"_s);
}

TEST_F(Ouverture, un_texte_qui_n_est_pas_un_diplome_repond_comme_un_vide)
{
    Installe_Station(u"DFCF"_s);
    Ouvre();
    EXPECT_EQ(Choisit(u"XYZ"_s), std::vector<QString>{u"Selectionnez un diplome"_s});
    EXPECT_EQ(Choisit(u""_s), std::vector<QString>{u"Selectionnez un diplome"_s});
}

TEST_F(Ouverture, avant_toute_station_chaque_touche_le_rappelle_et_tombe)
{
    Ouvre();
    auto &dip = Controle_Nomme<QComboBox>(u"Dip_A"_s);
    const QString avant = dip.currentText();
    for (const Qt::Key touche : {Qt::Key_D, Qt::Key_Down, Qt::Key_Return}) {
        const std::vector<QString> messages = conduite::Repond({}, [&] { QTest::keyClick(&dip, touche); });
        ASSERT_EQ(messages.size(), 1U);
        EXPECT_TRUE(messages[0].contains(u"'Station' puis 'Nouvel Indicatif'"_s));
    }
    EXPECT_EQ(dip.currentText(), avant);
    const std::vector<QString> de_ind =
        conduite::Repond({}, [&] { conduite::Tape(Controle_Nomme(u"Ind_A"_s), u"f"_s); });
    ASSERT_EQ(de_ind.size(), 1U);
    EXPECT_TRUE(de_ind[0].endsWith(u"dans Station puis Nouvel Indicatif."_s));
    EXPECT_EQ(Texte(Controle::Ind_A), u""_s);
}

TEST_F(Ouverture, choisir_un_autre_code_sans_entree_ne_change_que_l_indice_retenu)
{
    Installe_Station(u"DFCF"_s);
    fichiers.Pose(u"F9ZZY_DFCF.log"_s, QSO({.ref = u"77001"_s}).toLatin1() + "\r\n");
    Ouvre();
    Choisit(u"DFCF"_s);
    QTest::keyClick(&Controle_Nomme(u"Dip_A"_s), Qt::Key_Down);
    EXPECT_EQ(Texte(Controle::Dip_A), u"DFF"_s);
    EXPECT_EQ(Reglage(section, u"Diplome Utilise"_s), QString::number(Rang(u"DFF"_s)));
    EXPECT_EQ(Texte(Controle::Frame3), u"Diplome des Forts et Chateaux de France"_s);
    EXPECT_EQ(QSO_Affiches().size(), 1U);
}

TEST_F(Ouverture, ouvrir_un_diplome_laisse_la_bande_en_main)
{
    Installe_Station(u"DFCF"_s);
    fichiers.Pose(u"F9ZZY_DMF.log"_s, QSO({.ref = u"77001"_s}).toLatin1() + "\r\n");
    Ouvre();
    Choisit(u"DMF"_s);
    EXPECT_EQ(QSO_Affiches().size(), 1U);
    EXPECT_EQ(Texte(Controle::Mode_Aff), u"Saisie QSO"_s);
    EXPECT_EQ(Texte(Controle::Ind_A), u""_s);
    EXPECT_TRUE(Est_Actif(Controle::Bande_A));
    EXPECT_TRUE(Est_Actif(Controle::Ind_A));
    EXPECT_FALSE(Est_Actif(Controle::Ref_A));
    EXPECT_EQ(Controle_Nomme<QComboBox>(u"Bande_A"_s).palette().color(QPalette::Base), QColor(192, 255, 192));
    EXPECT_EQ(Controle_Nomme<QComboBox>(u"Dip_A"_s).palette().color(QPalette::Base), QColor(255, 255, 192));
}

TEST_F(Ouverture, un_log_absent_finit_le_programme_sur_son_rapport)
{
    Installe_Station(u"DFCF"_s);
    QFile::remove(fichiers.Chemin(u"F9ZZY_DMF.log"_s));
    EXPECT_EXIT(
        {
            Ouvre();
            Choisit(u"DMF"_s);
        },
        ::testing::ExitedWithCode(1), "Erreur d'ex.*F9ZZY_DMF.log");
}

TEST_F(Ouverture, deux_programmes_ne_prennent_pas_le_meme_repertoire)
{
    const Verrou premier = Prend_Repertoire(fichiers.Chemin());
    ASSERT_EQ(premier.L_Etat(), Verrou::Etat::Pris);
    EXPECT_EQ(Prend_Repertoire(fichiers.Chemin()).L_Etat(), Verrou::Etat::Occupe);
}
