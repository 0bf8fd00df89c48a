#include "faux/Impression.h"
#include "faux/Impression_PDF.h"
#include "faux/Serveur_D_Impression.h"
#include "plateforme/qt/Imprimante_Qt.h"
#include "plateforme/qt/Mise_En_Page.h"

#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QFontMetricsF>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTemporaryDir>

#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

using impression::Lignes_Ecrites;
using impression::Pages;

class Impression_PDF : public ::testing::Test {
protected:
    Impression_PDF()
    {
        imprimante_.setOutputFormat(QPrinter::PdfFormat);
        imprimante_.setOutputFileName(pdf_);
        imprimante_.setPageSize(QPageSize(QPageSize::A4));
    }

    [[nodiscard]] QFont Police(const std::vector<QString> &lignes)
    {
        return Mise_En_Page(imprimante_, lignes).Police();
    }

    QTemporaryDir dossier_;
    QString pdf_ = dossier_.filePath(u"liste.pdf"_s);
    QPrinter imprimante_{QPrinter::HighResolution};
};

TEST_F(Impression_PDF, les_lignes_sortent_dans_l_ordre_avec_leurs_colonnes)
{
    ASSERT_EQ(Imprime_Lignes(imprimante_, {u"   N°   Réf    Nom"_s, QString(), u"    1   77001  FORÊT À L'EST"_s}),
              std::nullopt);
    const QStringList lignes = Lignes_Ecrites(pdf_);
    ASSERT_EQ(lignes.size(), 2);
    // pdftotext drops the blanks that all lines begin with; those between the columns stay.
    EXPECT_EQ(lignes[0].trimmed().simplified(), u"N° Réf Nom"_s);
    EXPECT_EQ(lignes[1].trimmed().simplified(), u"1 77001 FORÊT À L'EST"_s);
    EXPECT_EQ(lignes[0].indexOf(u"Nom"_s), lignes[1].indexOf(u"FORÊT"_s));
}

TEST_F(Impression_PDF, la_suite_va_sur_les_pages_suivantes)
{
    std::vector<QString> lignes;
    for (int i = 1; i <= 150; ++i)
        lignes.push_back(u"ligne %1"_s.arg(i));
    ASSERT_EQ(Imprime_Lignes(imprimante_, lignes), std::nullopt);
    const QStringList pages = Pages(pdf_);
    EXPECT_GE(pages.size(), 2);
    EXPECT_TRUE(pages.constFirst().startsWith(u"ligne 1\n"_s));
    EXPECT_FALSE(pages.constFirst().contains(u"ligne 150"_s));
    EXPECT_EQ(Lignes_Ecrites(pdf_), QStringList(lignes.begin(), lignes.end()));
}

TEST_F(Impression_PDF, la_police_est_fixe_grasse_et_de_neuf_points)
{
    const QFont police = Police({QString(86, u'M')});
    EXPECT_TRUE(police.bold());
    EXPECT_EQ(police.families().constFirst(), u"Courier New"_s);
    const QFontMetricsF mesure(police, &imprimante_);
    for (const QChar caractere : u"iW é'*/1"_s)
        EXPECT_EQ(mesure.horizontalAdvance(caractere), mesure.horizontalAdvance(u'M'));
    EXPECT_DOUBLE_EQ(police.pointSizeF(), 9);
}

TEST_F(Impression_PDF, une_ligne_trop_large_reduit_la_police_et_n_est_pas_coupee)
{
    const QString ligne = QString(149, u'M') + u'Z';
    EXPECT_LT(Police({ligne}).pointSizeF(), 9);
    ASSERT_EQ(Imprime_Lignes(imprimante_, {ligne}), std::nullopt);
    EXPECT_EQ(Lignes_Ecrites(pdf_), QStringList{ligne});
}

TEST_F(Impression_PDF, un_caractere_sans_largeur_ne_decale_pas_sa_ligne)
{
    const auto marge = [&](const QString &ligne) {
        EXPECT_EQ(Imprime_Lignes(imprimante_, {u"123456789012345678901234567890"_s, ligne}), std::nullopt);
        const QStringList lignes = Lignes_Ecrites(pdf_);
        return lignes.value(1).indexOf(u"FIN"_s);
    };
    const qsizetype voulue = marge(u"NOM ENTIER          FIN"_s);
    EXPECT_EQ(voulue, 20);
    EXPECT_EQ(marge(u"NOM\tENTIER          FIN"_s), voulue);
    EXPECT_EQ(marge(u"NOM\u00ADENTIER          FIN"_s), voulue);
    EXPECT_EQ(marge(u"NOM\u00ADENTIER\u00AD\u00AD\u00AD\t\t\u0001\u009D\u00A0  FIN"_s), voulue);
    EXPECT_TRUE(Lignes_Ecrites(pdf_).value(1).startsWith(u"NOM-ENTIER---"_s));
}

