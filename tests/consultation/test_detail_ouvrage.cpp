#include "consultation/Detail_Ouvrage.h"
#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "faux/QSO_Essai.h"
#include "plateforme/Erreur_Execution.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr auto *liste = "Rev 001 01/01/20;;;;;;;;;;;;;;;;;;;\r\n"
                        "45-EC-102;2;3;4;5;6;7;8;9;10;11;12;13;14;15;16;17;18;http://19.test/;\r\n"
                        "45EC001;Nom;;45;;;;;;;;;;;;;;;;\r\n";

} // namespace

TEST(Charge_Detail, chaque_champ_prend_sa_colonne)
{
    Poste_Essai essai;
    essai.fichiers.Pose(u"Liste_Ouvrages.csv"_s, liste);
    EXPECT_EQ(Charge_Detail(essai.poste, u"45EC102"), (Textes_Detail{{u"Ref_I"_s, u"45-EC-102"_s},
                                                                     {u"Nom_I"_s, u"2"_s},
                                                                     {u"Type_I"_s, u"3"_s},
                                                                     {u"Dpt_I"_s, u"4"_s},
                                                                     {u"Canal_I"_s, u"5"_s},
                                                                     {u"Num_I"_s, u"7"_s},
                                                                     {u"Dist_I"_s, u"8"_s},
                                                                     {u"Class_I"_s, u"9"_s},
                                                                     {u"Fonction_I"_s, u"11"_s},
                                                                     {u"Annee_I"_s, u"12"_s},
                                                                     {u"Haut_I"_s, u"13"_s},
                                                                     {u"Volume_I"_s, u"14"_s},
                                                                     {u"V_Bati_I"_s, u"15"_s},
                                                                     {u"Large_I"_s, u"16"_s},
                                                                     {u"Historique_I"_s, u"18"_s},
                                                                     {u"Internet_I"_s, u"http://19.test/"_s}}));
    EXPECT_TRUE(essai.boites.messages.empty());
}

TEST(Charge_Detail, une_reference_inconnue_est_dite_et_ne_change_que_Ref_I)
{
    Poste_Essai essai;
    essai.fichiers.Pose(u"Liste_Ouvrages.csv"_s, liste);
    EXPECT_EQ(Charge_Detail(essai.poste, u"45EC999"), (Textes_Detail{{u"Ref_I"_s, u"45EC999"_s}}));
    EXPECT_EQ(essai.boites.messages, std::vector{u"Référence non trouvée"_s});
}

TEST(Charge_Detail, une_liste_absente_ou_une_ligne_courte_est_un_echec)
{
    Poste_Essai essai;
    EXPECT_THROW(Charge_Detail(essai.poste, u"45EC102"), Erreur_Execution);
    essai.fichiers.Pose(u"Liste_Ouvrages.csv"_s, "Rev\r\n45EC103;court\r\n");
    EXPECT_THROW(Charge_Detail(essai.poste, u"45EC102"), Erreur_Execution);
}

TEST(Reference_Ouvrage, sept_caracteres_de_l_entree_choisie)
{
    Poste_Essai essai;
    EXPECT_EQ(Reference_Ouvrage(essai.poste), u""_s);
    essai.ecran.selection = Ligne_Affichage(1, QSO({.ref = u"45EC102xyz"_s}));
    EXPECT_EQ(Reference_Ouvrage(essai.poste), u"45EC102"_s);
}

TEST(Refus_Ouvrage, exactement_sept_caracteres)
{
    EXPECT_EQ(Refus_Ouvrage(u"45EC001"), std::nullopt);
    EXPECT_EQ(Refus_Ouvrage(u"45EC01"), u"7 caracteres pour la reference ex: 45EC001"_s);
    EXPECT_EQ(Refus_Ouvrage(u"45EC0011"), u"7 caracteres pour la reference ex: 45EC001"_s);
}
