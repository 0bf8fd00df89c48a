#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "faux/QSO_Essai.h"
#include "outils/ecrans/ADIF.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Ecran_ADIF : ::testing::Test {
    Poste_Essai essai;
    Dossier_Temporaire ailleurs;
    QPointer<ADIF> ecran;

    void SetUp() override
    {
        essai.Ouvre(u"DFCF"_s);
        essai.fichiers.Pose(u"F9ZZY_DFCF.log"_s, "");
        ecran = new ADIF(essai.poste);
        ecran->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(ecran));
    }
    ~Ecran_ADIF() override { delete ecran; }

    [[nodiscard]] QRadioButton *Option(const QString &nom) const { return ecran->findChild<QRadioButton *>(nom); }
    [[nodiscard]] QString Texte(const QString &nom) const { return ecran->findChild<QLabel *>(nom)->text(); }
    void Appuie() const { QTest::mouseClick(ecran->findChild<QPushButton *>(u"Importer"_s), Qt::LeftButton); }
    /// What happens in the dialogue that the next press opens.
    static void Dans_Le_Dialogue(const std::function<void(QFileDialog *)> &suite)
    {
        QTimer::singleShot(0, qApp, [suite] {
            auto *dialogue = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            ASSERT_NE(dialogue, nullptr);
            suite(dialogue);
        });
    }
    static void Choisit(const QString &chemin)
    {
        Dans_Le_Dialogue([chemin](QFileDialog *dialogue) {
            dialogue->findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(chemin);
            QTest::keyClick(dialogue->findChild<QLineEdit *>(u"fileNameEdit"_s), Qt::Key_Return);
        });
    }
    void Pose(const QString &nom, int enregistrements) const
    {
        QByteArray octets("<EOH>\r\n");
        for (int i = 0; i < enregistrements; ++i)
            octets += "<CALL:5>F5ABC <STATE:2>77 <SIG:5>" + QByteArray::number(10000 + i) +
                      " <QSO_DATE:8>20150926 <TIME_ON:4>1405 <BAND:3>20M <EOR>\r\n";
        ailleurs.Pose(nom, octets);
    }
};

/// Whether a widget was shown, and whether the screen showed a busy cursor then.
class Temoin : public QObject {
public:
    bool montre = false;
    bool occupe = false;

protected:
    bool eventFilter(QObject *objet, QEvent *evenement) override
    {
        if (evenement->type() == QEvent::Show) {
            montre = true;
            occupe = qobject_cast<QWidget *>(objet)->window()->cursor().shape() == Qt::WaitCursor;
        }
        return false;
    }
};

} // namespace

TEST_F(Ecran_ADIF, ce_qui_dure_plus_d_une_seconde_montre_son_avance_et_le_reste_non)
{
    ailleurs.Pose(u"DFCF.adi"_s,
                  "<EOH>\r\n<CALL:1>A <STATE:2>77 <SIG:1>1 <QSO_DATE:8>20150926 <BAND:3>20M <EOR>\r\n"
                  "<CALL:1>B <STATE:2>77 <SIG:1>2 <QSO_DATE:8>20150926 <TIME_ON:4>1405 <BAND:3>20M <EOR>");
    for (const bool lentement : {false, true}) {
        if (lentement)
            essai.boites.pendant_message = [] { QThread::msleep(1050); };
        delete ecran;
        ecran = new ADIF(essai.poste);
        ecran->show();
        Temoin temoin;
        ecran->findChild<QProgressBar *>(u"Progression"_s)->installEventFilter(&temoin);
        Choisit(ailleurs.Chemin(u"DFCF.adi"_s));
        Appuie();
        EXPECT_EQ(temoin.montre, lentement);
        EXPECT_EQ(temoin.occupe, lentement);
    }
}

TEST_F(Ecran_ADIF, une_seconde_importation_commence_une_nouvelle_attente)
{
    ecran->setAttribute(Qt::WA_DeleteOnClose, false);
    ailleurs.Pose(u"lent_DFCF.adi"_s,
                  "<EOH>\r\n<CALL:1>A <STATE:2>77 <SIG:1>1 <QSO_DATE:8>20150926 <BAND:3>20M <EOR>\r\n"
                  "<CALL:1>B <STATE:2>77 <SIG:1>2 <QSO_DATE:8>20150926 <TIME_ON:4>1405 <BAND:3>20M <EOR>");
    Pose(u"vite_DFCF.adi"_s, 3);
    auto *barre = ecran->findChild<QProgressBar *>(u"Progression"_s);
    essai.boites.pendant_message = [] { QThread::msleep(1050); };
    Choisit(ailleurs.Chemin(u"lent_DFCF.adi"_s));
    Appuie();
    EXPECT_TRUE(barre->isHidden());
    EXPECT_EQ(ecran->cursor().shape(), Qt::ArrowCursor);
    ecran->show();
    Temoin temoin;
    barre->installEventFilter(&temoin);
    Choisit(ailleurs.Chemin(u"vite_DFCF.adi"_s));
    Appuie();
    EXPECT_FALSE(temoin.montre);
}

