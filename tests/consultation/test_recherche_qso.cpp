#include "consultation/Recherche_QSO.h"
#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "faux/QSO_Essai.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The numbers of the hits in a log of these lines.
std::vector<QString> Trouve(Poste_Essai &essai, Recherche_Par par, const QString &texte,
                            const std::vector<QString> &lignes)
{
    QString log;
    for (const QString &ligne : lignes)
        log += ligne + u"\r\n";
    essai.ecran.liste = Lignes_Texte(log);
    std::vector<QString> numeros;
    for (const QString &trouve : Recherche_QSO(essai.poste, par, texte).value_or(std::vector<QString>{}))
        numeros.push_back(trouve.left(7).trimmed());
    return numeros;
}

std::vector<QString> Trouve(Recherche_Par par, const QString &texte, const std::vector<QString> &lignes)
{
    Poste_Essai essai;
    return Trouve(essai, par, texte, lignes);
}

const std::vector<QString> rien;

} // namespace

TEST(Recherche_QSO, un_indicatif_se_trouve_n_importe_ou)
{
    const std::vector<QString> lignes{QSO({.ind = u"F5ABC"_s}), QSO({.ind = u"F6XYZ"_s}),
                                      QSO({.ind = u"ON/F5ABC/P"_s})};
    EXPECT_EQ(Trouve(Recherche_Par::Indicatif, u"F5"_s, lignes), (std::vector{u"1"_s, u"3"_s}));
    EXPECT_EQ(Trouve(Recherche_Par::Indicatif, u"f5abc/p"_s, lignes), std::vector{u"3"_s});
}

TEST(Recherche_QSO, les_deux_derniers_caracteres_d_un_long_indicatif_ne_comptent_pas)
{
    const std::vector<QString> lignes{QSO({.ind = u"VK9/F5ABCD/P"_s})};
    EXPECT_EQ(Trouve(Recherche_Par::Indicatif, u"ABCD"_s, lignes), std::vector{u"1"_s});
    EXPECT_EQ(Trouve(Recherche_Par::Indicatif, u"/P"_s, lignes), rien);
    EXPECT_EQ(Trouve(Recherche_Par::Indicatif, u"VK9/F5ABCD/P"_s, lignes), rien);
}

TEST(Recherche_QSO, une_reference_se_trouve_aussi_en_son_milieu)
{
    const std::vector<QString> lignes{QSO({.ref = u"77001"_s}), QSO({.ref = u"01001"_s}), QSO({.ref = u"77010r"_s})};
    EXPECT_EQ(Trouve(Recherche_Par::Reference, u"010"_s, lignes), (std::vector{u"2"_s, u"3"_s}));
    // The line is compared as it stands in the log.
    EXPECT_EQ(Trouve(Recherche_Par::Reference, u"010r"_s, lignes), rien);
}

TEST(Recherche_QSO, un_departement_s_ecrit_comme_dans_le_log)
{
    const std::vector<QString> lignes{QSO({.dpt = u"05"_s}), QSO({.dpt = u"5"_s}), QSO({.dpt = u"2a"_s})};
    EXPECT_EQ(Trouve(Recherche_Par::Dpt, u"05"_s, lignes), std::vector{u"1"_s});
    EXPECT_EQ(Trouve(Recherche_Par::Dpt, u"5"_s, lignes), rien);
    EXPECT_EQ(Trouve(Recherche_Par::Dpt, u"5 "_s, lignes), std::vector{u"2"_s});
    EXPECT_EQ(Trouve(Recherche_Par::Dpt, u"2A"_s, lignes), rien);
}

TEST(Recherche_QSO, un_log_vide_donne_le_message)
{
    Poste_Essai essai;
    EXPECT_EQ(Trouve(essai, Recherche_Par::Indicatif, u"F5"_s, {}), rien);
    EXPECT_EQ(essai.boites.messages, std::vector{u"Pas de QSO trouvé"_s});
}

TEST(Recherche_QSO, donne_les_lignes_affichees_entieres)
{
    Poste_Essai essai;
    const QString ligne = QSO({.ind = u"F5ABC"_s, .ref = u"77001"_s});
    essai.ecran.liste = Lignes_Texte(ligne + u"\r\n" + ligne + u"\r\n");
    EXPECT_EQ(Recherche_QSO(essai.poste, Recherche_Par::Indicatif, u"F5"_s),
              (std::vector{Ligne_Affichage(1, ligne), Ligne_Affichage(2, ligne)}));
    EXPECT_TRUE(essai.boites.messages.empty());
}

TEST(Recherche_QSO, le_saut_de_ligne_d_une_entree_precedente_ne_compte_pas)
{
    EXPECT_EQ(Trouve(Recherche_Par::Indicatif, u"\r\nF5"_s, {QSO({.ind = u"F5ABC"_s})}), std::vector{u"1"_s});
}

TEST(Refus_Recherche, douze_caracteres_au_plus_pour_l_indicatif)
{
    EXPECT_EQ(Refus_Recherche(Recherche_Par::Indicatif, u"123456789012"), std::nullopt);
    EXPECT_EQ(Refus_Recherche(Recherche_Par::Indicatif, u"1234567890123"), u"12 caracteres maxi pour l'indicatif"_s);
    EXPECT_EQ(Refus_Recherche(Recherche_Par::Reference, u"1234567890123"), std::nullopt);
}

TEST(Refus_Recherche, un_champ_vide_a_le_message_de_son_option)
{
    EXPECT_EQ(Refus_Recherche(Recherche_Par::Indicatif, u""), u"Entrez un indicatif"_s);
    EXPECT_EQ(Refus_Recherche(Recherche_Par::Reference, u""), u"Entrez une référence"_s);
    EXPECT_EQ(Refus_Recherche(Recherche_Par::Dpt, u""), u"Entrez un departement"_s);
}

TEST(Retourne_Au_QSO, choisit_l_entree_du_meme_numero)
{
    Poste_Essai essai;
    const QString ligne = QSO({});
    essai.ecran.liste = Lignes_Texte(ligne + u"\r\n" + ligne);
    Retourne_Au_QSO(essai.poste, Ligne_Affichage(2, ligne));
    EXPECT_EQ(essai.ecran.appels, std::vector{u"Selectionne_QSO 1"_s});
}

TEST(Retourne_Au_QSO, un_numero_que_le_log_n_a_plus_ne_choisit_rien)
{
    Poste_Essai essai;
    essai.ecran.liste = Lignes_Texte(QSO({}));
    Retourne_Au_QSO(essai.poste, Ligne_Affichage(2, QSO({})));
    Retourne_Au_QSO(essai.poste, u"");
    EXPECT_TRUE(essai.ecran.appels.empty());
}
