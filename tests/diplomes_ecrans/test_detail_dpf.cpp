#include "diplomes/ecrans/Detail_DPF.h"
#include "diplomes/ecrans/Ecrans_Diplomes.h"
#include "ecrans/Liste_Fixe.h"
#include "faux/Conduite.h"
#include "faux/Impression.h"
#include "faux/Poste_Essai.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;
using namespace diplomes;

TEST(Detail_DPF, montre_les_22_provinces)
{
    Poste_Essai essai;
    const std::vector<Inscription> ecrans = Ecrans_Diplomes(essai.poste);
    const auto place = std::find_if(ecrans.begin(), ecrans.end(),
                                    [](const Inscription &ecran) { return ecran.nom == u"Detail_DPF"_s; });
    ASSERT_NE(place, ecrans.end());
    const std::unique_ptr<QWidget> ecran(place->fabrique());
    EXPECT_EQ(ecran->objectName(), u"Detail_DPF"_s);
    EXPECT_EQ(ecran->windowTitle(), u"Liste des Provinces"_s);
    const auto *liste = conduite::Trouve<Liste_Fixe>(*ecran, u"T1"_s);
    ASSERT_EQ(liste->Nombre(), 22);
    EXPECT_EQ(liste->Entree(0), u"01 Alsace Dpt 67 68"_s);
    EXPECT_EQ(liste->Entree(16), u"17 Pays-de-Loire Dpt 44 49 53 72 85"_s);
    EXPECT_EQ(liste->Entree(21), u"22 Rhône-Alpes Dpt 01 07 26 38 42 69 73 74"_s);
}
