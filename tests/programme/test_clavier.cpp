#include "programme/Programme_Essai.h"

#include "faux/QSO_Essai.h"
#include "log/Ligne_Affichage.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

/// An operator without a mouse: every key goes to whatever has the focus.
class Clavier : public Programme_Essai {
protected:
    void Prepare(const QString &code)
    {
        Installe_Station(code);
        Ouvre();
        Ecran().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&Ecran()));
    }

    /// The control with the focus. The offscreen platform has no window manager that would make the main screen active
    /// again behind a box.
    QWidget *En_Main()
    {
        Ecran().activateWindow();
        return Ecran().focusWidget();
    }
    void Touche(Qt::Key touche, Qt::KeyboardModifiers avec = {}) { QTest::keyClick(En_Main(), touche, avec); }
    void Frappe(const QString &texte) { conduite::Tape(*En_Main(), texte); }
    void Frappe_Et_Entre(const QString &texte)
    {
        Frappe(texte);
        Touche(Qt::Key_Return);
    }

    /// The names of the entry controls that bear the current colour.
    QStringList Verts()
    {
        QStringList noms;
        for (const QWidget *widget : Ecran().findChildren<QWidget *>())
            if (widget->objectName().endsWith(u"_A") &&
                widget->palette().color(QPalette::Base) == QColor(192, 255, 192))
                noms += widget->objectName();
        return noms;
    }
};

} // namespace

TEST_F(Clavier, un_qso_entier_sans_souris_et_le_vert_suit_le_focus)
{
    Prepare(u"DFCF"_s);
    EXPECT_EQ(En_Main()->objectName(), u"Dip_A"_s);
    Touche(Qt::Key_Return);
    const std::vector<std::pair<QString, QString>> chaine = {
        {u"Bande_A"_s, {}},      {u"Ind_A"_s, u"f5abc"_s}, {u"Prenom_A"_s, u"jean"_s}, {u"Ref_A"_s, u"77001"_s},
        {u"Dpt_A"_s, {}},        {u"Mode_A"_s, {}},        {u"RSTR_A"_s, {}},          {u"RSTE_A"_s, {}},
        {u"Nom_A"_s, u"vaux"_s}, {u"QSL_A"_s, u" "_s},
    };
    for (const auto &[nom, texte] : chaine) {
        EXPECT_EQ(En_Main()->objectName(), nom);
        EXPECT_EQ(Verts(), QStringList{nom});
        Frappe_Et_Entre(texte);
    }
    EXPECT_EQ(En_Main()->objectName(), u"Valide_A"_s);
    EXPECT_EQ(Verts(), QStringList{u"Valide_A"_s});
    conduite::Repond({u"Oui"_s}, [this] { Touche(Qt::Key_Return); });
    EXPECT_EQ(QSO_Affiches(), std::vector<QString>{Ligne_Affichage(1, QSO({.ind = u"F5ABC"_s,
                                                                           .dpt = u"77"_s,
                                                                           .prenom = u"JEAN"_s,
                                                                           .ref = u"77001"_s,
                                                                           .date = u"15/11/26"_s,
                                                                           .bande = u"1.8 Mhz"_s,
                                                                           .nom = u"C. VAUX"_s,
                                                                           .qsl = u"*"_s}))});
    EXPECT_EQ(En_Main()->objectName(), u"Ind_A"_s);
    EXPECT_EQ(Verts(), QStringList{u"Ind_A"_s});
}

