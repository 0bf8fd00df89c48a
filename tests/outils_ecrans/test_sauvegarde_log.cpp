#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "outils/ecrans/Sauvegarde_Log.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Ecran_Sauvegarde : ::testing::Test {
    Poste_Essai essai;
    QPointer<Sauvegarde_Log> ecran;
    QLineEdit *chemin = nullptr;

    void Ouvre()
    {
        ecran = new Sauvegarde_Log(essai.poste);
        ecran->show();
        chemin = ecran->findChild<QLineEdit *>(u"Le_Chemin"_s);
        ASSERT_TRUE(QTest::qWaitForWindowActive(ecran));
    }
    [[nodiscard]] QPushButton *Bouton(const QString &nom) const { return ecran->findChild<QPushButton *>(nom); }
    [[nodiscard]] QString Texte(const QString &nom) const { return ecran->findChild<QLabel *>(nom)->text(); }
    [[nodiscard]] QString Reglage() const
    {
        return essai.reglages.Lit(u"Setup F9ZZY"_s, u"Chemin Sauvegarde"_s, u"absent"_s);
    }
    ~Ecran_Sauvegarde() override { delete ecran; }
};

} // namespace

TEST_F(Ecran_Sauvegarde, ses_textes)
{
    Ouvre();
    EXPECT_EQ(ecran->objectName(), u"Sauvegarde_Log"_s);
    EXPECT_EQ(ecran->windowTitle(), u"Parametres de sauvegarde"_s);
    EXPECT_EQ(Texte(u"Label4"_s), u"Parametres de sauvegarde"_s);
    EXPECT_EQ(Texte(u"Label2"_s), u"Les logs de Vorlain seront sauvegardés"_s);
    EXPECT_EQ(Texte(u"Label5"_s), u"tous les 8 jours minimum dans le répertoire défini ci-dessus"_s);
    EXPECT_EQ(Texte(u"Label3"_s), u"Répertoire de sauvegarde : exemple D:\\Sauvegarde_Vorlain_F9ZZY"_s);
    EXPECT_EQ(Texte(u"Label1"_s), u"Actuel :"_s);
    EXPECT_EQ(Bouton(u"New_Rep"_s)->text(), u"Nouveau répertoire"_s);
    EXPECT_EQ(Bouton(u"Enregistrement"_s)->text(), u"Enregistrer les parametres"_s);
}

TEST_F(Ecran_Sauvegarde, sans_reglage_montre_le_repertoire_par_defaut_ferme_a_la_saisie)
{
    Ouvre();
    EXPECT_EQ(chemin->text(), u"C:\\Sauvegarde_Vorlain"_s);
    EXPECT_FALSE(chemin->isEnabled());
}

TEST_F(Ecran_Sauvegarde, un_nouveau_repertoire_se_tape_et_s_enregistre_au_clavier_seul)
{
    Ouvre();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(chemin->isEnabled());
    EXPECT_EQ(QApplication::focusWidget(), chemin);
    QTest::keyClicks(QApplication::focusWidget(), u" /mnt/cle usb/"_s);
    while (QApplication::focusWidget() != Bouton(u"Enregistrement"_s))
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(Reglage(), u" /mnt/cle usb/"_s);
    EXPECT_TRUE(ecran.isNull() || !ecran->isVisible());
}

TEST_F(Ecran_Sauvegarde, enregistrer_ne_sauvegarde_rien)
{
    Dossier_Temporaire cible;
    essai.reglages.Ecrit(u"Setup F9ZZY"_s, u"Chemin Sauvegarde"_s, cible.Chemin());
    essai.fichiers.Pose(u"F9ZZY_DLF.log"_s, "x\r\n");
    Ouvre();
    QTest::mouseClick(Bouton(u"Enregistrement"_s), Qt::LeftButton);
    EXPECT_EQ(Reglage(), cible.Chemin());
    EXPECT_TRUE(cible.Fichiers().isEmpty());
}

TEST_F(Ecran_Sauvegarde, fermer_sans_enregistrer_garde_le_reglage)
{
    Ouvre();
    chemin->setText(u"/autre"_s);
    ecran->close();
    EXPECT_EQ(Reglage(), u"absent"_s);
}
