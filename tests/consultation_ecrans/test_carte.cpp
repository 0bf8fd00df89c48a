#include "consultation/ecrans/Carte.h"
#include "consultation/ecrans/Carte_Acti.h"
#include "consultation/ecrans/Carte_Detail.h"
#include "faux/Conduite.h"
#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "faux/QSO_Essai.h"

#include <QImage>
#include <QLabel>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using conduite::Trouve;

namespace {

QLabel &Dep(const QWidget &ecran, int numero)
{
    return *Trouve<QLabel>(ecran, u"Dep_%1"_s.arg(numero));
}

QColor Fond(const QWidget &ecran, int numero)
{
    return Dep(ecran, numero).palette().color(QPalette::Window);
}

QString Texte(const QWidget &ecran, const QString &nom)
{
    return Trouve<QLabel>(ecran, nom)->text();
}

bool Est_Sous_La_Loupe(const QString &numero)
{
    return numero == u"75" || numero == u"92" || numero == u"93" || numero == u"94";
}

const QColor jaune(0xFF, 0xFF, 0x80);
const QColor rose(0xFF, 0xC0, 0xC0);
const QColor vert(0x80, 0xFF, 0x80);

/// A map of a given size, laid out.
struct Carte_Posee {
    Carte carte;

    explicit Carte_Posee(QSize taille)
    {
        carte.resize(taille);
        carte.show();
    }
    /// The middle of a box in the units of the picture.
    [[nodiscard]] QPointF Place(int numero) const
    {
        const qreal echelle = qMin(carte.width() / taille_fond.width(), carte.height() / taille_fond.height());
        const QPointF coin((carte.width() - taille_fond.width() * echelle) / 2,
                           (carte.height() - taille_fond.height() * echelle) / 2);
        return (QRectF(Dep(carte, numero).geometry()).center() - coin) / echelle;
    }
};

struct En_Trois_Tailles : ::testing::TestWithParam<QSize> {};

} // namespace

TEST(Fond_De_Carte, a_les_96_departements_et_la_place_de_leur_case_dedans)
{
    const std::map<QString, Departement> fond = Charge_Fond();
    EXPECT_EQ(fond.size(), 96U);
    for (const auto &[numero, departement] : fond)
        EXPECT_TRUE(departement.contour.contains(departement.place)) << numero.toStdString();
}

TEST_P(En_Trois_Tailles, chaque_case_est_sur_son_departement)
{
    const Carte_Posee posee(GetParam());
    for (const auto &[texte, departement] : Charge_Fond()) {
        const int numero = texte == u"2A" ? 96 : texte == u"2B" ? 97 : texte.toInt();
        EXPECT_EQ(Dep(posee.carte, numero).text(), texte);
        EXPECT_TRUE(Est_Sous_La_Loupe(texte) || departement.contour.contains(posee.Place(numero))) << numero;
    }
}

TEST_P(En_Trois_Tailles, les_cases_ne_se_couvrent_pas_et_restent_dans_la_carte)
{
    const Carte_Posee posee(GetParam());
    for (int numero = 1; numero <= 97; ++numero) {
        const QLabel &boite = Dep(posee.carte, numero);
        EXPECT_TRUE(boite.isVisible()) << numero;
        EXPECT_TRUE(posee.carte.rect().contains(boite.geometry())) << numero;
        EXPECT_LE(boite.fontMetrics().horizontalAdvance(boite.text()), boite.width()) << numero;
        for (int autre = numero + 1; autre <= 97; ++autre)
            EXPECT_FALSE(boite.geometry().intersects(Dep(posee.carte, autre).geometry())) << numero << ' ' << autre;
    }
}

TEST_P(En_Trois_Tailles, Paris_et_ses_voisins_sont_dans_le_cadre_agrandi)
{
    const Carte_Posee posee(GetParam());
    const QPointF paris = posee.Place(75);
    EXPECT_LT(paris.x(), 140);
    EXPECT_LT(paris.y(), 110);
    EXPECT_LT(posee.Place(92).x(), paris.x());
    EXPECT_GT(posee.Place(93).x(), paris.x());
    EXPECT_LT(posee.Place(93).y(), paris.y());
    EXPECT_GT(posee.Place(94).y(), paris.y());
}

