#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "faux/QSO_Essai.h"
#include "qsl/Imprime_Confirmation.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString entete = u"  Date    Indicatif   Debut  Dpt  Locator Bande     Mode     RstE      RstR      N°activité"_s;
const QString pied = u"    F5ABC confirme les QSO's ci-dessus avec la station   signature :"_s;

} // namespace

TEST(Imprime_Confirmation, coupe_la_ligne_du_log_en_deux_morceaux)
{
    const QString ligne = QSO({.ind = u"F5ABC/P/QRP1"_s,
                               .dpt = u"77"_s,
                               .prenom = u"MARIE-CHRISTINE"_s,
                               .ref = u"GVM1800199"_s,
                               .nom = u"C. DE TRUC"_s});
    const std::vector<QString> lignes = Lignes_Confirmation({ligne}, u"F5ABC");
    EXPECT_EQ(lignes[0], entete);
    EXPECT_EQ(lignes[1], u""_s);
    EXPECT_EQ(lignes[2], ligne.mid(6, 29) + ligne.mid(42));
    EXPECT_EQ(lignes[2].left(30), u"P/QRP1 77   MARIE-CHRISTINE G9"_s);
}

TEST(Imprime_Confirmation, la_feuille_se_complete_a_24_lignes)
{
    const std::vector<QString> lignes = Lignes_Confirmation({QSO({}), QSO({})}, u"F5ABC");
    ASSERT_EQ(lignes.size(), 2U + 24U + 1U);
    EXPECT_EQ(lignes[4], u""_s);
    EXPECT_EQ(lignes[25], u""_s);
    EXPECT_EQ(lignes.back(), pied);
}

TEST(Imprime_Confirmation, la_25e_ligne_commence_une_autre_feuille)
{
    const std::vector<QString> lignes = Lignes_Confirmation(std::vector<QString>(25, QSO({})), u"F5ABC");
    ASSERT_EQ(lignes.size(), 2U + 24U + 5U + 2U + 24U + 1U);
    EXPECT_EQ((std::vector<QString>(lignes.begin() + 26, lignes.begin() + 33)),
              (std::vector<QString>{u""_s, pied, u""_s, u"-"_s, u""_s, entete, u""_s}));
    EXPECT_NE(lignes[33], u""_s);
    EXPECT_EQ(lignes[34], u""_s);
}

TEST(Imprime_Confirmation, une_liste_vide_n_imprime_rien)
{
    Poste_Essai essai;
    Imprime_Confirmation(essai.poste, true, {}, u"F5ABC");
    EXPECT_EQ(essai.boites.messages, std::vector{u"Pas de QSO a imprimer"_s});
    EXPECT_TRUE(essai.imprimante.documents.empty());
}

TEST(Imprime_Confirmation, imprime_les_lignes_cochees_et_dit_ce_qui_l_empeche)
{
    Poste_Essai essai;
    Imprime_Confirmation(essai.poste, false, {QSO({})}, u"F5ABC");
    EXPECT_EQ(essai.imprimante.titres, std::vector{u"Confirmation des QSO de F5ABC"_s});
    EXPECT_EQ(essai.imprimante.documents, std::vector<std::vector<QString>>{Lignes_Confirmation({QSO({})}, u"F5ABC")});
    EXPECT_TRUE(essai.boites.messages.empty());
    essai.imprimante.refus = u"plus de papier"_s;
    Imprime_Confirmation(essai.poste, false, {QSO({})}, u"F5ABC");
    EXPECT_EQ(essai.boites.messages, std::vector{u"plus de papier"_s});
}
