#include "faux/Disque_Qui_Refuse.h"
#include "faux/Echec.h"
#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "faux/QSO_Essai.h"
#include "log/Charge_Log.h"
#include "outils/Log_Essai.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class Chargement : public ::testing::Test {
protected:
    Poste_Essai essai;

    void Pose(const QString &code, const std::vector<QString> &lignes)
    {
        essai.fichiers.Pose(u"F9ZZY_" + code + u".log", Texte_Log(lignes).toLatin1());
    }
    [[nodiscard]] QByteArray Octets(const QString &code) const
    {
        return essai.fichiers.Octets(u"F9ZZY_" + code + u".log");
    }
    /// The Ref columns that Liste_QSO shows for its entries.
    [[nodiscard]] QStringList Refs() const
    {
        QStringList refs;
        for (std::size_t rang = 0; rang < essai.ecran.liste.size(); ++rang)
            refs += Lit_Rogne(Ligne_Affichage(rang + 1, essai.ecran.liste[rang]), colonnes_affichage::Ref).toString();
        return refs;
    }
};

const QString message_fff = u"Mettez à jour la liste FFF (Outils puis Mise à jour des références FFF)"_s;

} // namespace

TEST_F(Chargement, un_log_vide_est_une_liste_vide)
{
    Pose(u"DFCF"_s, {});
    Charge_Log(essai.poste, Diplome::DFCF);
    EXPECT_TRUE(essai.ecran.liste.empty());
    EXPECT_EQ(essai.ecran.appels, (std::vector<QString>{u"Active_Ind_A"_s}));
    essai.ecran.Selectionne_Derniere();
    EXPECT_EQ(essai.ecran.selection, QString());
}

TEST_F(Chargement, les_lignes_viennent_dans_l_ordre_du_fichier)
{
    Pose(u"DFCF"_s, {QSO({.ref = u"77001"_s}), QSO({.ref = u"05012"_s, .date = u"01/01/99"_s})});
    Charge_Log(essai.poste, Diplome::DFCF);
    EXPECT_EQ(Refs(), (QStringList{u"77001"_s, u"05012"_s}));
    EXPECT_TRUE(essai.boites.messages.empty());
}

TEST_F(Chargement, un_autre_log_remplace_le_premier_a_l_ecran)
{
    Pose(u"DFCF"_s, {QSO({.ref = u"77001"_s})});
    Pose(u"DMF"_s, {});
    Charge_Log(essai.poste, Diplome::DFCF);
    Charge_Log(essai.poste, Diplome::DMF);
    EXPECT_TRUE(essai.ecran.liste.empty());
}

TEST_F(Chargement, un_challenge_se_lit_dans_le_log_de_son_annee)
{
    essai.etat.station.annee_ch_dmf = u"2026"_s;
    Pose(u"Ch_DMF"_s, {QSO({.ref = u"77001A"_s})});
    Pose(u"Ch_DMF_2026"_s, {QSO({.ref = u"77002R"_s})});
    Charge_Log(essai.poste, Diplome::Ch_DMF);
    EXPECT_EQ(Refs(), QStringList{u"77002R"_s});
}

TEST_F(Chargement, un_ancien_ouvrage_recoit_son_departement_une_fois)
{
    Pose(u"DOHF"_s, {QSO({.dpt = u"45"_s, .ref = u"EC102"_s})});
    Charge_Log(essai.poste, Diplome::DOHF);
    EXPECT_EQ(Refs(), QStringList{u"45EC102"_s});
    const QByteArray reecrit = Octets(u"DOHF"_s);
    EXPECT_EQ(reecrit, Texte_Log({QSO({.dpt = u"45"_s, .ref = u"45EC102"_s})}).toLatin1());
    EXPECT_EQ(essai.fichiers.Fichiers(), QStringList{u"F9ZZY_DOHF.log"_s});

    Charge_Log(essai.poste, Diplome::DOHF);
    EXPECT_EQ(Octets(u"DOHF"_s), reecrit);
    EXPECT_TRUE(essai.boites.messages.empty());
}

TEST_F(Chargement, une_tour_recoit_son_tiret)
{
    Pose(u"TDC"_s, {QSO({.ref = u"11008"_s}), QSO({.ref = u"11-009"_s})});
    Charge_Log(essai.poste, Diplome::TDC);
    EXPECT_EQ(Refs(), (QStringList{u"11-008"_s, u"11-009"_s}));
    EXPECT_EQ(Octets(u"TDC"_s), Texte_Log({QSO({.ref = u"11-008"_s}), QSO({.ref = u"11-009"_s})}).toLatin1());
}

TEST_F(Chargement, une_tour_de_six_caracteres_ne_touche_pas_le_fichier)
{
    // Bytes that a rewrite would change: a line end and no last line end.
    const QByteArray octets = QSO({.ref = u"11-008"_s}).toLatin1() + "\n" + QSO({.ref = u"11-009"_s}).toLatin1();
    essai.fichiers.Pose(u"F9ZZY_TDC.log"_s, octets);
    Charge_Log(essai.poste, Diplome::TDC);
    EXPECT_EQ(Refs(), (QStringList{u"11-008"_s, u"11-009"_s}));
    EXPECT_EQ(Octets(u"TDC"_s), octets);
}

