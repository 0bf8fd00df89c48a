#include "faux/Conduite.h"
#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "plateforme/Commandes.h"
#include "saisie/ecrans/Main.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>

using namespace Qt::StringLiterals;
using conduite::Trouve;

namespace {

using enum Controle;

class Sans_Commande : public Commandes {
public:
    void Execute(const QString &) override {}
    [[nodiscard]] bool Connait_Commande(const QString &) const override { return true; }
};

/// The real main screen over fake ports, before any award is open.
class Ecran_Main : public ::testing::Test {
protected:
    Ecran_Main()
    {
        essai.fichiers.Pose(u"F9ZZY_DFCF.log"_s, "");
        essai.fichiers.Pose(u"F9ZZY_Ch_DFCF_2026.log"_s, "");
        essai.fichiers.Pose(u"Liste_Prenom.txt"_s, "F5ABC        77 JEAN\r\n");
        essai.reglages.vorlain[{u"Setup F9ZZY"_s, u"Annee Challenge DFCF"_s}] = u"2026"_s;
        ecran.Installe_Menus(commandes);
        ecran.Ouvre();
        ecran.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&ecran));
    }

    Poste_Essai essai;
    Sans_Commande commandes;
    ::Main ecran{essai.poste, essai.etat};
    Saisie &saisie = ecran.La_Saisie();

    QLineEdit &Champ(Controle champ) { return *Trouve<QLineEdit>(ecran, Nom(champ)); }
    QComboBox &Combo_De(Controle combo) { return *Trouve<QComboBox>(ecran, Nom(combo)); }
    void Ouvre(const QString &code)
    {
        Combo_De(Dip_A).setEditText(code);
        conduite::Entree(Combo_De(Dip_A));
    }
};

} // namespace

TEST_F(Ecran_Main, chaque_controle_est_sur_l_ecran_sous_son_nom)
{
    EXPECT_EQ(ecran.objectName(), Nom(Controle::Main));
    for (std::size_t rang = 0; rang + 1 < nombre_controles; ++rang) {
        const QString nom = Nom(static_cast<Controle>(rang));
        EXPECT_NE(ecran.findChild<QObject *>(nom), nullptr) << nom.toStdString();
    }
}

TEST_F(Ecran_Main, un_texte_pose_sans_touche_est_celui_de_la_saisie)
{
    Champ(Ind_A).setText(u"F5ABC"_s);
    EXPECT_EQ(saisie.Texte(Ind_A), u"F5ABC"_s);
    Combo_De(Bande_A).setEditText(u"14.05"_s);
    EXPECT_EQ(saisie.Texte(Bande_A), u"14.05"_s);
    Combo_De(Mode_A).setCurrentIndex(1);
    EXPECT_EQ(saisie.Texte(Mode_A), u"CW"_s);
    Trouve<QCheckBox>(ecran, u"QSL_A"_s)->setChecked(true);
    EXPECT_TRUE(saisie.Est_Coche(QSL_A));
    EXPECT_EQ(Champ(Ind_A).text(), u"F5ABC"_s);
}

TEST_F(Ecran_Main, ce_que_la_saisie_ecrit_est_a_l_ecran_aussitot)
{
    saisie.Ecrit(Bande_A, u"7.144"_s);
    EXPECT_EQ(Combo_De(Bande_A).currentText(), u"7.144"_s);
    EXPECT_EQ(Combo_De(Bande_A).currentIndex(), -1);
    saisie.Ecrit(Bande_A, u"21 Mhz"_s);
    EXPECT_EQ(Combo_De(Bande_A).currentIndex(), 6);
    EXPECT_EQ(saisie.Texte(Bande_A), u"21 Mhz"_s);
    saisie.Ecrit(Nom_A, u"C. "_s);
    EXPECT_EQ(Champ(Nom_A).cursorPosition(), 0);
    saisie.Curseur_A_La_Fin(Nom_A);
    EXPECT_EQ(Champ(Nom_A).cursorPosition(), 3);
    saisie.Donne_Focus(Nom_A);
    EXPECT_EQ(Champ(Nom_A).selectedText(), u"C. "_s);
    saisie.Active(Nom_A, false);
    EXPECT_FALSE(Champ(Nom_A).isEnabled());
}

TEST_F(Ecran_Main, une_boite_au_milieu_d_une_etape_trouve_l_ecran_a_jour)
{
    QStringList vus;
    essai.boites.pendant_message = [&] {
        vus += Trouve<QGroupBox>(ecran, u"Frame3"_s)->title();
        vus += Trouve<QPushButton>(ecran, u"Detail"_s)->text();
    };
    Ouvre(u"Ch_DFCF"_s);
    EXPECT_EQ(vus, (QStringList{u"Challenge DFCF année 2026"_s, u"Mise a jour via Vorlain"_s}));
}

TEST_F(Ecran_Main, ce_qui_change_a_l_ecran_pendant_une_boite_est_dans_la_saisie)
{
    Ouvre(u"DFCF"_s);
    Champ(Ind_A).setText(u"F5ABC/P/MM/9Z"_s);
    essai.boites.pendant_message = [&] { Champ(Ind_A).setText(u"F5ABC"_s); };
    conduite::Entree(Champ(Ind_A));
    EXPECT_EQ(saisie.Texte(Ind_A), u"F5ABC"_s);
    essai.boites.pendant_message = nullptr;
    conduite::Entree(Champ(Ind_A));
    EXPECT_EQ(Champ(Prenom_A).text(), u"JEAN"_s);
}

TEST_F(Ecran_Main, le_focus_que_prend_l_operateur_est_celui_de_la_saisie)
{
    Ouvre(u"DFCF"_s);
    EXPECT_EQ(saisie.Focus(), Bande_A);
    QTest::keyClick(&Combo_De(Bande_A), Qt::Key_Tab);
    EXPECT_EQ(saisie.Focus(), Ind_A);
    Trouve<QWidget>(ecran, u"Liste_QSO"_s)->setFocus();
    EXPECT_EQ(saisie.Focus(), std::nullopt);
}
