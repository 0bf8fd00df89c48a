#include "faux/Impression.h"
#include "faux/QSO_Essai.h"
#include "log/Ligne_Affichage.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Ligne_Log, les_champs_tombent_dans_leurs_colonnes)
{
    const QString ligne = QSO({.ind = u"F5ABC/P"_s, .dpt = u"77"_s, .prenom = u"JEAN"_s, .ref = u"77001"_s,
                               .nom = u"C. DE VAUX"_s, .qsl = u"*"_s});
    EXPECT_EQ(ligne, u"F5ABC/P      77   JEAN            77001     12/05/07 14:48 SSB 14 Mhz  59  59  "
                     u"C. DE VAUX                     *"_s);
    EXPECT_EQ(ligne.size(), 111);
}

TEST(Ligne_Affichage, le_numero_et_les_champs_tombent_sous_l_en_tete)
{
    const QString ligne = QSO({.ind = u"F5ABC/P"_s, .dpt = u"77"_s, .prenom = u"JEAN"_s, .ref = u"77001"_s,
                               .nom = u"C. DE VAUX"_s, .qsl = u"*"_s});
    const QString entree = Ligne_Affichage(12, ligne);
    EXPECT_EQ(entree, u"     12  F5ABC/P       77 JEAN            77001      12/05/07  14:48  SSB  14 Mhz   59   59  "
                      u"C. DE VAUX                      *"_s);
    EXPECT_EQ(entree.size(), 126);
    EXPECT_EQ(Ligne_Log_Affichee(entree), ligne);
}
