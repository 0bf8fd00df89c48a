#include "programme/Programme_Essai.h"

#include "ecrans/Liste_Fixe.h"
#include "faux/QSO_Essai.h"

#include <QComboBox>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

/// The sheets and lists as the menu opens them, in the whole program.
class Fiches_Du_Menu : public Programme_Essai {
protected:
    Fiches_Du_Menu()
    {
        Installe_Station(u"DFCF"_s);
        Pose_Log(30);
        Ouvre();
    }
    ~Fiches_Du_Menu() override
    {
        for (const QString &nom : {u"Diplomes_DFCF"_s, u"Liste_DFCF"_s, u"Select_Dip_DAF"_s})
            delete conduite::Fenetre(nom);
    }
    void Pose_Log(int nombre) const
    {
        const QString ligne = QSO({.dpt = u"77"_s, .ref = u"77001"_s, .qsl = u"*"_s}) + fin_de_ligne;
        fichiers.Pose(u"F9ZZY_DFCF.log"_s, ligne.toLatin1().repeated(nombre));
    }
    /// Mnu_Diplomes under a text of Dip_A; gives the screens that are open then.
    QStringList Ouvre_Fiche(const QString &dip_a)
    {
        Controle_Nomme<QComboBox>(u"Dip_A"_s).setCurrentText(dip_a);
        auto *barre = conduite::Trouve<QMenuBar>(Ecran(), {});
        const QRect entree = barre->actionGeometry(conduite::Trouve<QAction>(Ecran(), u"Mnu_Diplomes"_s));
        QTest::mouseClick(barre, Qt::LeftButton, {}, entree.center());
        QStringList noms;
        for (const QWidget *fenetre : QApplication::topLevelWidgets())
            if (fenetre->isVisible() && fenetre != &Ecran() && fenetre->isWindow())
                noms.push_back(fenetre->objectName());
        return noms;
    }
    static QString Compte_De_Base()
    {
        return conduite::Trouve<QLabel>(*conduite::Fenetre(u"Diplomes_DFCF"_s), u"Label5"_s)->text();
    }
    static void Presse(const QString &ecran, const QString &bouton)
    {
        conduite::Entree(*conduite::Trouve<QPushButton>(*conduite::Fenetre(ecran), bouton));
    }
    static void Ferme(const QString &ecran)
    {
        conduite::Fenetre(ecran)->close();
        EXPECT_TRUE(QTest::qWaitFor([&] { return !conduite::Fenetre(ecran); }));
    }
};

} // namespace

TEST_F(Fiches_Du_Menu, le_menu_suit_le_texte_de_dip_a_et_non_l_award_ouvert)
{
    EXPECT_EQ(Ouvre_Fiche(u"DAF"_s), QStringList{u"Select_Dip_DAF"_s});
}

TEST_F(Fiches_Du_Menu, un_texte_qui_n_est_pas_un_code_n_ouvre_rien)
{
    EXPECT_EQ(Ouvre_Fiche(u"DFC"_s), QStringList());
}

TEST_F(Fiches_Du_Menu, une_fiche_ouverte_revient_devant_sans_etre_recomptee)
{
    EXPECT_EQ(Ouvre_Fiche(u"DFCF"_s), QStringList{u"Diplomes_DFCF"_s});
    const QWidget *fiche = conduite::Fenetre(u"Diplomes_DFCF"_s);
    EXPECT_EQ(Compte_De_Base(), u"30"_s);
    Pose_Log(40);
    EXPECT_EQ(Ouvre_Fiche(u"DFCF"_s), QStringList{u"Diplomes_DFCF"_s});
    EXPECT_EQ(conduite::Fenetre(u"Diplomes_DFCF"_s), fiche);
    EXPECT_EQ(Compte_De_Base(), u"30"_s);
    Ferme(u"Diplomes_DFCF"_s);
    Ouvre_Fiche(u"DFCF"_s);
    EXPECT_EQ(Compte_De_Base(), u"40"_s);
}

TEST_F(Fiches_Du_Menu, une_liste_ouverte_garde_ses_rangs_jusqu_a_quitter)
{
    Ouvre_Fiche(u"DFCF"_s);
    Presse(u"Diplomes_DFCF"_s, u"HF_Base"_s);
    const auto nombre = [] {
        return conduite::Trouve<Liste_Fixe>(*conduite::Fenetre(u"Liste_DFCF"_s), u"Liste_DFCF_Contacte"_s)->Nombre();
    };
    EXPECT_EQ(nombre(), 30);
    Pose_Log(35);
    Presse(u"Diplomes_DFCF"_s, u"HF_Base"_s);
    EXPECT_EQ(nombre(), 30);
    Presse(u"Liste_DFCF"_s, u"Command1"_s);
    EXPECT_TRUE(QTest::qWaitFor([] { return !conduite::Fenetre(u"Liste_DFCF"_s); }));
    Presse(u"Diplomes_DFCF"_s, u"HF_Base"_s);
    EXPECT_EQ(nombre(), 35);
}

TEST_F(Fiches_Du_Menu, un_log_absent_finit_le_programme_sur_son_rapport)
{
    QFile::remove(fichiers.Chemin(u"F9ZZY_DFCF.log"_s));
    EXPECT_EXIT(conduite::Repond({}, [&] { Ouvre_Fiche(u"DFCF"_s); }), ::testing::ExitedWithCode(1),
                "Erreur d'ex.*F9ZZY_DFCF.log");
}

TEST_F(Fiches_Du_Menu, un_enregistrement_sans_nom_finit_le_programme_et_nomme_le_dossier)
{
    Installe_Station(u"FFF"_s);
    fichiers.Pose(u"F9ZZY_FFF.log"_s, (QSO({.qsl = u"*"_s}) + fin_de_ligne).toLatin1().repeated(200));
    Ouvre_Fiche(u"FFF"_s);
    Presse(u"Diplomes_FFF"_s, u"Honneur"_s);
    EXPECT_EXIT(conduite::Repond({}, [&] { Presse(u"Liste_FFF"_s, u"Enregistrer"_s); }), ::testing::ExitedWithCode(1),
                "Erreur d'ex.*Vorlain-.*c'est un r");
    delete conduite::Fenetre(u"Liste_FFF"_s);
    delete conduite::Fenetre(u"Diplomes_FFF"_s);
}