TEST_F(Impression_PDF, le_curseur_attend_pendant_l_impression)
{
    struct Temoin : QPrinter {
        using QPrinter::QPrinter;
        int metric(PaintDeviceMetric mesure) const override
        {
            attend =
                attend || (QApplication::overrideCursor() && QApplication::overrideCursor()->shape() == Qt::WaitCursor);
            return QPrinter::metric(mesure);
        }
        mutable bool attend = false;
    };
    Temoin temoin(QPrinter::HighResolution);
    temoin.setOutputFileName(pdf_);
    ASSERT_EQ(Imprime_Lignes(temoin, {u"ligne"_s}), std::nullopt);
    EXPECT_TRUE(temoin.attend);
    EXPECT_FALSE(QApplication::overrideCursor());
}

TEST_F(Impression_PDF, un_fichier_inaccessible_est_dit_en_mots)
{
    const QString absent = dossier_.filePath(u"absent/liste.pdf"_s);
    imprimante_.setOutputFileName(absent);
    const auto empechement = Imprime_Lignes(imprimante_, {u"ligne"_s});
    ASSERT_TRUE(empechement);
    EXPECT_TRUE(empechement->startsWith(u"L'impression a échoué : "_s + absent));
}

TEST_F(Impression_PDF, un_disque_plein_est_dit_en_mots)
{
    imprimante_.setOutputFileName(u"/dev/full"_s);
    EXPECT_EQ(Imprime_Lignes(imprimante_, {u"ligne"_s}), u"L'impression a échoué : /dev/full (le disque est plein)"_s);
}

TEST_F(Impression_PDF, un_fichier_de_ce_nom_est_remplace_sans_reste)
{
    for (const QString &ligne : {u"avant"_s, u"apres"_s}) {
        ASSERT_EQ(Imprime_Lignes(imprimante_, {ligne}), std::nullopt);
        EXPECT_EQ(Lignes_Ecrites(pdf_), QStringList{ligne});
    }
    EXPECT_EQ(QDir(dossier_.path()).entryList(QDir::Files), QStringList{u"liste.pdf"_s});
}

namespace {

struct Impression_Au_Dialogue : ::testing::Test {
    QTemporaryDir dossier;
    QString pdf = dossier.filePath(u"choisi.pdf"_s);

    [[nodiscard]] std::optional<QString> Imprime(const std::vector<QString> &lignes,
                                                 const std::function<void(QPrintDialog &)> &geste) const
    {
        std::optional<QString> refus;
        impression::Pendant_Le_Dialogue([&] { refus = Imprimante_Qt().Imprime(u"Liste DFCF bande HF"_s, lignes); },
                                        geste);
        return refus;
    }
    /// Three pages, each of which names itself in its first line.
    [[nodiscard]] static std::vector<QString> Trois_Pages(QPrinter &imprimante)
    {
        int par_page = 1;
        while (
            Mise_En_Page(imprimante, std::vector<QString>(static_cast<std::size_t>(par_page + 1))).Nombre_De_Pages() ==
            1)
            ++par_page;
        std::vector<QString> lignes(static_cast<std::size_t>(3 * par_page));
        for (int page = 0; page < 3; ++page)
            lignes[static_cast<std::size_t>(page * par_page)] = u"page %1"_s.arg(page + 1);
        return lignes;
    }
    [[nodiscard]] QStringList Pages_Avec(const std::function<void(QPrintDialog &)> &reglage) const
    {
        QPrinter mesure(QPrinter::HighResolution);
        EXPECT_EQ(Imprime(Trois_Pages(mesure),
                          [&](QPrintDialog &choix) {
                              reglage(choix);
                              impression::Choisit_Fichier(choix, pdf);
                          }),
                  std::nullopt);
        return Lignes_Ecrites(pdf);
    }
    [[nodiscard]] QString Fiche_Du_PDF(const QString &cle) const
    {
        QProcess lecture;
        lecture.start(u"pdfinfo"_s, {pdf});
        lecture.waitForFinished();
        for (const QString &ligne : QString::fromUtf8(lecture.readAllStandardOutput()).split(u'\n'))
            if (ligne.startsWith(cle + u':'))
                return ligne.section(u':', 1).trimmed();
        return {};
    }
};

} // namespace

TEST_F(Impression_Au_Dialogue, imprime_dans_un_fichier_PDF)
{
    QString titre;
    EXPECT_EQ(Imprime({u"une ligne"_s},
                      [&](QPrintDialog &choix) {
                          titre = choix.windowTitle();
                          impression::Choisit_Fichier(choix, pdf);
                      }),
              std::nullopt);
    EXPECT_EQ(titre, u"Imprimer"_s);
    EXPECT_EQ(Lignes_Ecrites(pdf), QStringList{u"une ligne"_s});
    EXPECT_EQ(Fiche_Du_PDF(u"Title"_s), u"Vorlain - Liste DFCF bande HF"_s);
}

TEST_F(Impression_Au_Dialogue, une_liste_large_propose_le_paysage_et_garde_ses_neuf_points)
{
    const auto sens = [&](int colonnes) {
        EXPECT_EQ(
            Imprime({QString(colonnes, u'M')}, [&](QPrintDialog &choix) { impression::Choisit_Fichier(choix, pdf); }),
            std::nullopt);
        const QStringList taille = Fiche_Du_PDF(u"Page size"_s).split(u' ');
        return taille.value(0).toDouble() > taille.value(2).toDouble();
    };
    EXPECT_FALSE(sens(86));
    EXPECT_TRUE(sens(130));
}

