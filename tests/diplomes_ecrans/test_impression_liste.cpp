#include "diplomes/Charge_Liste.h"
#include "diplomes/Sorties_Liste.h"
#include "diplomes/ecrans/Ecran_Liste.h"
#include "diplomes/tables/Tables.h"
#include "faux/Conduite.h"
#include "faux/Impression.h"
#include "faux/Impression_PDF.h"
#include "faux/Poste_Essai.h"
#include "faux/QSO_Essai.h"
#include "plateforme/Windows_1252.h"
#include "plateforme/qt/Imprimante_Qt.h"
#include "plateforme/qt/Mise_En_Page.h"

#include <QFont>
#include <QPrinter>
#include <QPushButton>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace diplomes;

namespace {

/// A DFCF log whose list takes more than one page.
struct Poste_De_Cent_QSO : Poste_Essai {
    Poste_De_Cent_QSO()
    {
        QString texte;
        for (int i = 1; i <= 100; ++i)
            texte += QSO({.ind = u"F%1ABC/P"_s.arg(i % 10),
                          .dpt = u"77"_s,
                          .ref = u"77%1"_s.arg(i, 3, 10, QLatin1Char('0')),
                          .nom = u"C. DE LA FORÊT DE SAINT-GERMAIN"_s.left(30),
                          .qsl = u"*"_s}) +
                     fin_de_ligne;
        fichiers.Pose(u"F9ZZY_DFCF.log"_s, Encode_1252(texte));
        etat.bande_liste = u"HF"_s;
        etat.code_categorie = u"Trophe"_s;
    }
};

} // namespace

TEST(Impression_De_Liste, le_bouton_imprime_la_liste_dans_un_PDF_page_apres_page)
{
    Poste_De_Cent_QSO essai;
    const QString pdf = essai.fichiers.Chemin(u"liste.pdf"_s);
    Imprimante_Qt imprimante;
    const Ports ports{essai.dossier, essai.reglages, essai.horloge,        essai.boites,
                      essai.ecrans,  imprimante,     essai.telechargement, essai.vues_web};
    Poste poste{ports, essai.etat, essai.ecran};
    const Ecran_Liste ecran(poste, liste_dfcf);
    impression::Pendant_Le_Dialogue([&] { conduite::Trouve<QPushButton>(ecran, u"Imprimer"_s)->click(); },
                                    [&](QPrintDialog &choix) { impression::Choisit_Fichier(choix, pdf); });

    EXPECT_GE(impression::Pages(pdf).size(), 2);
    const QStringList lignes = impression::Lignes_Ecrites(pdf);
    ASSERT_EQ(lignes.size(), 103);
    EXPECT_TRUE(lignes[0].contains(u"F9ZZY Diplome DFCF Tropke bande HF au "_s));
    EXPECT_EQ(lignes[1].simplified(), u"N° Ref Dpt Nom du Chateau Date Heure Indicatif"_s);
    for (int i = 1; i <= 100; ++i) {
        const QString attendu = u"%1 77%2 77 C. DE LA FORÊT DE SAINT-GERMAI 12/05/07 14:48 F%3ABC/P"_s.arg(i)
                                    .arg(i, 3, 10, QLatin1Char('0'))
                                    .arg(i % 10);
        EXPECT_EQ(lignes[i + 1].simplified(), attendu);
    }
    EXPECT_EQ(lignes[102].simplified(), u"Vorlain 2026"_s);
}

TEST(Impression_De_Liste, chaque_rang_tient_en_neuf_points_dans_une_page_A4)
{
    QPrinter imprimante(QPrinter::HighResolution);
    imprimante.setOutputFormat(QPrinter::PdfFormat);
    imprimante.setPageSize(QPageSize(QPageSize::A4));
    Poste_De_Cent_QSO essai;
    for (const QString &code : {u"DFCF"_s, u"DMF"_s, u"WLF"_s}) {
        essai.fichiers.Pose(u"F9ZZY_%1.log"_s.arg(code), essai.fichiers.Octets(u"F9ZZY_DFCF.log"_s));
        for (const QString &categorie : {u"de Base"_s, u"Excellence"_s}) {
            essai.etat.code_categorie = categorie;
            for (const Liste_Diplome *liste : Listes())
                if (Code(liste->sources.diplome) == code) {
                    Imprime_Liste(essai.poste, *liste, Charge_Liste(essai.poste, *liste));
                    const std::vector<QString> &page = essai.imprimante.documents.back();
                    EXPECT_DOUBLE_EQ(Mise_En_Page(imprimante, page).Police().pointSizeF(), 9) << code.toStdString();
                }
        }
    }
}
