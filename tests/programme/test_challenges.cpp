#include "programme/Programme_Essai.h"

#include "faux/QSO_Essai.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

class Challenges : public Programme_Essai {
protected:
    /// A station with a log of 2026 for the castles and one of 2025 for the mills, and the castles open.
    void Ouvre_Les_Chateaux()
    {
        Installe_Station(u"Ch_DFCF"_s);
        Regle(section, u"Annee Challenge DFCF"_s, u"2026"_s);
        Regle(section, u"Annee Challenge DMF"_s, u"2025"_s);
        fichiers.Pose(chateaux, QSO({.ref = u"77001R"_s, .nom = u"C. DE VAUX"_s}).toLatin1() + "\r\n");
        fichiers.Pose(moulins, QSO({.ref = u"77009A"_s, .nom = u"M. DE VAUX"_s}).toLatin1() + "\r\n");
        Ouvre();
        conduite::Repond({}, [this] { conduite::Entree(Controle_Nomme(u"Dip_A"_s)); });
    }
    std::vector<QString> Presse(const QString &bouton)
    {
        return conduite::Repond({}, [&] { Controle_Nomme<QAbstractButton>(bouton).click(); });
    }
    /// The kind and the year that the year choice of a menu entry shows.
    std::pair<QString, QString> Genre_Et_Annee(const QString &menu)
    {
        std::pair<QString, QString> lus;
        conduite::Pendant_Modal(
            u"Select_Annee"_s, [&] { Controle_Nomme<QAction>(menu).trigger(); },
            [&](QWidget &annee) {
                lus = {conduite::Trouve<QLabel>(annee, u"L_Activ"_s)->text(),
                       conduite::Trouve<QLineEdit>(annee, u"New_Annee"_s)->text()};
                annee.close();
            });
        return lus;
    }

    const QString chateaux = u"F9ZZY_Ch_DFCF_2026.log"_s;
    const QString moulins = u"F9ZZY_Ch_DMF_2025.log"_s;
};

} // namespace

TEST_F(Challenges, chaque_menu_demande_l_annee_de_son_challenge)
{
    Ouvre_Les_Chateaux();
    EXPECT_EQ(Genre_Et_Annee(u"Mnu_Année_Ch_DFCF"_s), (std::pair{u"DFCF"_s, u"2026"_s}));
    EXPECT_EQ(Genre_Et_Annee(u"Mnu_Année_Ch_DMF"_s), (std::pair{u"DMF"_s, u"2025"_s}));
}

TEST_F(Challenges, une_fleche_dans_dip_a_ne_verse_pas_les_chateaux_dans_les_moulins)
{
    Dossier_Temporaire trelune;
    trelune.Pose(u"F9ZZY.log"_s, {});
    QSettings(u"Trelune"_s, u"Trelune"_s).setValue(u"Setup/Chemin Repertoire"_s, trelune.Chemin());
    fichiers.Pose(u"Liste_DFCF.csv"_s, "Rev 001 du 01/01/12;;;;;\r\n");
    Ouvre_Les_Chateaux();
    const QByteArray avant = fichiers.Octets(moulins);
    QTest::keyClick(&Controle_Nomme(u"Dip_A"_s), Qt::Key_Down);
    ASSERT_EQ(Texte(Controle::Dip_A), u"Ch_DMF"_s);
    Presse(u"Detail_1"_s);
    EXPECT_EQ(fichiers.Octets(moulins), avant);
    EXPECT_EQ(fichiers.Octets(chateaux), QByteArray()) << "the sibling has no QSO of the year";
}

TEST_F(Challenges, une_fleche_dans_dip_a_puis_detail_redemande_un_diplome)
{
    Ouvre_Les_Chateaux();
    const QByteArray avant = fichiers.Octets(chateaux) + fichiers.Octets(moulins);
    QTest::keyClick(&Controle_Nomme(u"Dip_A"_s), Qt::Key_Down);
    Controle_Nomme(u"Detail"_s).setFocus();
    EXPECT_EQ(Presse(u"Detail"_s), std::vector<QString>{u"Selectionnez un diplome"_s});
    EXPECT_EQ(fichiers.Octets(chateaux) + fichiers.Octets(moulins), avant);
    EXPECT_EQ(Ecran().focusWidget(), &Controle_Nomme(u"Dip_A"_s));
}
