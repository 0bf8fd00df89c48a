#include "programme/Programme_Essai.h"

#include "faux/QSO_Essai.h"

#include <QLineEdit>
#include <QPointer>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

class Stations : public Programme_Essai {
protected:
    /// Opens the station screen, types and presses Enter twice; gives the texts of the boxes. `apres` sees the screen
    /// after the validation, if it stayed open, and closes it.
    std::vector<QString> Saisit_Station(
        const QString &texte, const std::function<void(QWidget &)> &apres = [](QWidget &) {})
    {
        std::vector<QString> messages;
        conduite::Pendant_Modal(
            u"Station"_s, [this] { Controle_Nomme<QAction>(u"Mnu_New_Indicatif"_s).trigger(); },
            [&](QWidget &ecran) {
                auto *champ = conduite::Trouve<QLineEdit>(ecran, u"New_Indicatif"_s);
                EXPECT_EQ(champ->text(), u""_s);
                conduite::Tape(*champ, texte);
                conduite::Entree(*champ);
                const QPointer<QWidget> ouvert = &ecran;
                messages = conduite::Repond({}, [&] { conduite::Entree(*conduite::Trouve(ecran, u"Validation"_s)); });
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
                if (ouvert && ouvert->isVisible()) {
                    apres(*ouvert);
                    ouvert->close();
                }
            });
        return messages;
    }
};

} // namespace

TEST_F(Stations, une_barre_oblique_devient_un_trait_bas_dans_le_champ_et_les_fichiers_et_revient_a_l_ecran)
{
    Ouvre();
    conduite::Pendant_Modal(
        u"Station"_s, [this] { Controle_Nomme<QAction>(u"Mnu_New_Indicatif"_s).trigger(); },
        [](QWidget &ecran) {
            EXPECT_EQ(ecran.windowTitle(), u"Selection Indicaif"_s);
            auto *champ = conduite::Trouve<QLineEdit>(ecran, u"New_Indicatif"_s);
            conduite::Tape(*champ, u"f9zzy/p"_s);
            EXPECT_EQ(champ->text(), u"F9ZZY_P"_s);
            conduite::Entree(*champ);
            EXPECT_EQ(champ->palette().color(QPalette::Base), QColor(Qt::white));
            conduite::Entree(*conduite::Trouve(ecran, u"Validation"_s));
        });
    EXPECT_TRUE(fichiers.Existe(u"F9ZZY_P_DFCF.log"_s));
    EXPECT_EQ(Texte(Controle::I_Station), u"F9ZZY/P"_s);
    EXPECT_EQ(Reglage(u"Setup "_s, u"Indicatif Station"_s), u"F9ZZY_P"_s);
    EXPECT_EQ(Reglage(u"Setup F9ZZY_P"_s, u"bande Utilisee"_s), u"0"_s);
    EXPECT_EQ(Reglage(u"Setup F9ZZY_P"_s, u"Mode Utilise"_s), u"0"_s);
}

TEST_F(Stations, une_station_neuve_a_vingt_et_un_logs_vides)
{
    Ouvre();
    Saisit_Station(u"F1NEW"_s);
    QStringList logs = fichiers.Fichiers().filter(QRegularExpression(u"^F1NEW_.*\\.log$"_s));
    EXPECT_EQ(logs.size(), 21);
    EXPECT_TRUE(logs.contains(u"F1NEW_Ch_DFCF.log"_s));
    EXPECT_TRUE(logs.contains(u"F1NEW_Ch_DMF.log"_s));
    for (const QString &log : logs)
        EXPECT_EQ(fichiers.Octets(log), QByteArray()) << log.toStdString();
}

TEST_F(Stations, une_station_connue_garde_ses_logs_et_montre_celui_du_diplome_ouvert)
{
    Installe_Station(u"DFCF"_s);
    const QByteArray log = QSO({.ref = u"77001"_s}).toLatin1() + "\r\n";
    fichiers.Pose(u"F2OLD_DFCF.log"_s, log);
    Regle(u"Setup F2OLD"_s, u"bande Utilisee"_s, u"2"_s);
    Ouvre();
    EXPECT_TRUE(Saisit_Station(u"F2OLD"_s).empty());
    EXPECT_EQ(fichiers.Octets(u"F2OLD_DFCF.log"_s), log);
    EXPECT_FALSE(fichiers.Existe(u"F2OLD_DMF.log"_s));
    EXPECT_EQ(QSO_Affiches().size(), 1U);
    EXPECT_EQ(Texte(Controle::Bande_A), u"7.0 Mhz"_s);
}

TEST_F(Stations, les_refus_laissent_la_station_comme_elle_est)
{
    Installe_Station(u"DFCF"_s);
    Ouvre();
    EXPECT_EQ(Saisit_Station(u""_s), std::vector<QString>{u"Vous devez entrer un indicatif"_s});
    EXPECT_EQ(Saisit_Station(u"F1234567890AB"_s), std::vector<QString>{u"12 caracteres maximum pour l'indicatif"_s});
    bool vide = false;
    EXPECT_EQ(Saisit_Station(u"F9-ZZY"_s,
                             [&](QWidget &ecran) {
                                 vide = conduite::Trouve<QLineEdit>(ecran, u"New_Indicatif"_s)->text().isEmpty();
                             }),
              std::vector<QString>{u"L'indicatif ne doit comporter que des lettres des chiffres ou le signe '_' "_s});
    EXPECT_TRUE(vide);
    EXPECT_EQ(Reglage(u"Setup "_s, u"Indicatif Station"_s), u"F9ZZY"_s);
    // The entry still works on the station that was there.
    conduite::Repond({}, [this] { conduite::Entree(Controle_Nomme(u"Dip_A"_s)); });
    EXPECT_FALSE(fichiers.Existe(u"F9-ZZY_DFCF.log"_s));
    EXPECT_EQ(Texte(Controle::I_Station), u"F9ZZY"_s);
}

TEST_F(Stations, les_annees_des_challenges_suivent_la_station)
{
    Installe_Station(u"Ch_DFCF"_s);
    Regle(section, u"Annee Challenge DFCF"_s, u"2025"_s);
    fichiers.Pose(u"F9ZZY_Ch_DFCF_2025.log"_s, {});
    fichiers.Pose(u"F2OLD_DFCF.log"_s, {});
    fichiers.Pose(u"F2OLD_Ch_DFCF_2026.log"_s, QSO({.ref = u"77001A"_s}).toLatin1() + "\r\n");
    Regle(u"Setup F2OLD"_s, u"Annee Challenge DFCF"_s, u"2026"_s);
    Ouvre();
    Saisit_Station(u"F2OLD"_s);
    EXPECT_EQ(QSO_Affiches().size(), 1U);
}