TEST_F(Ecran_ADIF, un_ecran_ferme_derriere_le_dialogue_rend_le_log_mis_de_cote)
{
    const QByteArray log = (QSO({.ref = u"01001"_s}) + u"\r\n").toLatin1();
    essai.fichiers.Pose(u"F9ZZY_DFCF.log"_s, log);
    for (const bool remplace : {true, false}) {
        Option(remplace ? u"Remplace"_s : u"Ajout"_s)->click();
        Dans_Le_Dialogue([this](QFileDialog *) { ecran->close(); });
        ecran->findChild<QPushButton *>(u"Importer"_s)->click();
        EXPECT_TRUE(ecran.isNull());
        EXPECT_EQ(essai.fichiers.Octets(u"F9ZZY_DFCF.log"_s), log);
        EXPECT_FALSE(essai.fichiers.Existe(u"F9ZZY_DFCF.bak"_s));
        ecran = new ADIF(essai.poste);
        ecran->show();
    }
}

TEST_F(Ecran_ADIF, un_ecran_ferme_pendant_une_question_de_l_import_laisse_l_import_finir)
{
    ailleurs.Pose(u"DFCF.adi"_s, "<EOH>\r\n<CALL:1>A <STATE:2>77 <SIG:1>1 <QSO_DATE:8>20150926 <BAND:3>20M <EOR>");
    essai.boites.pendant_message = [this] { delete ecran; };
    Choisit(ailleurs.Chemin(u"DFCF.adi"_s));
    ecran->findChild<QPushButton *>(u"Importer"_s)->click();
    EXPECT_TRUE(ecran.isNull());
    EXPECT_EQ(essai.ecran.liste.size(), 1U);
}

TEST_F(Ecran_ADIF, ses_textes)
{
    EXPECT_EQ(ecran->objectName(), u"ADIF"_s);
    EXPECT_EQ(ecran->windowTitle(), u"Importer un fichier ADIF"_s);
    EXPECT_EQ(Texte(u"Label2"_s), u"Importer un log DFCF"_s);
    EXPECT_EQ(Texte(u"Label1"_s), u"Pour un fichier ADIF ne comportant qu'un seul diplome"_s);
    EXPECT_EQ(Texte(u"Label3"_s), u"Pour un fichier ADIF comportant plusieurs diplomes"_s);
    EXPECT_EQ(Option(u"R_Simple"_s)->text(), u"Format de la référence : 93013"_s);
    EXPECT_EQ(Option(u"R_Multi"_s)->text(), u"Format de la référence : DMF-93013"_s);
    EXPECT_EQ(Option(u"Remplace"_s)->text(), u"Remplacer le log DFCF"_s);
    EXPECT_EQ(Option(u"Ajout"_s)->text(), u"Ajouter le fichier ADIF au log DFCF"_s);
    EXPECT_EQ(ecran->findChild<QPushButton *>(u"Importer"_s)->text(), u"Importer"_s);
}

TEST_F(Ecran_ADIF, s_ouvre_sur_le_choix_qui_ne_detruit_rien)
{
    EXPECT_TRUE(Option(u"R_Simple"_s)->isChecked());
    EXPECT_TRUE(Option(u"Ajout"_s)->isChecked());
}

TEST_F(Ecran_ADIF, les_deux_groupes_sont_independants)
{
    QTest::mouseClick(Option(u"R_Multi"_s), Qt::LeftButton, {}, {8, Option(u"R_Multi"_s)->height() / 2});
    QTest::mouseClick(Option(u"Remplace"_s), Qt::LeftButton, {}, {8, Option(u"Remplace"_s)->height() / 2});
    EXPECT_TRUE(Option(u"R_Multi"_s)->isChecked());
    EXPECT_FALSE(Option(u"R_Simple"_s)->isChecked());
    EXPECT_TRUE(Option(u"Remplace"_s)->isChecked());
    EXPECT_FALSE(Option(u"Ajout"_s)->isChecked());
}

