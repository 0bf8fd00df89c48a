#include "diplomes/ecrans/Ecran_Fiche.h"
#include "diplomes/tables/Tables.h"
#include "faux/Conduite.h"
#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "faux/QSO_Essai.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace diplomes;

namespace {

QByteArray Log_DFCF(int nombre)
{
    return (QSO({.dpt = u"77"_s, .ref = u"77001"_s, .qsl = u"*"_s}) + fin_de_ligne).toLatin1().repeated(nombre);
}

QString Texte(const QWidget &ecran, const QString &nom)
{
    return conduite::Trouve<QLabel>(ecran, nom)->text();
}

QColor Couleur(const QWidget &ecran, const QString &nom, QPalette::ColorGroup groupe = QPalette::Active)
{
    return conduite::Trouve<QLabel>(ecran, nom)->palette().color(groupe, QPalette::WindowText);
}

} // namespace

class Fiche_A_L_Ecran : public ::testing::Test {
protected:
    Fiche_A_L_Ecran() { essai_.fichiers.Pose(u"F9ZZY_DFCF.log"_s, Log_DFCF(30)); }

    Poste_Essai essai_;
};

TEST_F(Fiche_A_L_Ecran, montre_les_niveaux_sous_leurs_noms)
{
    const Ecran_Fiche ecran(essai_.poste, fiche_dfcf);
    EXPECT_EQ(ecran.objectName(), u"Diplomes_DFCF"_s);
    EXPECT_EQ(ecran.windowTitle(), u"Diplomes DFCF bande HF"_s);
    EXPECT_EQ(Texte(ecran, u"Label2"_s), u"Diplomes DFCF bande HF"_s);
    EXPECT_EQ(Texte(ecran, u"Label4"_s), u"Bravo vous pouvez obtenir le diplome DFCF de base"_s);
    EXPECT_EQ(Texte(ecran, u"Label18"_s), u"avec les QSL des"_s);
    EXPECT_EQ(Texte(ecran, u"Label5"_s), u"30"_s);
    EXPECT_EQ(Texte(ecran, u"Label8"_s), u"1470"_s);
    EXPECT_EQ(Texte(ecran, u"Label16"_s), u"94"_s);
}

TEST_F(Fiche_A_L_Ecran, le_statut_est_vert_ou_rouge_dans_tous_les_etats)
{
    const Ecran_Fiche ecran(essai_.poste, fiche_dfcf);
    for (const QPalette::ColorGroup groupe : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        EXPECT_EQ(Couleur(ecran, u"Label4"_s, groupe), QColor(0, 128, 0));
        EXPECT_EQ(Couleur(ecran, u"Label7"_s, groupe), QColor(255, 0, 0));
    }
}

TEST_F(Fiche_A_L_Ecran, les_boutons_suivent_les_niveaux)
{
    const Ecran_Fiche ecran(essai_.poste, fiche_dfcf);
    for (const QString &nom : {u"HF_Base"_s, u"HF_Honneur"_s, u"HF_Trophe"_s, u"HF_Excellence"_s, u"Command1"_s}) {
        const auto *bouton = conduite::Trouve<QPushButton>(ecran, nom);
        EXPECT_EQ(bouton->text(), u"Voir la liste"_s);
        EXPECT_EQ(bouton->isEnabled(), nom == u"HF_Base"_s) << nom.toStdString();
    }
}

TEST_F(Fiche_A_L_Ecran, une_barre_sans_texte_dit_la_part_faite)
{
    const Ecran_Fiche ecran(essai_.poste, fiche_dfcf);
    const QList<QProgressBar *> barres = ecran.findChildren<QProgressBar *>();
    ASSERT_EQ(barres.size(), 5);
    EXPECT_EQ(barres[0]->value(), barres[0]->maximum());
    EXPECT_LT(barres[1]->value(), barres[1]->maximum() / 10);
    EXPECT_FALSE(barres[0]->isTextVisible());
}

TEST_F(Fiche_A_L_Ecran, entree_sur_un_bouton_montre_la_liste)
{
    Ecran_Fiche ecran(essai_.poste, fiche_dfcf);
    ecran.show();
    conduite::Entree(*conduite::Trouve<QPushButton>(ecran, u"HF_Base"_s));
    EXPECT_EQ(essai_.etat.bande_liste, u"HF"_s);
    EXPECT_EQ(essai_.etat.code_categorie, u"de Base"_s);
    EXPECT_EQ(essai_.ecrans.montres, std::vector<QString>{u"Liste_DFCF"_s});
    EXPECT_TRUE(ecran.isVisible());
}

TEST_F(Fiche_A_L_Ecran, un_log_change_ensuite_n_est_pas_relu)
{
    Ecran_Fiche ecran(essai_.poste, fiche_dfcf);
    essai_.fichiers.Pose(u"F9ZZY_DFCF.log"_s, {});
    ecran.hide();
    ecran.show();
    EXPECT_EQ(Texte(ecran, u"Label5"_s), u"30"_s);
}

TEST_F(Fiche_A_L_Ecran, tient_dans_un_petit_bureau)
{
    Ecran_Fiche ecran(essai_.poste, fiche_dfcf);
    Centre(ecran);
    EXPECT_LE(ecran.width(), 1366);
    EXPECT_LE(ecran.height(), 768);
}