TEST_F(Clavier, le_vert_suit_aussi_la_touche_de_tabulation)
{
    Prepare(u"DFCF"_s);
    Touche(Qt::Key_Return);
    Touche(Qt::Key_Tab);
    EXPECT_EQ(En_Main()->objectName(), u"Ind_A"_s);
    EXPECT_EQ(Verts(), QStringList{u"Ind_A"_s});
    Touche(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(Verts(), QStringList{u"Bande_A"_s});
}

TEST_F(Clavier, ce_qu_on_tape_remplace_le_texte_du_champ_mais_suit_le_debut_du_nom)
{
    Prepare(u"DFCF"_s);
    Frappe_Et_Entre(u"dlf"_s);
    EXPECT_EQ(Texte(Controle::Frame3), u"Diplome des Lavoirs de France"_s);
    Frappe_Et_Entre(u"14.05"_s);
    EXPECT_EQ(Texte(Controle::Bande_A), u"14.05"_s);
    for (const QString &texte : {u"f5abc"_s, u""_s, u"77001"_s, u""_s, u"cw"_s, u"579"_s, u"559"_s, u"vaux"_s})
        Frappe_Et_Entre(texte);
    EXPECT_EQ(Texte(Controle::Mode_A), u"CW"_s);
    EXPECT_EQ(Texte(Controle::RSTR_A), u"579"_s);
    EXPECT_EQ(Texte(Controle::RSTE_A), u"559"_s);
    EXPECT_EQ(Texte(Controle::Nom_A), u"L. VAUX"_s);
}

TEST_F(Clavier, les_fleches_choisissent_le_diplome_et_la_bande)
{
    Prepare(u"DFCF"_s);
    Touche(Qt::Key_Down);
    Touche(Qt::Key_Down);
    EXPECT_EQ(Texte(Controle::Dip_A), u"DIFI"_s);
    EXPECT_EQ(En_Main()->objectName(), u"Dip_A"_s);
    Touche(Qt::Key_Return);
    Touche(Qt::Key_Down);
    EXPECT_EQ(Texte(Controle::Bande_A), u"3.5 Mhz"_s);
    EXPECT_EQ(Reglage(section, u"bande Utilisee"_s), u"1"_s);
}

TEST_F(Clavier, une_bande_libre_se_retient_comme_moins_un_et_revient_vide)
{
    Prepare(u"DLF"_s);
    Touche(Qt::Key_Return);
    Frappe_Et_Entre(u"7.123"_s);
    EXPECT_EQ(Reglage(section, u"bande Utilisee"_s), u"-1"_s);
    for (const QString &texte : {u"f5abc"_s, u""_s, u"77001"_s, u""_s, u""_s, u""_s, u""_s, u""_s, u""_s})
        Frappe_Et_Entre(texte);
    conduite::Repond({u"Oui"_s}, [this] { Touche(Qt::Key_Return); });
    EXPECT_EQ(Lit(fichiers.Octets(u"F9ZZY_DLF.log"_s).isEmpty() ? u""_s : QSO_Affiches()[0], {76, 7}), u"7.123  "_s);
    EXPECT_EQ(Texte(Controle::Bande_A), u""_s);
}

TEST_F(Clavier, entree_dans_la_liste_ouvre_le_qso_pour_le_modifier)
{
    Installe_Station(u"DFCF"_s);
    fichiers.Pose(u"F9ZZY_DFCF.log"_s,
                  (QSO({.ref = u"77001"_s}) + u"\r\n" + QSO({.ref = u"77002"_s}) + u"\r\n").toLatin1());
    Ouvre();
    Controle_Nomme(u"Liste_QSO"_s).setFocus();
    QTest::keyClick(&Controle_Nomme(u"Liste_QSO"_s), Qt::Key_Up);
    EXPECT_EQ(Texte(Controle::Mode_Aff), u"Affichage QSO"_s);
    EXPECT_EQ(Texte(Controle::Ref_A), u"77001"_s);
    QTest::keyClick(&Controle_Nomme(u"Liste_QSO"_s), Qt::Key_Return);
    EXPECT_EQ(Texte(Controle::Mode_Aff), u"Modification QSO"_s);
    EXPECT_TRUE(Est_Actif(Controle::Ref_A));
}

TEST_F(Clavier, un_double_click_passe_par_l_affichage_et_reste_en_modification)
{
    Installe_Station(u"DFCF"_s);
    fichiers.Pose(u"F9ZZY_DFCF.log"_s, (QSO({.ref = u"77001"_s}) + u"\r\n").toLatin1());
    Ouvre();
    auto &liste = Controle_Nomme<QAbstractItemView>(u"Liste_QSO"_s);
    conduite::Clique(liste, 0);
    EXPECT_EQ(Texte(Controle::Mode_Aff), u"Affichage QSO"_s);
    EXPECT_EQ(Texte(Controle::Date_A), u"12/05/07  14"_s);
    EXPECT_FALSE(Est_Actif(Controle::Ind_A));
    conduite::Double_Clique(liste, 0);
    QTest::qWait(20);
    EXPECT_EQ(Texte(Controle::Mode_Aff), u"Modification QSO"_s);
    EXPECT_EQ(Texte(Controle::Date_A), u"12/05/07"_s);
}

TEST_F(Clavier, les_separateurs_viennent_d_eux_memes_dans_date_et_heure)
{
    Prepare(u"DLF"_s);
    Controle_Nomme<QAction>(u"Mnu_Date_Auto_Non"_s).trigger();
    Controle_Nomme<QAction>(u"Mnu_Sep_Oui"_s).trigger();
    Touche(Qt::Key_Return);
    for (const QString &texte : {u""_s, u"f5abc"_s, u""_s, u"77001"_s, u""_s})
        Frappe_Et_Entre(texte);
    Frappe(u"120507"_s);
    EXPECT_EQ(Texte(Controle::Date_A), u"12/05/07"_s);
    Touche(Qt::Key_Backspace);
    EXPECT_EQ(Texte(Controle::Date_A), u"12/05/0"_s);
    Frappe_Et_Entre(u"7"_s);
    Frappe_Et_Entre(u"1448"_s);
    EXPECT_EQ(Texte(Controle::Heure_A), u"14:48"_s);
    EXPECT_EQ(En_Main()->objectName(), u"Mode_A"_s);
}

TEST_F(Clavier, le_tout_premier_qso_d_un_nouvel_operateur)
{
    Ouvre();
    Ecran().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Ecran()));
    conduite::Pendant_Modal(
        u"Station"_s, [this] { Controle_Nomme<QAction>(u"Mnu_New_Indicatif"_s).trigger(); },
        [](QWidget &station) {
            conduite::Tape(*conduite::Trouve(station, u"New_Indicatif"_s), u"f1new"_s);
            conduite::Entree(*conduite::Trouve(station, u"New_Indicatif"_s));
            conduite::Entree(*conduite::Trouve(station, u"Validation"_s));
        });
    Touche(Qt::Key_Tab);
    EXPECT_EQ(En_Main()->objectName(), u"Ind_A"_s);
    const QStringList avant = fichiers.Fichiers();
    for (const Qt::Key touche : {Qt::Key_F, Qt::Key_Return}) {
        Controle_Nomme(u"Ind_A"_s).setFocus();
        EXPECT_EQ(conduite::Repond({}, [&] { QTest::keyClick(&Controle_Nomme(u"Ind_A"_s), touche); }),
                  std::vector<QString>{u"Selectionnez un diplome"_s});
        EXPECT_EQ(En_Main()->objectName(), u"Dip_A"_s);
        EXPECT_EQ(Texte(Controle::Ind_A), QString());
    }
    EXPECT_EQ(fichiers.Fichiers(), avant);
    for (const QString &texte :
         {u"dfcf"_s, u""_s, u"f5abc"_s, u"jean"_s, u"77001"_s, u""_s, u""_s, u""_s, u""_s, u"vaux"_s, u""_s})
        Frappe_Et_Entre(texte);
    EXPECT_EQ(conduite::Repond({u"Oui"_s}, [this] { Touche(Qt::Key_Return); }).size(), 1U);
    ASSERT_EQ(QSO_Affiches().size(), 1U);
    EXPECT_EQ(fichiers.Octets(u"F1NEW_DFCF.log"_s).size(), 113);
}

