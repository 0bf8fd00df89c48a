#include "consultation/ecrans/Detail_TDC.h"
#include "faux/Conduite.h"
#include "faux/Impression.h"
#include "faux/Poste_Essai.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using conduite::Trouve;

TEST(Ecran_Detail_TDC, montre_la_tour_et_ouvre_sa_page)
{
    Poste_Essai essai;
    essai.fichiers.Pose(u"Liste_TDC.csv"_s, "Rev\r\n8;11;41;CARCASSONNE;Narbonne - Perpignan;France;TC8;\r\n");
    essai.ecran.ref_a = u"11-008"_s;
    Detail_TDC ecran(essai.poste);
    ecran.show();
    EXPECT_EQ(ecran.objectName(), u"Detail_TDC"_s);
    EXPECT_EQ(ecran.windowTitle(), u"Detail de la référence"_s);
    const std::vector<std::array<QString, 3>> attendus = {
        {u"Ref_I"_s, u"Référence"_s, u"TDC 11-008"_s},
        {u"Nom_I"_s, u"Nom de la Tour"_s, u"CARCASSONNE"_s},
        {u"Ex_Ref_I"_s, u"Ancienne référence"_s, u"TC8"_s},
        {u"Poste_I"_s, u"N° du Poste"_s, u"8"_s},
        {u"Num_I"_s, u"N° de la Tour"_s, u"41"_s},
        {u"Pays_I"_s, u"Pays"_s, u"France"_s},
        {u"Ligne_I"_s, u"Nom de la ligne"_s, u"Narbonne - Perpignan"_s},
        {u"Dpt_I"_s, u"Département"_s, u"11"_s}};
    for (const auto &[nom, etiquette, texte] : attendus) {
        EXPECT_EQ(Trouve<QLineEdit>(ecran, nom)->text(), texte);
        EXPECT_TRUE(Trouve<QLineEdit>(ecran, nom)->isReadOnly());
        EXPECT_EQ(Trouve<QLabel>(ecran, u"L_"_s + nom)->text(), etiquette);
    }
    auto *site = Trouve<QPushButton>(ecran, u"Voir_Site"_s);
    EXPECT_EQ(site->text(), u"Voir le site web de la tour"_s);
    conduite::Entree(*site);
    EXPECT_EQ(essai.etat.titre_page, u"Site web de la tour 8 CARCASSONNE"_s);
    EXPECT_EQ(essai.ecrans.montres, std::vector<QString>{u"Affichage"_s});
}

TEST(Ecran_Detail_TDC, une_reference_inconnue_laisse_les_champs_vides)
{
    Poste_Essai essai;
    essai.fichiers.Pose(u"Liste_TDC.csv"_s, "Rev\r\n");
    const Detail_TDC ecran(essai.poste);
    EXPECT_EQ(Trouve<QLineEdit>(ecran, u"Ref_I"_s)->text(), u"Référence non trouvée"_s);
    EXPECT_EQ(Trouve<QLineEdit>(ecran, u"Nom_I"_s)->text(), QString());
}
