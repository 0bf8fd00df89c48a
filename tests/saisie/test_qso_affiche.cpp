#include "faux/Impression.h"
#include "faux/Poste_Saisie.h"
#include "faux/QSO_Essai.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using enum Controle;

const QString ligne = QSO({.ind = u"TM5CHATEAUX1"_s,
                           .dpt = u"77"_s,
                           .prenom = u"JEAN-RENÉ"_s,
                           .ref = u"77001"_s,
                           .date = u"12/05/07"_s,
                           .heure = u"14:48"_s,
                           .mode = u"CW"_s,
                           .bande = u"144 Mhz"_s,
                           .rstr = u"599"_s,
                           .rste = u"579"_s,
                           .nom = u"C. DE VAUX"_s,
                           .qsl = u"*"_s});
const QString autre = QSO({.ind = u"F5BBB"_s, .ref = u"05012"_s});

class QSO_Choisi : public ::testing::Test {
protected:
    QSO_Choisi() { essai.Ouvre_Log(u"DFCF"_s, ligne.toLatin1() + "\r\n" + autre.toLatin1() + "\r\n"); }

    Poste_Saisie essai;
    Saisie &saisie = essai.saisie;
    const QString entree = Ligne_Affichage(1, ligne);
    const QString autre_entree = Ligne_Affichage(2, autre);

    void Clic(const QString &choisie) { Clic_Liste(saisie, choisie); }
    void Double_Clic(const QString &choisie)
    {
        Clic(choisie);
        Double_Clic_Liste(essai.poste, saisie, choisie);
    }
    void Attend_Champs()
    {
        EXPECT_EQ(saisie.Texte(Dpt_A), u"77"_s);
        EXPECT_EQ(saisie.Texte(Prenom_A), u"JEAN-RENÉ"_s);
        EXPECT_EQ(saisie.Texte(Ref_A), u"77001"_s);
        EXPECT_EQ(saisie.Texte(Heure_A), u"14:48"_s);
        EXPECT_EQ(saisie.Texte(Mode_A), u"CW"_s);
        EXPECT_EQ(saisie.Texte(Bande_A), u"144 Mhz"_s);
        EXPECT_EQ(saisie.Texte(RSTR_A), u"599"_s);
        EXPECT_EQ(saisie.Texte(RSTE_A), u"579"_s);
        EXPECT_EQ(saisie.Texte(Nom_A), u"C. DE VAUX"_s);
        EXPECT_TRUE(saisie.Est_Coche(QSL_A));
        // The call sign is read two columns too far left.
        EXPECT_EQ(saisie.Texte(Ind_A), u"TM5CHATEAU"_s);
    }
    [[nodiscard]] QByteArray Log() const { return essai.fichiers.Octets(u"F9ZZY_DFCF.log"_s); }
};

using Suppression = QSO_Choisi;
using Insertion = QSO_Choisi;

} // namespace

TEST_F(QSO_Choisi, un_clic_affiche_le_qso_avec_le_debut_de_l_heure_dans_la_date)
{
    Clic(entree);
    Attend_Champs();
    EXPECT_EQ(saisie.Texte(Date_A), u"12/05/07  14"_s);
    EXPECT_EQ(saisie.ligne_selectionnee, entree);
    EXPECT_TRUE(saisie.qso_affiche);
    EXPECT_FALSE(saisie.qso_en_edition);
    EXPECT_EQ(saisie.Texte(Mode_Aff), u"Affichage QSO"_s);
    EXPECT_FALSE(saisie.Est_Actif(Ind_A));
    EXPECT_FALSE(saisie.Est_Actif(Ref_A));
    EXPECT_FALSE(saisie.Est_Actif(Valide_A));
    EXPECT_TRUE(saisie.Est_Actif(Annule_Saisie));
}

TEST_F(QSO_Choisi, sans_carte_la_case_se_vide)
{
    Clic(entree);
    Clic(autre_entree);
    EXPECT_FALSE(saisie.Est_Coche(QSL_A));
    EXPECT_EQ(saisie.Texte(Ind_A), u"F5BBB"_s);
    EXPECT_EQ(saisie.Texte(Dpt_A), u""_s);
}

TEST_F(QSO_Choisi, un_double_clic_ouvre_les_champs)
{
    Double_Clic(entree);
    Attend_Champs();
    EXPECT_EQ(saisie.Texte(Date_A), u"12/05/07"_s);
    EXPECT_TRUE(saisie.qso_affiche);
    EXPECT_TRUE(saisie.qso_en_edition);
    EXPECT_EQ(saisie.Texte(Mode_Aff), u"Modification QSO"_s);
    for (const Controle champ :
         {Bande_A, Ind_A, Prenom_A, Ref_A, Dpt_A, Date_A, Heure_A, Mode_A, RSTR_A, RSTE_A, Nom_A, QSL_A, Valide_A})
        EXPECT_TRUE(saisie.Est_Actif(champ)) << static_cast<int>(champ);
    EXPECT_EQ(saisie.Focus(), Ind_A);
}

