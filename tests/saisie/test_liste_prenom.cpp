#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "saisie/Liste_Prenom.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const Lignes_Texte liste(u"F5ABC        77 Jean-René\r\n"
                         u"F5ABC/P      05 PAUL\r\n"
                         u"F5ABC        2A MARIE\r\n"
                         u"TM5CHATEAUX1 63 LÉA  \r\n"
                         u"F1SANS\r\n"
                         u"F2DPT        77 \r\n"
                         u"F3BLANC         ANNE\r\n"_s);

} // namespace

TEST(Cherche_Prenom, la_premiere_ligne_de_l_indicatif_compte)
{
    const Prenom_Trouve trouve = Cherche_Prenom_Dans(liste, u"F5ABC");
    EXPECT_EQ(trouve.prenom, u"JEAN-RENÉ"_s);
    EXPECT_EQ(trouve.dpt, u"77"_s);
    EXPECT_FALSE(trouve.nouveau);
}

TEST(Cherche_Prenom, l_indicatif_est_entier)
{
    EXPECT_EQ(Cherche_Prenom_Dans(liste, u"F5ABC/P").prenom, u"PAUL"_s);
    EXPECT_TRUE(Cherche_Prenom_Dans(liste, u"F5AB").nouveau);
    EXPECT_TRUE(Cherche_Prenom_Dans(liste, u"f5abc").nouveau);
    EXPECT_EQ(Cherche_Prenom_Dans(liste, u"TM5CHATEAUX1").prenom, u"LÉA  "_s);
}

TEST(Cherche_Prenom, un_inconnu_n_a_rien_et_sera_retenu)
{
    const Prenom_Trouve trouve = Cherche_Prenom_Dans(liste, u"F9ZZZ");
    EXPECT_EQ(trouve.prenom, u""_s);
    EXPECT_EQ(trouve.dpt, u""_s);
    EXPECT_TRUE(trouve.nouveau);
}

TEST(Cherche_Prenom, une_ligne_sans_prenom_ou_sans_departement_sera_refaite)
{
    EXPECT_TRUE(Cherche_Prenom_Dans(liste, u"F1SANS").nouveau);
    EXPECT_TRUE(Cherche_Prenom_Dans(liste, u"F2DPT").nouveau);
    // Two blanks are a department.
    EXPECT_FALSE(Cherche_Prenom_Dans(liste, u"F3BLANC").nouveau);
    EXPECT_EQ(Cherche_Prenom_Dans(liste, u"F3BLANC").prenom, u"ANNE"_s);
}

TEST(Maj_Prenom, toutes_les_lignes_de_l_indicatif_prennent_la_nouvelle)
{
    const QString nouvelle = u"F5ABC        06 LÉO"_s;
    EXPECT_EQ(
        Texte_Maj_Prenom(Lignes_Texte(u"F5ABC        77 A\r\nF6XYZ        77 B\r\nF5ABC        77 C\r\n"_s), nouvelle),
        u"F5ABC        06 LÉO\r\nF6XYZ        77 B\r\nF5ABC        06 LÉO\r\n"_s);
}

TEST(Maj_Prenom, un_inconnu_va_a_la_fin)
{
    EXPECT_EQ(Texte_Maj_Prenom(Lignes_Texte(u"F5ABC        77 A"_s), u"F6XYZ        77 B"),
              u"F5ABC        77 A\r\nF6XYZ        77 B\r\n"_s);
    EXPECT_EQ(Texte_Maj_Prenom(Lignes_Texte(), u"F6XYZ        77 B"), u"F6XYZ        77 B\r\n"_s);
}

TEST(Maj_Prenom, le_fichier_est_remplace_entier)
{
    Poste_Essai essai;
    essai.fichiers.Pose(u"Liste_Prenom.txt"_s, "F5ABC        77 REN\xC9\nF6XYZ");
    Maj_Prenom(essai.dossier, u"F8NEW        63 LÉA");
    EXPECT_EQ(essai.fichiers.Octets(u"Liste_Prenom.txt"_s), "F5ABC        77 REN\xC9\r\nF6XYZ\r\nF8NEW        63 L\xC9"
                                                            "A\r\n");
    EXPECT_EQ(essai.fichiers.Fichiers(), QStringList{u"Liste_Prenom.txt"_s});
    EXPECT_EQ(Cherche_Prenom(essai.dossier, u"F8NEW").prenom, u"LÉA"_s);
}