TEST_F(Clavier, apres_un_changement_de_station_un_challenge_sans_log_demande_un_diplome)
{
    Regle(section, u"Annee Challenge DFCF"_s, u"2026"_s);
    fichiers.Pose(u"F9ZZY_Ch_DFCF_2026.log"_s, QSO({.ref = u"77001A"_s}).toLatin1() + "\r\n");
    fichiers.Pose(u"F2OLD_DFCF.log"_s, {});
    Prepare(u"Ch_DFCF"_s);
    conduite::Repond({}, [this] { Touche(Qt::Key_Return); });
    Frappe_Et_Entre(u""_s);
    conduite::Pendant_Modal(
        u"Station"_s, [this] { Controle_Nomme<QAction>(u"Mnu_New_Indicatif"_s).trigger(); },
        [](QWidget &station) {
            conduite::Tape(*conduite::Trouve(station, u"New_Indicatif"_s), u"f2old"_s);
            conduite::Entree(*conduite::Trouve(station, u"New_Indicatif"_s));
            conduite::Entree(*conduite::Trouve(station, u"Validation"_s));
        });
    EXPECT_TRUE(QSO_Affiches().empty());
    const QStringList avant = fichiers.Fichiers();
    EXPECT_EQ(conduite::Repond({}, [this] { QTest::keyClick(&Controle_Nomme(u"Ind_A"_s), Qt::Key_Return); }),
              std::vector<QString>{u"Selectionnez un diplome"_s});
    EXPECT_EQ(En_Main()->objectName(), u"Dip_A"_s);
    EXPECT_EQ(fichiers.Fichiers(), avant);
}

