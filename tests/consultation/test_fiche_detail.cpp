#include "consultation/Fiche_Detail.h"
#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "faux/QSO_Essai.h"
#include "log/Ligne_Affichage.h"
#include "plateforme/Erreur_Execution.h"
#include "plateforme/Windows_1252.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

void Pose(const Poste_Essai &essai, const QString &nom, const QString &texte)
{
    essai.fichiers.Pose(nom, Encode_1252(texte));
}

/// A list of castles with its heading and one line.
Textes_Detail Detail_DFCF_De(Poste_Essai &essai, QStringView ligne, QStringView reference)
{
    Pose(essai, u"Liste_DFCF.csv"_s, u"Rev 001 du 01/01/20;;;;;\r\n"_s + ligne + u"\r\n");
    return Cherche_Detail(essai.poste, fiche_detail_dfcf, reference);
}

} // namespace

TEST(Detail_DFCF, remplit_les_champs_du_chateau)
{
    Poste_Essai essai;
    const Textes_Detail textes = Detail_DFCF_De(essai, u"63-087;Château de Murol;12/05/07;F5ABC;Murol;63790", u"63087");
    EXPECT_EQ(textes, (Textes_Detail{{u"Ref_I"_s, u"63087"_s},
                                     {u"Nom_I"_s, u"Château de Murol"_s},
                                     {u"Date_I"_s, u"12/05/07"_s},
                                     {u"Act_I"_s, u"F5ABC"_s},
                                     {u"Ville_I"_s, u"63790 Murol"_s}}));
    EXPECT_TRUE(essai.boites.messages.empty());
}

TEST(Detail_DFCF, un_code_postal_de_quatre_caracteres_recoit_son_zero)
{
    Poste_Essai essai;
    EXPECT_EQ(Detail_DFCF_De(essai, u"01001;A;B;C;Bourg;1000", u"01001")[u"Ville_I"_s], u"01000 Bourg"_s);
    EXPECT_EQ(Detail_DFCF_De(essai, u"01001;A;B;C;Bourg;01000", u"01001")[u"Ville_I"_s], u"01000 Bourg"_s);
    EXPECT_EQ(Detail_DFCF_De(essai, u"01001;A;B;C;Bourg;1", u"01001")[u"Ville_I"_s], u"1 Bourg"_s);
}

TEST(Detail_DFCF, la_reference_du_log_est_coupee_a_7)
{
    Poste_Essai essai;
    essai.ecran.ligne_selectionnee = Ligne_Affichage(1, QSO({.ref = u"770011234"_s}));
    EXPECT_EQ(Reference_Selectionnee(essai.poste, fiche_detail_dfcf), u"7700112"_s);
    EXPECT_EQ(Reference_Selectionnee(essai.poste, fiche_detail_fff), u"770011234"_s);
    EXPECT_EQ(Reference_Selectionnee(essai.poste, fiche_detail_pc), u"770011234"_s);
}

TEST(Detail_DFCF, sans_QSO_choisi_la_reference_vide_n_est_pas_trouvee)
{
    Poste_Essai essai;
    EXPECT_EQ(Reference_Selectionnee(essai.poste, fiche_detail_dfcf), u""_s);
    EXPECT_EQ(Detail_DFCF_De(essai, u"63087;A;B;C;D;63790", u""), (Textes_Detail{{u"Ref_I"_s, u""_s}}));
    EXPECT_EQ(essai.boites.messages, std::vector{u"Référence non trouvée"_s});
}

TEST(Detail_DFCF, l_en_tete_ne_compte_pas_et_les_lignes_vides_passent)
{
    Poste_Essai essai;
    Pose(essai, u"Liste_DFCF.csv"_s, u"63087;en-tête;;;;\r\n\r\n63087;bon;;;;\r\n63087;second;;;;\r\n"_s);
    EXPECT_EQ(Cherche_Detail(essai.poste, fiche_detail_dfcf, u"63087")[u"Nom_I"_s], u"bon"_s);
}

