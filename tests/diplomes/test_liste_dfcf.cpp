#include "Log_Essai.h"
#include "diplomes/regles/Remplit_Liste.h"
#include "diplomes/tables/Tables.h"
#include "plateforme/Erreur_Execution.h"

#include <gtest/gtest.h>

using namespace diplomes;

namespace {

Etat_Liste Liste(const QString &categorie, const Lignes_Essai &lignes, const QString &bande = u"HF"_s)
{
    Etat_Commun etat;
    etat.bande_liste = bande;
    etat.code_categorie = categorie;
    return Remplit_Liste(liste_dfcf, En_Texte(lignes), etat);
}

std::vector<QString> Rangs(const Lignes_Essai &lignes)
{
    return Liste(u"de Base"_s, lignes).rangs;
}

std::vector<QString> Excellence_De(const Lignes_Essai &lignes)
{
    return Liste(u"Excellence"_s, lignes).rangs;
}

QString Confirme_Sur(const QString &bande)
{
    return QSO({.dpt = u"77"_s, .ref = u"77001"_s, .bande = bande, .qsl = u"*"_s});
}

} // namespace

TEST(Liste_DFCF, le_rang_tient_sous_son_en_tete)
{
    const QString ligne =
        QSO({.ind = u"F5ABC/P"_s, .dpt = u"77"_s, .ref = u"77001"_s, .nom = u"C. DE VAUX"_s, .qsl = u"*"_s});
    const Etat_Liste liste = Liste(u"de Base"_s, {ligne});
    ASSERT_EQ(liste.rangs.size(), 1U);
    EXPECT_EQ(liste.rangs[0], u" 77001     77  C. DE VAUX                      12/05/07  14:48  F5ABC/P     "_s);
    EXPECT_EQ(liste.rangs[0].size(), 76);
    EXPECT_EQ(liste.colonnes, u"   Ref     Dpt        Nom du Chateau              Date   Heure  Indicatif"_s);
    EXPECT_EQ(liste.entete, u"Diplome DFCF HF de Base"_s);
    EXPECT_EQ(liste.compte, u" 1 Chateaux confirmés"_s);
}

TEST(Liste_DFCF, le_titre_suit_la_bande)
{
    EXPECT_EQ(Liste(u"de Base"_s, {}, u"HF"_s).titre, u"Liste DFCF bande HF"_s);
    EXPECT_EQ(Liste(u"de Base"_s, {}, u"VHF"_s).titre, u"Liste DFCF bande VHF"_s);
    EXPECT_EQ(Liste(u"de Base"_s, {}, u"UHF"_s).titre, u"Liste DFCF bande UHF"_s);
    EXPECT_EQ(Liste(u"de Base"_s, {}, u"14 Mhz"_s).titre, u"Diplôme DFCF"_s);
}

TEST(Liste_DFCF, un_doublon_fait_deux_rangs_et_compte_deux)
{
    const Etat_Liste liste = Liste(u"de Base"_s, Fois(2, Confirme_Sur(u"14 Mhz"_s)));
    EXPECT_EQ(liste.rangs.size(), 2U);
    EXPECT_EQ(liste.compte, u" 2 Chateaux confirmés"_s);
}

TEST(Liste_DFCF, deux_dates_sont_rangees_par_leurs_caracteres)
{
    const auto le = [](const QString &date) {
        return QSO({.dpt = u"77"_s, .ref = u"77001"_s, .date = date, .qsl = u"*"_s});
    };
    const std::vector<QString> rangs = Rangs({le(u"04/01/20"_s), le(u"03/12/24"_s)});
    EXPECT_TRUE(rangs[0].contains(u"03/12/24"_s));
    EXPECT_TRUE(rangs[1].contains(u"04/01/20"_s));
}

TEST(Liste_DFCF, l_ordre_ne_regarde_pas_la_casse)
{
    const auto nomme = [](const QString &nom) {
        return QSO({.dpt = u"77"_s, .ref = u"77001"_s, .nom = nom, .qsl = u"*"_s});
    };
    const std::vector<QString> rangs = Rangs({nomme(u"C. vaux"_s), nomme(u"C. ZED"_s), nomme(u"C. VAUX"_s)});
    EXPECT_TRUE(rangs[0].contains(u"vaux"_s));
    EXPECT_TRUE(rangs[1].contains(u"VAUX"_s));
    EXPECT_TRUE(rangs[2].contains(u"ZED"_s));
}

TEST(Liste_DFCF, une_reference_de_dix_est_coupee_a_huit_hors_de_l_excellence)
{
    const QString ligne = QSO({.dpt = u"77"_s, .ref = u"7700123456"_s, .qsl = u"*"_s});
    EXPECT_TRUE(Rangs({ligne})[0].startsWith(u" 77001234  77  "_s));
    EXPECT_TRUE(Excellence_De({ligne})[0].startsWith(u"77  7700123456  F5ABC"_s));
}