INSTANTIATE_TEST_SUITE_P(Carte, En_Trois_Tailles,
                         ::testing::Values(QSize(552, 527), QSize(640, 700), QSize(1300, 1200)));

TEST(Ecran_Carte, les_cases_98_et_99_existent_hors_de_vue)
{
    const Carte_Posee posee(QSize(613, 585));
    EXPECT_FALSE(Dep(posee.carte, 98).isVisible());
    EXPECT_FALSE(Dep(posee.carte, 99).isVisible());
    EXPECT_EQ(Dep(posee.carte, 98).text(), u"98"_s);
}

TEST(Ecran_Carte, la_carte_est_dessinee)
{
    Carte_Posee posee(QSize(613, 585));
    const QImage image = posee.carte.grab().toImage();
    // Land in the middle of France, sea in the Bay of Biscay.
    EXPECT_NE(image.pixelColor(330, 300), image.pixelColor(60, 450));
}

TEST(Ecran_Carte_Acti, peint_les_cases_et_les_compte)
{
    Poste_Essai essai;
    essai.Ouvre(u"DFCF"_s);
    const QString log = QSO({.dpt = u"77"_s}) + u"\r\n" + QSO({.dpt = u"2A"_s, .qsl = u"*"_s}) + u"\r\n" +
                        QSO({.dpt = u"05"_s}) + u"\r\n";
    essai.fichiers.Pose(u"F9ZZY_DFCF.log"_s, log.toLatin1());
    const Carte_Acti ecran(essai.poste);
    EXPECT_EQ(ecran.objectName(), u"Carte_Acti"_s);
    EXPECT_EQ(ecran.windowTitle(), u"Carte des départements contactés"_s);
    EXPECT_EQ(Fond(ecran, 77), rose);
    EXPECT_EQ(Fond(ecran, 96), vert);
    EXPECT_EQ(Fond(ecran, 1), jaune);
    EXPECT_EQ(Texte(ecran, u"Label1"_s), u"activité DFCF"_s);
    EXPECT_EQ(Texte(ecran, u"NB_Dep"_s), u"3"_s);
    EXPECT_EQ(Texte(ecran, u"Label5"_s), u"départements contactés"_s);
    EXPECT_EQ(Texte(ecran, u"Nb_Conf"_s), u"1 Dpt confirmés"_s);
    EXPECT_EQ(Texte(ecran, u"Nb_Nconf"_s), u"2 Dpt non confirmés"_s);
    EXPECT_EQ(Texte(ecran, u"Nb_Ncont"_s), u"93 Dpt non contactés"_s);
}

TEST(Ecran_Carte_Acti, un_log_vide_laisse_tout_jaune)
{
    Poste_Essai essai;
    essai.Ouvre(u"DFCF"_s);
    essai.fichiers.Pose(u"F9ZZY_DFCF.log"_s, "");
    const Carte_Acti ecran(essai.poste);
    for (int numero = 1; numero <= 99; ++numero)
        EXPECT_EQ(Fond(ecran, numero), jaune) << numero;
    EXPECT_EQ(Texte(ecran, u"NB_Dep"_s), u"0"_s);
    EXPECT_EQ(Texte(ecran, u"Nb_Ncont"_s), u"96 Dpt non contactés"_s);
}

TEST(Ecran_Carte_Detail, marque_le_departement_de_l_ouvrage)
{
    Poste_Essai essai;
    essai.etat.departement_carte = u"45"_s;
    const Carte_Detail ecran(essai.poste);
    EXPECT_EQ(ecran.objectName(), u"Carte_Detail"_s);
    EXPECT_EQ(ecran.windowTitle(), u"Position de l'ouvrage hydraulique"_s);
    for (int numero = 1; numero <= 99; ++numero)
        EXPECT_EQ(Fond(ecran, numero), numero == 45 ? vert : jaune) << numero;
}

TEST(Ecran_Carte_Detail, un_texte_sans_case_laisse_tout_jaune)
{
    Poste_Essai essai;
    essai.etat.departement_carte = u"5"_s;
    const Carte_Detail ecran(essai.poste);
    for (int numero = 1; numero <= 99; ++numero)
        EXPECT_EQ(Fond(ecran, numero), jaune) << numero;
}