TEST_F(Ecran_ADIF, le_fichier_choisi_est_importe_et_l_ecran_se_ferme)
{
    Pose(u"F9ZZY_DFCF.adi"_s, 3);
    Choisit(ailleurs.Chemin(u"F9ZZY_DFCF.adi"_s));
    Appuie();
    EXPECT_EQ(essai.ecran.liste.size(), 3U);
    EXPECT_TRUE(ecran.isNull() || !ecran->isVisible());
    EXPECT_TRUE(essai.boites.messages.empty());
}

TEST_F(Ecran_ADIF, les_options_vont_a_l_import)
{
    essai.fichiers.Pose(u"F9ZZY_DFCF.log"_s, (QSO({.ref = u"01001"_s}) + u"\r\n").toLatin1());
    Option(u"Remplace"_s)->click();
    Option(u"R_Multi"_s)->click();
    // Without a code before the reference nothing is taken in that format, and the file may bear any name.
    Pose(u"log.adi"_s, 3);
    Choisit(ailleurs.Chemin(u"log.adi"_s));
    Appuie();
    EXPECT_EQ(essai.fichiers.Octets(u"F9ZZY_DFCF.log"_s), QByteArray());
}

TEST_F(Ecran_ADIF, annuler_le_dialogue_laisse_l_ecran_ouvert)
{
    Option(u"Remplace"_s)->click();
    Dans_Le_Dialogue([](QFileDialog *dialogue) { QTest::keyClick(dialogue, Qt::Key_Escape); });
    Appuie();
    EXPECT_EQ(essai.boites.messages, std::vector{u"selectionnez un fichier ou quitter"_s});
    EXPECT_TRUE(ecran && ecran->isVisible());
}

TEST_F(Ecran_ADIF, le_dialogue_est_celui_de_qt_en_francais_et_ne_montre_que_les_adi)
{
    Option(u"Remplace"_s)->click();
    Dans_Le_Dialogue([](QFileDialog *dialogue) {
        EXPECT_TRUE(dialogue->testOption(QFileDialog::DontUseNativeDialog));
        EXPECT_EQ(dialogue->nameFilters(), QStringList{u".adi (adi) (*.adi)"_s});
        EXPECT_EQ(dialogue->findChild<QComboBox *>(u"fileTypeCombo"_s)->currentText(), u".adi (adi)"_s);
        EXPECT_TRUE(dialogue->findChild<QLineEdit *>(u"fileNameEdit"_s)->text().isEmpty());
        EXPECT_EQ(dialogue->fileMode(), QFileDialog::ExistingFile);
        QStringList boutons;
        for (const auto *bouton : dialogue->findChildren<QAbstractButton *>())
            boutons.append(bouton->text().remove(u'&'));
        EXPECT_TRUE(boutons.contains(u"Ouvrir"_s)) << boutons.join(u" "_s).toStdString();
        EXPECT_TRUE(boutons.contains(u"Annuler"_s)) << boutons.join(u" "_s).toStdString();
        dialogue->reject();
    });
    Appuie();
}

TEST_F(Ecran_ADIF, le_dialogue_retrouve_le_dernier_dossier)
{
    Option(u"Remplace"_s)->click();
    Pose(u"log.adi"_s, 1);
    Choisit(ailleurs.Chemin(u"log.adi"_s));
    Appuie();
    QString dossier;
    Dans_Le_Dialogue([&](QFileDialog *dialogue) {
        dossier = dialogue->directory().absolutePath();
        dialogue->reject();
    });
    Appuie();
    EXPECT_EQ(dossier, ailleurs.Chemin());
    // Also for the screen that is opened after this one.
    EXPECT_EQ(essai.etat.dossier_adif, ailleurs.Chemin());
}

TEST_F(Ecran_ADIF, le_clavier_seul_importe)
{
    const auto tabulation = [] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab); };
    tabulation();
    EXPECT_EQ(QApplication::focusWidget(), Option(u"R_Simple"_s));
    tabulation();
    EXPECT_EQ(QApplication::focusWidget(), Option(u"Ajout"_s));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
    EXPECT_TRUE(Option(u"Remplace"_s)->isChecked());
    Pose(u"F9ZZY_DFCF.adi"_s, 2);
    Choisit(ailleurs.Chemin(u"F9ZZY_DFCF.adi"_s));
    tabulation();
    EXPECT_EQ(QApplication::focusWidget(), ecran->findChild<QPushButton *>(u"Importer"_s));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(essai.ecran.liste.size(), 2U);
}