TEST(Liste_DFCF, l_excellence_garde_la_derniere_ligne_du_departement)
{
    const QString ancienne = QSO({.ind = u"F1AAA"_s, .dpt = u"75"_s, .ref = u"75001"_s, .qsl = u"*"_s});
    const QString recente =
        QSO({.ind = u"F2BBB"_s, .dpt = u"75"_s, .prenom = u"JEAN"_s, .ref = u"75002"_s, .qsl = u"*"_s});
    const std::vector<QString> rangs = Excellence_De({ancienne, recente});
    ASSERT_EQ(rangs.size(), 1U);
    EXPECT_EQ(rangs[0], u"75  75002       F2BBB        JEAN            12/05/07  14:48  14 Mhz   SSB  "_s);
    EXPECT_EQ(rangs[0].size(), 76);
}

TEST(Liste_DFCF, une_bande_sans_classe_prend_celle_de_la_ligne_d_avant)
{
    const QString hf = Confirme_Sur(u"14 Mhz"_s);
    const QString sans_classe = Confirme_Sur(u"10 Mhz"_s);
    EXPECT_EQ(Rangs({hf, sans_classe}).size(), 2U);
    EXPECT_EQ(Rangs({sans_classe, hf}).size(), 1U);
    EXPECT_EQ(Rangs({Confirme_Sur(u"144 Mhz"_s), sans_classe}).size(), 0U);
    EXPECT_EQ(Liste(u"de Base"_s, {Confirme_Sur(u"432 Mhz"_s), sans_classe}, u"UHF"_s).rangs.size(), 2U);
}

TEST(Liste_DFCF, la_classe_suit_aussi_les_lignes_sans_QSL)
{
    EXPECT_EQ(Rangs({QSO({.dpt = u"77"_s}), Confirme_Sur(u"10 Mhz"_s)}).size(), 1U);
}

TEST(Liste_DFCF, l_excellence_range_la_Corse_apres_29)
{
    const auto du = [](const QString &dpt) { return QSO({.dpt = dpt, .qsl = u"*"_s}); };
    QStringList departements;
    for (const QString &rang : Excellence_De({du(u"30"_s), du(u"2A"_s), du(u"29"_s), du(u"01"_s), du(u"2b"_s)}))
        departements.push_back(rang.left(2));
    EXPECT_EQ(departements, (QStringList{u"01"_s, u"29"_s, u"2A"_s, u"2b"_s, u"30"_s}));
}

TEST(Liste_DFCF, l_excellence_compte_les_QSO_et_non_les_departements)
{
    const Etat_Liste liste = Liste(u"Excellence"_s, Fois(5, Confirme_Sur(u"14 Mhz"_s)));
    EXPECT_EQ(liste.rangs.size(), 1U);
    EXPECT_EQ(liste.compte, u" 5 Chateaux confirmés"_s);
    EXPECT_EQ(liste.colonnes, u"Dep   Ref       Indicatif    Prénom            Date    Heure  Bande   Mode"_s);
}

TEST(Liste_DFCF, le_departement_00_est_compte_sans_rang_d_excellence)
{
    const Etat_Liste liste = Liste(u"Excellence"_s, {QSO({.dpt = u"00"_s, .qsl = u"*"_s})});
    EXPECT_TRUE(liste.rangs.empty());
    EXPECT_EQ(liste.compte, u" 1 Chateaux confirmés"_s);
}

TEST(Liste_DFCF, sans_rang_l_en_tete_et_le_compte_sont_poses)
{
    const Etat_Liste liste = Liste(u"Honneur"_s, {});
    EXPECT_FALSE(liste.colonnes.isEmpty());
    EXPECT_EQ(liste.compte, u" 0 Chateaux confirmés"_s);
}

TEST(Liste_DFCF, un_departement_illisible_n_arrete_que_sur_une_ligne_retenue)
{
    EXPECT_NO_THROW(Rangs({QSO({.dpt = u"FR"_s}), QSO({.dpt = u"FR"_s, .bande = u"144 Mhz"_s, .qsl = u"*"_s})}));
    EXPECT_THROW(Rangs({QSO({.dpt = u"FR"_s, .qsl = u"*"_s})}), Erreur_Execution);
    EXPECT_THROW(Rangs({QSO({.dpt = u"98"_s, .qsl = u"*"_s})}), Erreur_Execution);
}

TEST(Liste_DFCF, une_ligne_plus_longue_ou_plus_courte_donne_les_champs_qu_elle_a)
{
    // The mark stands in column 111: only a line that reaches it is listed, whatever follows.
    const QString longue = Confirme_Sur(u"14 Mhz"_s) + u"suite"_s;
    EXPECT_EQ(Rangs({longue, longue.left(110)}).size(), 1U);
}