TEST_F(QSO_Choisi, pendant_une_modification_un_clic_ne_change_que_la_cible)
{
    Double_Clic(entree);
    saisie.Ecrit(Nom_A, u"TAPE"_s);
    Clic(autre_entree);
    EXPECT_EQ(saisie.ligne_selectionnee, autre_entree);
    EXPECT_EQ(saisie.Texte(Nom_A), u"TAPE"_s);
    EXPECT_EQ(saisie.Texte(Ref_A), u"77001"_s);
    EXPECT_EQ(saisie.Texte(Mode_Aff), u"Affichage QSO"_s);
    EXPECT_TRUE(saisie.Est_Actif(Ind_A));
    // A second double click neither.
    Double_Clic_Liste(essai.poste, saisie, autre_entree);
    EXPECT_EQ(saisie.Texte(Ref_A), u"77001"_s);
    EXPECT_EQ(saisie.Texte(Mode_Aff), u"Affichage QSO"_s);
}

TEST_F(QSO_Choisi, un_double_clic_sur_rien_le_dit_et_bloque_les_clics)
{
    Double_Clic_Liste(essai.poste, saisie, QString());
    EXPECT_EQ(essai.Messages(), std::vector<QString>{u"Cliquez sur une ligne pour l'editer"_s});
    EXPECT_TRUE(saisie.qso_en_edition);
    EXPECT_FALSE(saisie.qso_affiche);
}

TEST_F(QSO_Choisi, annuler_rend_l_ecran_au_repos_et_garde_la_selection)
{
    Double_Clic(entree);
    Efface_Tout(saisie);
    EXPECT_EQ(saisie.Texte(Ref_A), u""_s);
    EXPECT_FALSE(saisie.QSO_Touche());
    EXPECT_EQ(saisie.ligne_selectionnee, entree);
    EXPECT_EQ(saisie.Focus(), Dip_A);
    EXPECT_EQ(saisie.Texte(Mode_Aff), u"Saisie QSO"_s);
}

TEST_F(QSO_Choisi, une_ligne_abimee_s_affiche)
{
    for (const QString &abimee : {u""_s, u"F5ABC"_s, QString(5000, u'x')}) {
        Clic(Ligne_Affichage(3, abimee));
        Double_Clic(Ligne_Affichage(3, abimee));
        EXPECT_EQ(saisie.Texte(Ref_A), Lit_Rogne(Ligne_Affichage(3, abimee), colonnes_affichage::Ref).toString());
        Efface_Tout(saisie);
    }
}

TEST_F(Insertion, sans_diplome_ouvert_elle_en_demande_un)
{
    Efface_Tout(saisie);
    Commence_Insertion(essai.poste, saisie);
    EXPECT_EQ(essai.Messages(), std::vector<QString>{u"Selectionnez un diplome"_s});
    EXPECT_EQ(saisie.Focus(), Dip_A);
    EXPECT_FALSE(saisie.saisie_differee);
    EXPECT_EQ(saisie.Texte(Mode_Aff), u"Saisie QSO"_s);
}

TEST_F(Insertion, sans_log_qui_s_ouvre_elle_demande_un_diplome)
{
    QFile::remove(essai.fichiers.Chemin(u"F9ZZY_DFCF.log"_s));
    Commence_Insertion(essai.poste, saisie);
    EXPECT_EQ(essai.Messages(), std::vector<QString>{u"Selectionnez un diplome"_s});
    EXPECT_EQ(saisie.Focus(), Dip_A);
    EXPECT_FALSE(saisie.saisie_differee);
}

TEST_F(Insertion, elle_commence_a_la_bande)
{
    Clic(entree);
    Commence_Insertion(essai.poste, saisie);
    EXPECT_TRUE(saisie.saisie_differee);
    EXPECT_FALSE(saisie.qso_affiche);
    EXPECT_EQ(saisie.Texte(Mode_Aff), u"Insertion QSO"_s);
    EXPECT_EQ(saisie.Focus(), Bande_A);
    EXPECT_TRUE(essai.Messages().empty());
}

TEST_F(Suppression, oui_retire_la_ligne_et_selectionne_la_derniere)
{
    Clic(entree);
    Supprime_QSO(essai.poste, saisie);
    EXPECT_EQ(essai.boites.questions, std::vector<QString>{u"Voulez vous Supprimer ce QSO ?"_s});
    EXPECT_EQ(Log(), autre.toLatin1() + "\r\n");
    EXPECT_EQ(essai.ecran_du_log.QSO_Selectionne(), Ligne_Affichage(1, autre));
    EXPECT_EQ(saisie.ligne_selectionnee, essai.ecran_du_log.QSO_Selectionne());
    EXPECT_FALSE(saisie.Est_Actif(Annule_Saisie));
}

