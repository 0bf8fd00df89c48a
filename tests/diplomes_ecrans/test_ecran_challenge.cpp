#include "diplomes/ecrans/Ecran_Challenge.h"
#include "diplomes/ecrans/Ecran_Fiche.h"
#include "diplomes/tables/Tables.h"
#include "ecrans/Liste_Fixe.h"
#include "faux/Conduite.h"
#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "faux/QSO_Essai.h"

#include <QLabel>
#include <QPushButton>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace diplomes;
using conduite::Trouve;

class Challenge_A_L_Ecran : public ::testing::Test {
protected:
    Challenge_A_L_Ecran()
    {
        essai_.etat.canal_challenge = u"Canal de Briard"_s;
        essai_.etat.nb_ouvrages_canal = 2;
        essai_.etat.numero_canal = 3;
        essai_.fichiers.Pose(u"Liste_Ouvrages.csv"_s, "Rev;;;;;;;;;;\r\n45EC102;N;T;45;C;3;;;;;\r\n");
        essai_.fichiers.Pose(u"F9ZZY_DOHF.log"_s, (QSO({.ref = u"45EC102"_s}) + fin_de_ligne).toLatin1());
    }
    static QColor Couleur(const QLabel *label) { return label->palette().color(QPalette::WindowText); }

    Poste_Essai essai_;
};

TEST_F(Challenge_A_L_Ecran, montre_les_paliers_atteints_et_ce_qui_manque)
{
    Ecran_Challenge ecran(essai_.poste);
    EXPECT_EQ(ecran.objectName(), u"Challenge"_s);
    EXPECT_EQ(Trouve<QLabel>(ecran, u"Label2"_s)->text(), u"Challenge oeuvres du Canal de Briard"_s);
    EXPECT_EQ(Trouve<QLabel>(ecran, u"Label3"_s)->text(),
              u"   Nb    Ref           Nom de l'ouvrage               Date   Indicatif     QSL"_s);
    EXPECT_EQ(Trouve<Liste_Fixe>(ecran, u"Liste_Contactes"_s)->Nombre(), 1);
    const QColor vert(0, 128, 0);
    for (const auto &[nom, texte, atteint] : {std::tuple(u"P25"_s, u"Palier 25%"_s, true),
                                              {u"P50"_s, u"Palier 50%"_s, true},
                                              {u"P75"_s, u"Palier 75%"_s, false},
                                              {u"P100"_s, u"Palier 100%"_s, false}}) {
        const auto *palier = Trouve<QLabel>(ecran, nom);
        EXPECT_EQ(palier->text(), texte);
        EXPECT_EQ(Couleur(palier) == vert, atteint);
        EXPECT_EQ(palier->font().bold(), atteint);
    }
    for (const auto &[nom, manque] :
         {std::pair(u"Label8"_s, u"0"_s), {u"Label14"_s, u"0"_s}, {u"Label13"_s, u"0"_s}, {u"Label12"_s, u"1"_s}})
        EXPECT_EQ(Trouve<QLabel>(ecran, nom)->text(), manque);
    for (const auto &[nom, actif] :
         {std::pair(u"ADIF1"_s, true), {u"ADIF2"_s, true}, {u"ADIF3"_s, false}, {u"ADIF4"_s, false}}) {
        EXPECT_EQ(Trouve<QPushButton>(ecran, nom)->text(), u"Fichier ADIF"_s);
        EXPECT_EQ(Trouve<QPushButton>(ecran, nom)->isEnabled(), actif);
    }
    Centre(ecran);
    EXPECT_LE(ecran.width(), 1366);
    EXPECT_LE(ecran.height(), 768);
}

TEST_F(Challenge_A_L_Ecran, le_bouton_d_un_palier_ecrit_son_fichier)
{
    Ecran_Challenge ecran(essai_.poste);
    ecran.show();
    conduite::Entree(*Trouve<QPushButton>(ecran, u"ADIF2"_s));
    EXPECT_TRUE(essai_.fichiers.Existe(u"F9ZZY Diplome Challenge oeuvres du Canal de Briard Palier 50%.adi"_s));
    EXPECT_EQ(essai_.boites.messages.size(), 1U);
}

TEST_F(Challenge_A_L_Ecran, la_fiche_de_l_annee_ouvre_sa_liste)
{
    essai_.etat.station.diplome = Diplome::Ch_DMF;
    essai_.fichiers.Pose(u"F9ZZY_Ch_DMF_2000.log"_s, (QSO({.ref = u"77001B"_s}) + fin_de_ligne).toLatin1());
    Ecran_Fiche ecran(essai_.poste, fiche_ch_dfcf);
    ecran.show();
    EXPECT_EQ(ecran.windowTitle(), u"Challenge DMF année 2000"_s);
    EXPECT_EQ(Trouve<QLabel>(ecran, u"Points_Tot"_s)->text(), u"3"_s);
    conduite::Entree(*Trouve<QPushButton>(ecran, u"Liste_Cha_DFCF"_s));
    EXPECT_EQ(essai_.ecrans.montres, std::vector<QString>{u"Liste_Ch_DFCF"_s});
}