TEST_F(Impression_Au_Dialogue, les_pages_choisies_sortent_seules)
{
    EXPECT_EQ(Pages_Avec([](QPrintDialog &) {}), (QStringList{u"page 1"_s, u"page 2"_s, u"page 3"_s}));
    EXPECT_EQ(Pages_Avec([](QPrintDialog &choix) {
                  choix.findChild<QRadioButton *>(u"printRange"_s)->setChecked(true);
                  choix.findChild<QSpinBox *>(u"to"_s)->setValue(3);
                  choix.findChild<QSpinBox *>(u"from"_s)->setValue(2);
              }),
              (QStringList{u"page 2"_s, u"page 3"_s}));
}

TEST_F(Impression_Au_Dialogue, des_pages_qui_n_existent_pas_sont_dites_en_mots)
{
    EXPECT_EQ(Imprime({u"une ligne"_s},
                      [&](QPrintDialog &choix) {
                          choix.findChild<QRadioButton *>(u"printRange"_s)->setChecked(true);
                          choix.findChild<QSpinBox *>(u"to"_s)->setValue(9);
                          choix.findChild<QSpinBox *>(u"from"_s)->setValue(7);
                          impression::Choisit_Fichier(choix, pdf);
                      }),
              u"Aucune des pages choisies n'existe : rien n'a été imprimé"_s);
    EXPECT_FALSE(QFile::exists(pdf));
}

TEST_F(Impression_Au_Dialogue, l_ordre_et_les_copies_choisis_sont_dans_le_PDF)
{
    EXPECT_EQ(Pages_Avec([](QPrintDialog &choix) { choix.findChild<QCheckBox *>(u"reverse"_s)->setChecked(true); }),
              (QStringList{u"page 3"_s, u"page 2"_s, u"page 1"_s}));
    const auto copies = [](bool assemble) {
        return [=](QPrintDialog &choix) {
            choix.findChild<QSpinBox *>(u"copies"_s)->setValue(2);
            choix.findChild<QCheckBox *>(u"collate"_s)->setChecked(assemble);
        };
    };
    EXPECT_EQ(Pages_Avec(copies(true)),
              (QStringList{u"page 1"_s, u"page 2"_s, u"page 3"_s, u"page 1"_s, u"page 2"_s, u"page 3"_s}));
    EXPECT_EQ(Pages_Avec(copies(false)),
              (QStringList{u"page 1"_s, u"page 1"_s, u"page 2"_s, u"page 2"_s, u"page 3"_s, u"page 3"_s}));
}

TEST_F(Impression_Au_Dialogue, le_dialogue_s_en_va_avec_l_ecran_qui_l_a_ouvert)
{
    const QPointer<QWidget> ecran = new QWidget;
    ecran->show();
    ecran->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(ecran));
    EXPECT_EQ(Imprime({u"une ligne"_s}, [&](QPrintDialog &) { delete ecran; }), std::nullopt);
    EXPECT_TRUE(ecran.isNull());
    EXPECT_TRUE(QDir(dossier.path()).isEmpty());
}

TEST_F(Impression_Au_Dialogue, sans_imprimante_un_dialogue_ferme_est_dit_en_mots)
{
    if (!QPrinterInfo::defaultPrinter().isNull())
        GTEST_SKIP() << "this machine has a printer, which would print";
    EXPECT_EQ(Imprime({u"une ligne"_s}, [](QPrintDialog &choix) { choix.reject(); }),
              u"Aucune imprimante n'est disponible : rien n'a été imprimé"_s);
}

namespace {

std::optional<QString> Imprime_Sur(const QString &imprimante)
{
    QPrinter choisie(QPrinter::HighResolution);
    choisie.setPrinterName(imprimante);
    choisie.setDocName(u"Vorlain - Liste"_s);
    EXPECT_EQ(choisie.printerName(), imprimante);
    return Imprime_Lignes(choisie, {u"une ligne"_s});
}

} // namespace

TEST(Serveur_D_Impression, un_travail_accepte_porte_son_nom)
{
    const Serveur_D_Impression serveur(0);
    EXPECT_EQ(Imprime_Sur(u"Essai"_s), std::nullopt);
    const auto contient = [&](const QByteArray &octets) {
        return std::any_of(serveur.demandes.begin(), serveur.demandes.end(),
                           [&](const QByteArray &demande) { return demande.contains(octets); });
    };
    EXPECT_TRUE(contient("Vorlain - Liste"));
    EXPECT_TRUE(contient("%PDF-"));
}

TEST(Serveur_D_Impression, un_travail_refuse_est_dit_en_mots)
{
    const Serveur_D_Impression serveur(0x0506);
    EXPECT_EQ(Imprime_Sur(u"Essai"_s),
              u"L'impression a échoué : l'imprimante a refusé le travail (la file est fermée)"_s);
}