TEST(Detail_DFCF, une_reference_inconnue_est_dite_et_reste_affichee)
{
    Poste_Essai essai;
    EXPECT_EQ(Detail_DFCF_De(essai, u"63087;A;B;C;D;63790", u"63088"), (Textes_Detail{{u"Ref_I"_s, u"63088"_s}}));
    EXPECT_EQ(essai.boites.messages, std::vector{u"Référence non trouvée"_s});
}

TEST(Detail_DFCF, une_ligne_courte_n_arrete_que_si_elle_est_la_bonne)
{
    Poste_Essai essai;
    Pose(essai, u"Liste_DFCF.csv"_s, u"Rev\r\n63001;court\r\n63087;A;B;C;D;63790\r\n"_s);
    EXPECT_EQ(Cherche_Detail(essai.poste, fiche_detail_dfcf, u"63087")[u"Act_I"_s], u"C"_s);
    EXPECT_THROW(Cherche_Detail(essai.poste, fiche_detail_dfcf, u"63001"), Erreur_Execution);
}

TEST(Detail_DFCF, sans_liste_est_un_echec)
{
    Poste_Essai essai;
    EXPECT_THROW(Cherche_Detail(essai.poste, fiche_detail_dfcf, u"63087"), Erreur_Execution);
}

TEST(Detail_FFF, prend_le_champ_4_tel_quel_et_le_pays_au_champ_3)
{
    Poste_Essai essai;
    Pose(essai, u"Liste_FFF.csv"_s,
         u"Rev 001;;;;;;;;;\r\na;b;c;d;e;;;;;\r\na;b;c;d;e;;;;;\r\n"
         u"1;France;FR;ONFF-0051;Autre;;;;;\r\n2;France;FR;FFF-0051;Parc des Cévennes;;;;;\r\n"_s);
    EXPECT_EQ(
        Cherche_Detail(essai.poste, fiche_detail_fff, u"0051"),
        (Textes_Detail{{u"Ref_I"_s, u"FFF-0051"_s}, {u"Pays_I"_s, u"FR"_s}, {u"Nom_I"_s, u"Parc des Cévennes"_s}}));
}

TEST(Detail_FFF, une_reference_inconnue_reste_sans_son_prefixe)
{
    Poste_Essai essai;
    Pose(essai, u"Liste_FFF.csv"_s, u"Rev\r\n2;France;FR;FFF-0051;Parc;;;;;\r\n"_s);
    EXPECT_EQ(Cherche_Detail(essai.poste, fiche_detail_fff, u"0052"), (Textes_Detail{{u"Ref_I"_s, u"0052"_s}}));
    EXPECT_EQ(essai.boites.messages, std::vector{u"Référence non trouvée"_s});
}

TEST(Detail_PC, compare_les_cinq_derniers_caracteres_sans_tirets)
{
    Poste_Essai essai;
    Pose(essai, u"Liste_PC.csv"_s, u"Rev\r\nPC-93-001;Lavoir;x;7;y;93;Montreuil;\r\n"_s);
    EXPECT_EQ(Cherche_Detail(essai.poste, fiche_detail_pc, u"93001"), (Textes_Detail{{u"Ref_I"_s, u"PC93001"_s},
                                                                                     {u"Nom_I"_s, u"Lavoir"_s},
                                                                                     {u"Num_I"_s, u"7"_s},
                                                                                     {u"Dpt_I"_s, u"93"_s},
                                                                                     {u"Ville_I"_s, u"Montreuil"_s}}));
}

TEST(Detail_PC, un_champ_1_trop_court_se_compare_tel_quel)
{
    Poste_Essai essai;
    Pose(essai, u"Liste_PC.csv"_s, u"Rev\r\n9-3-1;Lavoir;x;7;y;93;Montreuil;\r\n"_s);
    EXPECT_EQ(Cherche_Detail(essai.poste, fiche_detail_pc, u"931")[u"Nom_I"_s], u"Lavoir"_s);
    EXPECT_TRUE(essai.boites.messages.empty());
    Cherche_Detail(essai.poste, fiche_detail_pc, u"00931");
    EXPECT_EQ(essai.boites.messages, std::vector{u"Référence non trouvée"_s});
}
