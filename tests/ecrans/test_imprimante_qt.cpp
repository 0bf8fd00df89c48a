#include "faux/Impression.h"
#include "faux/Impression_PDF.h"
#include "plateforme/qt/Imprimante_Qt.h"

#include <QFontInfo>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

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

    QTemporaryDir dossier_;
    QString pdf_ = dossier_.filePath(u"liste.pdf"_s);
    QPrinter imprimante_{QPrinter::HighResolution};
};

TEST_F(Impression_PDF, les_lignes_sortent_dans_l_ordre_avec_leurs_colonnes)
{
    ASSERT_TRUE(Imprime_Lignes(imprimante_, {u"   N°   Réf    Nom"_s, QString(), u"    1   77001  FORÊT À L'EST"_s}));
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
    ASSERT_TRUE(Imprime_Lignes(imprimante_, lignes));
    const QStringList pages = Pages(pdf_);
    EXPECT_GE(pages.size(), 2);
    EXPECT_TRUE(pages.constFirst().startsWith(u"ligne 1\n"_s));
    EXPECT_FALSE(pages.constFirst().contains(u"ligne 150"_s));
    EXPECT_EQ(Lignes_Ecrites(pdf_), QStringList(lignes.begin(), lignes.end()));
}

TEST_F(Impression_PDF, la_police_est_fixe_grasse_et_de_neuf_points)
{
    const QFont police = Police_D_Impression(imprimante_, {QString(86, u'M')});
    EXPECT_TRUE(police.bold());
    EXPECT_TRUE(QFontInfo(police).fixedPitch());
    EXPECT_DOUBLE_EQ(police.pointSizeF(), 9);
}

TEST_F(Impression_PDF, une_ligne_trop_large_reduit_la_police_et_n_est_pas_coupee)
{
    const QString ligne = QString(149, u'M') + u'Z';
    EXPECT_LT(Police_D_Impression(imprimante_, {ligne}).pointSizeF(), 9);
    ASSERT_TRUE(Imprime_Lignes(imprimante_, {ligne}));
    EXPECT_EQ(Lignes_Ecrites(pdf_), QStringList{ligne});
}

TEST_F(Impression_PDF, un_fichier_inaccessible_est_refuse)
{
    imprimante_.setOutputFileName(dossier_.filePath(u"absent/liste.pdf"_s));
    EXPECT_FALSE(Imprime_Lignes(imprimante_, {u"ligne"_s}));
}

TEST(Imprimante_Qt, le_dialogue_imprime_dans_un_fichier_PDF)
{
    const QTemporaryDir dossier;
    const QString pdf = dossier.filePath(u"choisi.pdf"_s);
    std::optional<QString> refus;
    QString titre;
    impression::Pendant_Le_Dialogue([&] { refus = Imprimante_Qt().Imprime({u"une ligne"_s}); },
                                    [&](QPrintDialog &choix) {
                                        titre = choix.windowTitle();
                                        impression::Choisit_Fichier(choix, pdf);
                                    });
    EXPECT_EQ(refus, std::nullopt);
    EXPECT_EQ(titre, u"Imprimer"_s);
    EXPECT_EQ(Lignes_Ecrites(pdf), QStringList{u"une ligne"_s});
}

TEST(Imprimante_Qt, sans_imprimante_un_dialogue_ferme_est_dit_en_mots)
{
    if (!QPrinterInfo::defaultPrinter().isNull())
        GTEST_SKIP() << "this machine has a printer, which would print";
    std::optional<QString> refus;
    impression::Pendant_Le_Dialogue([&] { refus = Imprimante_Qt().Imprime({u"une ligne"_s}); },
                                    [](QPrintDialog &choix) { choix.reject(); });
    EXPECT_EQ(refus, u"Aucune imprimante n'est disponible : rien n'a été imprimé"_s);
}