TEST_F(Clavier, un_challenge_se_tape_dans_dip_a)
{
    Regle(section, u"Annee Challenge DFCF"_s, u"2026"_s);
    fichiers.Pose(u"F9ZZY_Ch_DFCF_2026.log"_s, {});
    Prepare(u"DFCF"_s);
    Frappe(u"ch_dfcf"_s);
    EXPECT_EQ(Texte(Controle::Dip_A), u"Ch_DFCF"_s);
    EXPECT_EQ(Controle_Nomme<QComboBox>(u"Dip_A"_s).currentText(), u"Ch_DFCF"_s);
    EXPECT_EQ(conduite::Repond({}, [this] { Touche(Qt::Key_Return); }).size(), 1U);
    EXPECT_EQ(Texte(Controle::Frame3), u"Challenge DFCF année 2026"_s);
}

TEST_F(Clavier, un_diplome_choisi_dans_la_liste_ouverte_s_ouvre)
{
    Prepare(u"DFCF"_s);
    auto &dip = Controle_Nomme<QComboBox>(u"Dip_A"_s);
    dip.showPopup();
    QTest::keyClick(dip.view(), Qt::Key_Down);
    QTest::keyClick(dip.view(), Qt::Key_Return);
    EXPECT_EQ(Texte(Controle::Frame3), u"Diplome des Fontaines de France"_s);
    EXPECT_EQ(En_Main()->objectName(), u"Bande_A"_s);
    dip.showPopup();
    const QModelIndex dlf = dip.model()->index(Rang(u"DLF"_s), 0);
    QTest::mouseClick(dip.view()->viewport(), Qt::LeftButton, {}, dip.view()->visualRect(dlf).center());
    EXPECT_EQ(Texte(Controle::Frame3), u"Diplome des Lavoirs de France"_s);
    EXPECT_EQ(Reglage(section, u"Diplome Utilise"_s), QString::number(Rang(u"DLF"_s)));
}

TEST_F(Clavier, avant_toute_station_la_liste_ouverte_n_ouvre_rien)
{
    Ouvre();
    auto &dip = Controle_Nomme<QComboBox>(u"Dip_A"_s);
    dip.showPopup();
    QTest::keyClick(dip.view(), Qt::Key_Down);
    EXPECT_EQ(conduite::Repond({}, [&] { QTest::keyClick(dip.view(), Qt::Key_Return); }).size(), 1U);
    EXPECT_FALSE(Est_Actif(Controle::Bande_A));
}

TEST_F(Clavier, chaque_controle_de_l_ecran_porte_son_nom)
{
    Prepare(u"DFCF"_s);
    for (const QString &nom :
         {u"Dip_A"_s,     u"Bande_A"_s,    u"Ind_A"_s,          u"Prenom_A"_s,      u"Ref_A"_s,     u"Dpt_A"_s,
          u"Date_A"_s,    u"Heure_A"_s,    u"Mode_A"_s,         u"RSTR_A"_s,        u"RSTE_A"_s,    u"Nom_A"_s,
          u"QSL_A"_s,     u"Valide_A"_s,   u"Efface_A"_s,       u"Annule_Saisie"_s, u"Ajout_QSO"_s, u"Detail"_s,
          u"Detail_1"_s,  u"Recherche"_s,  u"Frame3"_s,         u"Nom_L"_s,         u"Label1"_s,    u"Type_Ref"_s,
          u"Mode_Aff"_s,  u"Label15"_s,    u"Label33"_s,        u"Label34"_s,       u"Label37"_s,   u"I_Station"_s,
          u"Liste_QSO"_s, u"L_Communes"_s, u"Label_Liste_QSO"_s})
        EXPECT_NE(Ecran().findChild<QWidget *>(nom), nullptr) << nom.toStdString();
    EXPECT_EQ(Ecran().objectName(), u"Main"_s);
    EXPECT_EQ(Controle_Nomme(u"Annule_Saisie"_s).toolTip(), u"Permet d'annuler la saisie d'un Code Postal contacté"_s);
    EXPECT_EQ(Controle_Nomme(u"Ref_A"_s).toolTip(), u"R apres la référence si réactivation"_s);
    EXPECT_EQ(Controle_Nomme(u"Dip_A"_s).toolTip(), u"Touche \"Entrée\" pour valider le diplome"_s);
}

TEST_F(Clavier, l_ecran_tient_dans_1366_par_768)
{
    Prepare(u"DCF"_s);
    Touche(Qt::Key_Return);
    EXPECT_LE(Ecran().minimumSizeHint().width(), 1366);
    EXPECT_LE(Ecran().sizeHint().height(), 738) << "a title bar and a task bar take the rest";
    EXPECT_LE(Ecran().minimumSizeHint().height(), 700);
}