TEST_F(Chargement, une_tour_precedee_de_blancs_se_montre_sans_eux_et_le_fichier_reste)
{
    Pose(u"TDC"_s, {QSO({.ref = u"  11-008"_s})});
    Charge_Log(essai.poste, Diplome::TDC);
    EXPECT_EQ(essai.ecran.liste[0], QSO({.ref = u"11-008"_s}));
    EXPECT_EQ(Octets(u"TDC"_s), Texte_Log({QSO({.ref = u"  11-008"_s})}).toLatin1());
}

TEST_F(Chargement, une_reference_qui_change_fait_recomposer_tout_le_log)
{
    QString deborde = QSO({.dpt = u"97"_s, .ref = u"0052"_s});
    deborde[15] = u'1';
    Pose(u"FFF"_s, {deborde + u" et la suite", Rogne(QSO({.ref = u"0053"_s})).toString(), QSO({.ref = u"51"_s})});
    Charge_Log(essai.poste, Diplome::FFF);
    EXPECT_EQ(Octets(u"FFF"_s),
              Texte_Log({QSO({.dpt = u"97"_s, .ref = u"0052"_s}), QSO({.ref = u"0053"_s}), QSO({.ref = u"0051"_s})})
                  .toLatin1());
}

TEST_F(Chargement, une_tour_de_la_premiere_forme_est_cherchee_dans_la_liste)
{
    essai.fichiers.Pose(u"Liste_TDC.csv"_s, "Rev 001 01/01/12;;;;;;;\r\n108;11;1;Tour;Ligne;F;TC1108;\r\n");
    Pose(u"TDC"_s, {QSO({.ref = u"TC1108"_s})});
    Charge_Log(essai.poste, Diplome::TDC);
    EXPECT_EQ(Refs(), QStringList{u"11-108"_s});
}

TEST_F(Chargement, sans_la_liste_des_tours_le_log_reste_ce_qu_il_est)
{
    Pose(u"TDC"_s, {QSO({.ref = u"TC1108"_s})});
    const auto echec = Echec([&] { Charge_Log(essai.poste, Diplome::TDC); });
    ASSERT_TRUE(echec);
    EXPECT_TRUE(echec->Texte().contains(u"Liste_TDC.csv"));
    EXPECT_EQ(Octets(u"TDC"_s), Texte_Log({QSO({.ref = u"TC1108"_s})}).toLatin1());
}

TEST_F(Chargement, un_pigeonnier_recoit_son_departement)
{
    Pose(u"DCPF"_s, {QSO({.dpt = u"81"_s, .ref = u"PTC001"_s})});
    Charge_Log(essai.poste, Diplome::DCPF);
    EXPECT_EQ(Refs(), QStringList{u"81PT001"_s});
}

TEST_F(Chargement, le_message_fff_une_fois_par_chargement_qui_change)
{
    Pose(u"FFF"_s, {QSO({.ref = u"51"_s}), QSO({.ref = u"7"_s}), QSO({.ref = u"0051"_s})});
    Charge_Log(essai.poste, Diplome::FFF);
    EXPECT_EQ(Refs(), (QStringList{u"0051"_s, u"0007"_s, u"0051"_s}));
    EXPECT_EQ(essai.boites.messages, std::vector<QString>{message_fff});
    EXPECT_TRUE(Octets(u"FFF"_s).contains(" 0051      "));
    Charge_Log(essai.poste, Diplome::FFF);
    EXPECT_EQ(essai.boites.messages.size(), 1U);
}

TEST_F(Chargement, un_log_absent_vide_la_liste_et_se_dit)
{
    Pose(u"DFCF"_s, {QSO({})});
    Charge_Log(essai.poste, Diplome::DFCF);
    essai.ecran.appels.clear();
    const auto echec = Echec([&] { Charge_Log(essai.poste, Diplome::DMF); });
    ASSERT_TRUE(echec);
    EXPECT_EQ(echec->La_Cause(), Cause::Fichier_Introuvable);
    EXPECT_TRUE(echec->Texte().contains(u"F9ZZY_DMF.log"));
    EXPECT_TRUE(essai.ecran.liste.empty());
    EXPECT_TRUE(essai.ecran.appels.empty());
}

TEST_F(Chargement, une_reecriture_refusee_garde_le_log_et_le_montre)
{
    Pose(u"FFF"_s, {QSO({.ref = u"51"_s})});
    {
        const Disque_Qui_Refuse disque;
        EXPECT_TRUE(Echec([&] { Charge_Log(essai.poste, Diplome::FFF); }));
    }
    EXPECT_EQ(Refs(), QStringList{u"0051"_s});
    EXPECT_EQ(Octets(u"FFF"_s), Texte_Log({QSO({.ref = u"51"_s})}).toLatin1());
    EXPECT_TRUE(essai.boites.messages.empty());
}
