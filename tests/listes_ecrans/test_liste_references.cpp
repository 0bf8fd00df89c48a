#include "ecrans/Liste_Fixe.h"
#include "faux/Conduite.h"
#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "listes/ecrans/Liste_References.h"
#include "plateforme/Erreur_Execution.h"
#include "plateforme/Windows_1252.h"

#include <QLabel>
#include <QPointer>
#include <QScreen>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QByteArray Donnees(const QString &nom)
{
    QFile fichier(QStringLiteral(DONNEES_ESSAI "/") + nom);
    if (!fichier.open(QIODevice::ReadOnly))
        throw std::runtime_error("no test data " + nom.toStdString());
    return fichier.readAll();
}

struct Ecran_References : ::testing::Test {
    Poste_Essai essai;
    QPointer<Liste_References> ecran;
    Liste_Fixe *liste = nullptr;

    void Ouvre(const QString &diplome)
    {
        essai.Ouvre(diplome);
        ecran = new Liste_References(essai.poste);
        ecran->show();
        liste = conduite::Trouve<Liste_Fixe>(*ecran, u"Liste_Ref"_s);
    }
    [[nodiscard]] QByteArray Entrees() const
    {
        QString texte;
        for (int rang = 0; rang < liste->Nombre(); ++rang)
            texte += liste->Entree(rang) + u"\r\n";
        return Encode_1252(texte);
    }
    [[nodiscard]] QString Entete() const { return conduite::Trouve<QLabel>(*ecran, u"Entete_Ref"_s)->text(); }
    ~Ecran_References() override { delete ecran; }
};

} // namespace

TEST_F(Ecran_References, dcf_montre_chaque_ligne_et_la_premiere_aussi)
{
    essai.fichiers.Pose(u"Liste_DCF.csv"_s, Donnees(u"donnees/Liste_DCF.csv"_s));
    Ouvre(u"DCF"_s);
    EXPECT_EQ(ecran->objectName(), u"Liste_References"_s);
    EXPECT_EQ(ecran->windowTitle(), u"Liste des réferences DCF"_s);
    EXPECT_EQ(Entete(), u"         Ref                      Nom de la Cathedrale "_s);
    EXPECT_EQ(Entrees(), Donnees(u"attendus/references_dcf.txt"_s));
    EXPECT_EQ(liste->Rang_Courant(), 0);
}

TEST_F(Ecran_References, dplf_montre_chaque_phare_et_son_departement_nu)
{
    essai.fichiers.Pose(u"Liste_DPLF.txt"_s, Donnees(u"donnees/Liste_DPLF.txt"_s));
    Ouvre(u"DPLF"_s);
    EXPECT_EQ(ecran->windowTitle(), u"Liste des réferences DPLF"_s);
    EXPECT_EQ(Entete(), u"     Ref         Dpt                             Nom du Phare                            "_s);
    EXPECT_EQ(Entrees(), Donnees(u"attendus/references_dplf.txt"_s));
    EXPECT_EQ(liste->Rang_Courant(), 0);
}

TEST_F(Ecran_References, un_autre_diplome_laisse_la_liste_vide)
{
    Ouvre(u"DMF"_s);
    EXPECT_EQ(liste->Nombre(), 0);
    EXPECT_EQ(liste->Rang_Courant(), -1);
}

TEST_F(Ecran_References, suit_le_diplome_courant_et_non_dip_a)
{
    essai.fichiers.Pose(u"Liste_DPLF.txt"_s, Donnees(u"donnees/Liste_DPLF.txt"_s));
    essai.Ouvre(u"DPLF"_s);
    essai.ecran.dip_a = u"DCF"_s;
    const QPointer<Liste_References> autre = new Liste_References(essai.poste);
    EXPECT_EQ(autre->windowTitle(), u"Liste des réferences DPLF"_s);
    delete autre;
}

TEST_F(Ecran_References, une_liste_absente_est_un_echec)
{
    essai.Ouvre(u"DCF"_s);
    EXPECT_THROW(Liste_References ouvert(essai.poste), Erreur_Execution);
}

TEST_F(Ecran_References, les_fleches_vont_d_entree_en_entree)
{
    essai.fichiers.Pose(u"Liste_DCF.csv"_s, Donnees(u"donnees/Liste_DCF.csv"_s));
    Ouvre(u"DCF"_s);
    QTest::keyClick(liste, Qt::Key_Down);
    EXPECT_EQ(liste->Rang_Courant(), 1);
    QTest::keyClick(liste, Qt::Key_End);
    EXPECT_EQ(liste->Rang_Courant(), 3);
}

TEST_F(Ecran_References, s_ouvre_au_milieu_de_l_ecran)
{
    essai.fichiers.Pose(u"Liste_DCF.csv"_s, Donnees(u"donnees/Liste_DCF.csv"_s));
    Ouvre(u"DCF"_s);
    const QPoint ecart = ecran->geometry().center() - ecran->screen()->availableGeometry().center();
    EXPECT_LE(ecart.manhattanLength(), 4);
}
