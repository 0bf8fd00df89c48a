#include "faux/Echec.h"
#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "log/Ancienne_Ref_TDC.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class Ancienne_Ref : public ::testing::Test {
protected:
    Poste_Essai essai;

    void Pose_Liste(const QByteArray &lignes)
    {
        essai.fichiers.Pose(u"Liste_TDC.csv"_s, "Rev 001;;;;;;TC01;\r\n" + lignes);
    }
    [[nodiscard]] std::optional<QString> Cherche(const QString &ancienne) const
    {
        return Ancienne_Ref_TDC(essai.dossier, ancienne);
    }
};

} // namespace

TEST_F(Ancienne_Ref, le_poste_reste_sans_zeros)
{
    Pose_Liste("8;11;1;Tour;Ligne;F;TC1108;\r\n");
    EXPECT_EQ(Cherche(u"TC1108"_s), u"11-8"_s);
}

TEST_F(Ancienne_Ref, les_deux_anciennes_sont_rognees)
{
    Pose_Liste("108;11;1;Tour;Ligne;F;  TC1108 ;\r\n");
    EXPECT_EQ(Cherche(u" TC1108   "_s), u"11-108"_s);
}

TEST_F(Ancienne_Ref, seuls_les_six_derniers_caracteres_du_departement)
{
    Pose_Liste("8;Departement11;1;Tour;Ligne;F;TC1108;\r\n");
    EXPECT_EQ(Cherche(u"TC1108"_s), u"ment11-8"_s);
}

TEST_F(Ancienne_Ref, la_premiere_ligne_et_les_vides_sont_passees)
{
    Pose_Liste("\r\n8;11;1;Tour;Ligne;F;TC1108;\r\n9;11;1;Tour;Ligne;F;TC1108;\r\n");
    EXPECT_EQ(Cherche(u"TC01"_s), std::nullopt);
    EXPECT_EQ(Cherche(u"TC1108"_s), u"11-8"_s);
}

TEST_F(Ancienne_Ref, une_liste_vide_ne_connait_rien)
{
    essai.fichiers.Pose(u"Liste_TDC.csv"_s, "");
    EXPECT_EQ(Cherche(u"TC1108"_s), std::nullopt);
}

TEST_F(Ancienne_Ref, une_liste_absente_ou_abimee_est_dite)
{
    EXPECT_EQ(Echec([&] { (void)Cherche(u"TC1108"_s); })->La_Cause(), Cause::Fichier_Introuvable);
    Pose_Liste("8;11;1\r\n");
    EXPECT_EQ(Echec([&] { (void)Cherche(u"TC1108"_s); })->La_Cause(), Cause::Format_Liste);
}