TEST_F(Suppression, non_garde_la_ligne_et_ferme_le_bouton_jusqu_au_clic)
{
    essai.boites.reponses = {false};
    Clic(entree);
    const QByteArray avant = Log();
    Supprime_QSO(essai.poste, saisie);
    EXPECT_EQ(Log(), avant);
    EXPECT_FALSE(saisie.Est_Actif(Annule_Saisie));
    Clic(autre_entree);
    EXPECT_TRUE(saisie.Est_Actif(Annule_Saisie));
}

TEST_F(Suppression, sans_selection_elle_en_demande_une)
{
    Supprime_QSO(essai.poste, saisie);
    EXPECT_EQ(essai.Messages(), std::vector<QString>{u"Cliquez sur une ligne pour l'effacer"_s});
    EXPECT_TRUE(essai.boites.questions.empty());
}

TEST_F(Suppression, elle_va_par_le_texte_de_dip_a)
{
    essai.fichiers.Pose(u"F9ZZY_DMF.log"_s, ligne.toLatin1() + "\r\n");
    Clic(entree);
    saisie.Ecrit(Dip_A, u"DMF"_s);
    const QByteArray avant = Log();
    Supprime_QSO(essai.poste, saisie);
    EXPECT_EQ(Log(), avant);
    EXPECT_EQ(essai.fichiers.Octets(u"F9ZZY_DMF.log"_s), "");
}

TEST_F(Suppression, un_texte_qui_n_est_pas_un_code_demande_un_diplome)
{
    Clic(entree);
    saisie.Ecrit(Dip_A, u"XYZ"_s);
    Supprime_QSO(essai.poste, saisie);
    EXPECT_EQ(essai.Messages(), std::vector<QString>{u"Selectionnez un diplome"_s});
    EXPECT_TRUE(essai.boites.questions.empty());
}

TEST_F(Suppression, un_qso_disparu_entre_temps_se_dit_et_la_liste_montre_le_log)
{
    Clic(entree);
    essai.fichiers.Pose(u"F9ZZY_DFCF.log"_s, autre.toLatin1() + "\r\n");
    Supprime_QSO(essai.poste, saisie);
    EXPECT_EQ(essai.Messages(), std::vector<QString>{u"Ce QSO n'est plus dans le log, rien n'a été supprimé"_s});
    EXPECT_EQ(Log(), autre.toLatin1() + "\r\n");
    EXPECT_EQ(essai.ecran_du_log.Liste_QSO().size(), 1U);
    EXPECT_EQ(saisie.ligne_selectionnee, Ligne_Affichage(1, autre));
    EXPECT_FALSE(saisie.Est_Actif(Annule_Saisie));
}

TEST_F(Suppression, une_ligne_qui_deborde_ou_a_perdu_ses_blancs_part_aussi)
{
    const QString deborde = QString(ligne).replace(15, 1, u"1"_s) + u" et la suite";
    const QString courte = Rogne(autre).toString();
    essai.Ouvre_Log(u"DFCF"_s, deborde.toLatin1() + "\r\n" + courte.toLatin1() + "\r\n");
    Clic(Ligne_Affichage(1, deborde));
    Supprime_QSO(essai.poste, saisie);
    EXPECT_EQ(Log(), courte.toLatin1() + "\r\n");
    Clic(Ligne_Affichage(1, courte));
    Supprime_QSO(essai.poste, saisie);
    EXPECT_EQ(Log(), "");
    EXPECT_TRUE(essai.Messages().empty());
}

TEST_F(Suppression, le_dernier_qso_part_et_la_liste_est_vide)
{
    essai.Ouvre_Log(u"DFCF"_s, ligne.toLatin1() + "\r\n");
    Clic(entree);
    Supprime_QSO(essai.poste, saisie);
    EXPECT_EQ(Log(), "");
    EXPECT_TRUE(essai.ecran_du_log.Liste_QSO().empty());
    EXPECT_FALSE(saisie.Est_Actif(Annule_Saisie));
}

TEST_F(Suppression, sans_log_qui_s_ouvre_elle_demande_un_diplome)
{
    Clic(entree);
    QFile::remove(essai.fichiers.Chemin(u"F9ZZY_DFCF.log"_s));
    Supprime_QSO(essai.poste, saisie);
    EXPECT_EQ(essai.Messages(), std::vector<QString>{u"Selectionnez un diplome"_s});
    EXPECT_EQ(saisie.Focus(), Dip_A);
    EXPECT_TRUE(essai.boites.questions.empty());
    EXPECT_FALSE(essai.fichiers.Existe(u"F9ZZY_DFCF.log"_s));
}
