#include "diplomes/ecrans/Ecran_Fiche.h"
#include "diplomes/ecrans/Ecran_Liste.h"
#include "diplomes/tables/Tables.h"
#include "faux/Conduite.h"
#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "faux/QSO_Essai.h"

#include <QLabel>
#include <QPushButton>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace diplomes;

class DVFF_A_L_Ecran : public ::testing::Test {
protected:
    DVFF_A_L_Ecran()
    {
        const QString ligne = QSO({.dpt = u"18"_s, .ref = u"GA18001"_s, .nom = u"G. TRONCAIS"_s, .qsl = u"*"_s});
        essai_.fichiers.Pose(u"F9ZZY_DVFF.log"_s, (ligne + fin_de_ligne).toLatin1().repeated(30));
    }
    static QString Texte(const QWidget &ecran, const QString &nom)
    {
        return conduite::Trouve<QLabel>(ecran, nom)->text();
    }

    Poste_Essai essai_;
};

TEST_F(DVFF_A_L_Ecran, la_fiche_ouvre_la_liste_du_niveau)
{
    Ecran_Fiche ecran(essai_.poste, fiche_dvff);
    ecran.show();
    EXPECT_EQ(ecran.windowTitle(), u"Diplomes DVFF"_s);
    EXPECT_EQ(Texte(ecran, u"Label12"_s), u"Bravo vous pouvez obtenir le diplome DVFFde niveau 3"_s);
    EXPECT_EQ(Texte(ecran, u"Label20"_s), u"avec les QSL des 30 DVFF contacté(e)s"_s);
    conduite::Entree(*conduite::Trouve<QPushButton>(ecran, u"N3"_s));
    EXPECT_EQ(essai_.etat.niveau_liste, u"Niveau 3"_s);
    EXPECT_EQ(essai_.ecrans.montres, std::vector<QString>{u"Liste_DVFF"_s});
}

TEST_F(DVFF_A_L_Ecran, la_liste_ecrit_son_fichier_ADIF)
{
    essai_.etat.niveau_liste = u"Niveau 3"_s;
    Ecran_Liste ecran(essai_.poste, liste_dvff);
    ecran.show();
    EXPECT_EQ(Texte(ecran, u"Label4"_s), u"Diplome DVFF Niveau 3"_s);
    EXPECT_EQ(Texte(ecran, u"Label3"_s), u" 30 DVFF contactés"_s);
    conduite::Entree(*conduite::Trouve<QPushButton>(ecran, u"ADIF"_s));
    EXPECT_EQ(essai_.fichiers.Octets(u"F9ZZY Diplome DVFF Niveau 3 le 15_11_26.adi"_s).count("<eor>"), 30);
}

TEST_F(DVFF_A_L_Ecran, les_deux_ecrans_tiennent_dans_un_petit_bureau)
{
    Ecran_Fiche fiche(essai_.poste, fiche_dvff);
    Ecran_Liste liste(essai_.poste, liste_dvff);
    for (QWidget *ecran : std::initializer_list<QWidget *>{&fiche, &liste}) {
        Centre(*ecran);
        EXPECT_LE(ecran->width(), 1366);
        EXPECT_LE(ecran->height(), 768);
    }
}
