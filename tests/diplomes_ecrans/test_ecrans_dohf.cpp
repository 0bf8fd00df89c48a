#include "diplomes/ecrans/Ecran_Choix.h"
#include "diplomes/ecrans/Ecran_Fiche.h"
#include "diplomes/ecrans/Ecran_Liste.h"
#include "diplomes/tables/Tables.h"
#include "ecrans/Ecran.h"
#include "ecrans/Liste_Fixe.h"
#include "faux/Conduite.h"
#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "faux/QSO_Essai.h"

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace diplomes;

namespace {

QByteArray Log_D_Ecluses(int nombre)
{
    return (QSO({.dpt = u"45"_s, .ref = u"45EC102"_s, .nom = u"ECLUSE DE MANTELOT"_s}) + fin_de_ligne)
        .toLatin1()
        .repeated(nombre);
}

QString Texte(const QWidget &ecran, const QString &nom)
{
    return conduite::Trouve<QLabel>(ecran, nom)->text();
}

} // namespace

class DOHF_A_L_Ecran : public ::testing::Test {
protected:
    DOHF_A_L_Ecran() { essai_.fichiers.Pose(u"F9ZZY_DOHF.log"_s, Log_D_Ecluses(10)); }

    void Choisit_Les_Ponts()
    {
        essai_.etat.code_categorie = u"PT"_s;
        essai_.etat.libelle_categorie = u"Ponts / Ponts Cannaux / Tunnels"_s;
        essai_.etat.categorie_liste = u"PT"_s;
        essai_.etat.niveau_liste = u"Niveau 2"_s;
    }

    Poste_Essai essai_;
};

TEST_F(DOHF_A_L_Ecran, sans_option_afficher_ne_fait_rien)
{
    Ecran_Choix ecran(essai_.poste, choix_dohf);
    ecran.show();
    EXPECT_EQ(ecran.objectName(), u"Select_Dip_DOHF"_s);
    EXPECT_EQ(ecran.windowTitle(), u"Sélection Diplome"_s);
    EXPECT_EQ(Texte(ecran, u"Label2"_s), u"Sélection d'un diplome DOHF"_s);
    for (int i = 1; i <= 14; ++i)
        EXPECT_FALSE(conduite::Trouve<QRadioButton>(ecran, u"Diplome_%1"_s.arg(i))->isChecked());
    conduite::Entree(*conduite::Trouve<QPushButton>(ecran, u"Afficher"_s));
    EXPECT_TRUE(essai_.ecrans.montres.empty());
}

TEST_F(DOHF_A_L_Ecran, une_seule_option_sur_les_deux_cadres_est_choisie_et_l_ecran_reste_ouvert)
{
    Ecran_Choix ecran(essai_.poste, choix_dohf);
    ecran.show();
    auto *ecluses = conduite::Trouve<QRadioButton>(ecran, u"Diplome_2"_s);
    auto *briard = conduite::Trouve<QRadioButton>(ecran, u"Diplome_11"_s);
    QTest::mouseClick(ecluses, Qt::LeftButton, {}, {5, ecluses->height() / 2});
    conduite::Entree(*conduite::Trouve<QPushButton>(ecran, u"Afficher"_s));
    QTest::keyClick(briard, Qt::Key_Space);
    EXPECT_FALSE(ecluses->isChecked());
    conduite::Entree(*conduite::Trouve<QPushButton>(ecran, u"Afficher"_s));
    EXPECT_EQ(essai_.ecrans.montres, (std::vector<QString>{u"Diplomes_DOHF"_s, u"Challenge"_s}));
    EXPECT_EQ(essai_.etat.libelle_categorie, u"Ecluses / Bassins"_s);
    EXPECT_EQ(essai_.etat.numero_canal, 3);
    EXPECT_TRUE(ecran.isVisible());
}

TEST_F(DOHF_A_L_Ecran, la_fiche_montre_la_categorie_et_ouvre_sa_liste)
{
    essai_.etat.code_categorie = u"EC"_s;
    essai_.etat.libelle_categorie = u"Ecluses / Bassins"_s;
    Ecran_Fiche ecran(essai_.poste, fiche_dohf);
    ecran.show();
    EXPECT_EQ(ecran.objectName(), u"Diplomes_DOHF"_s);
    EXPECT_EQ(Texte(ecran, u"Label2"_s), u"Diplome Ecluses / Bassins"_s);
    EXPECT_EQ(Texte(ecran, u"Label18"_s), u"avec les QSL des 10 Ecluses / Bassins contacté(e)s"_s);
    EXPECT_FALSE(conduite::Trouve<QPushButton>(ecran, u"N2"_s)->isEnabled());
    conduite::Entree(*conduite::Trouve<QPushButton>(ecran, u"N1"_s));
    EXPECT_EQ(essai_.etat.categorie_liste, u"EC"_s);
    EXPECT_EQ(essai_.etat.niveau_liste, u"Niveau 1"_s);
    EXPECT_EQ(essai_.ecrans.montres, std::vector<QString>{u"Liste_DOHF"_s});
}

TEST_F(DOHF_A_L_Ecran, fichier_ADIF_change_le_titre_a_l_ecran_et_garde_les_rangs)
{
    essai_.fichiers.Pose(u"F9ZZY_DOHF.log"_s, (QSO({.dpt = u"33"_s, .ref = u"33PT010"_s}) + fin_de_ligne).toLatin1());
    Choisit_Les_Ponts();
    Ecran_Liste ecran(essai_.poste, liste_dohf);
    ecran.show();
    EXPECT_EQ(ecran.windowTitle(), u"Liste DOHF Ponts / Ponts Canaux / Tunnels"_s);
    EXPECT_EQ(Texte(ecran, u"Label4"_s), u"Diplome Niveau 2 Ponts / Ponts Cannaux / Tunnels"_s);
    auto *adif = conduite::Trouve<QPushButton>(ecran, u"ADIF"_s);
    EXPECT_EQ(adif->text(), u"Fichier ADIF"_s);
    conduite::Entree(*adif);
    EXPECT_EQ(Texte(ecran, u"Label4"_s), u"Diplome Niveau 2 Ponts _ Ponts Cannaux _ Tunnels"_s);
    EXPECT_EQ(conduite::Trouve<Liste_Fixe>(ecran, u"Liste_DOHF_Contacte"_s)->Nombre(), 1);
    EXPECT_TRUE(essai_.fichiers.Existe(u"F9ZZY Diplome Niveau 2 Ponts _ Ponts Cannaux _ Tunnels le 15_11_26.adi"_s));
}

TEST_F(DOHF_A_L_Ecran, les_trois_ecrans_tiennent_dans_un_petit_bureau)
{
    Choisit_Les_Ponts();
    Ecran_Choix choix(essai_.poste, choix_dohf);
    Ecran_Fiche fiche(essai_.poste, fiche_dohf);
    Ecran_Liste liste(essai_.poste, liste_dohf);
    for (QWidget *ecran : std::initializer_list<QWidget *>{&choix, &fiche, &liste}) {
        Centre(*ecran);
        EXPECT_LE(ecran->width(), 1366);
        EXPECT_LE(ecran->height(), 768);
    }
}
