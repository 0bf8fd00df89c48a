#include "consultation/Detail_Tour.h"
#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "faux/QSO_Essai.h"
#include "log/Ligne_Affichage.h"
#include "plateforme/Erreur_Execution.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr auto *liste = "8;11;entete;;;;;\r\n"
                        "\r\n"
                        "9;11;40;CAPENDU;Narbonne - Perpignan;France;TC9;\r\n"
                        "8;11;41;CARCASSONNE;Narbonne - Perpignan;France;TC8;reste\r\n"
                        "8;11;42;SECONDE;Autre;Belgique;;\r\n";

} // namespace

TEST(Charge_Tour, la_premiere_tour_du_poste_remplit_les_champs)
{
    Poste_Essai essai;
    essai.fichiers.Pose(u"Liste_TDC.csv"_s, liste);
    EXPECT_EQ(Charge_Tour(essai.poste, u"11-008"), (Textes_Detail{{u"Ref_I"_s, u"TDC 11-008"_s},
                                                                  {u"Poste_I"_s, u"8"_s},
                                                                  {u"Num_I"_s, u"41"_s},
                                                                  {u"Nom_I"_s, u"CARCASSONNE"_s},
                                                                  {u"Ligne_I"_s, u"Narbonne - Perpignan"_s},
                                                                  {u"Pays_I"_s, u"France"_s},
                                                                  {u"Ex_Ref_I"_s, u"TC8"_s},
                                                                  {u"Dpt_I"_s, u"11"_s}}));
}

TEST(Charge_Tour, une_reference_inconnue_est_dite_dans_son_champ_sans_boite)
{
    Poste_Essai essai;
    essai.fichiers.Pose(u"Liste_TDC.csv"_s, liste);
    for (const QString &ref : {u"12-008"_s, u"11-010"_s, u""_s})
        EXPECT_EQ(Charge_Tour(essai.poste, ref), (Textes_Detail{{u"Ref_I"_s, u"Référence non trouvée"_s}}));
    EXPECT_TRUE(essai.boites.messages.empty());
}

TEST(Charge_Tour, une_liste_absente_ou_une_ligne_courte_est_un_echec)
{
    Poste_Essai essai;
    EXPECT_THROW(Charge_Tour(essai.poste, u"11-008"), Erreur_Execution);
    essai.fichiers.Pose(u"Liste_TDC.csv"_s, "Rev\r\n1;2;court\r\n");
    EXPECT_THROW(Charge_Tour(essai.poste, u"11-008"), Erreur_Execution);
}

TEST(Reference_Tour, six_caracteres_de_la_ligne_de_saisie_et_non_du_QSO_choisi)
{
    Poste_Essai essai;
    essai.ecran.ligne_selectionnee = Ligne_Affichage(1, QSO({.ref = u"12-099"_s}));
    EXPECT_EQ(Reference_Tour(essai.poste), u""_s);
    essai.ecran.ref_a = u"11-008xyz"_s;
    EXPECT_EQ(Reference_Tour(essai.poste), u"11-008"_s);
}

TEST(Voir_Site, montre_la_page_de_la_tour_sous_son_titre)
{
    Poste_Essai essai;
    essai.reglages.Ecrit(u"Serveurs"_s, u"Tours"_s, u"tours.test"_s);
    Voir_Site(essai.poste, {{u"Num_I"_s, u"41"_s}, {u"Poste_I"_s, u"8"_s}, {u"Nom_I"_s, u"CARCASSONNE"_s}});
    EXPECT_EQ(essai.etat.adresse_page, u"http://tours.test/tour.php?NumTour=41"_s);
    EXPECT_EQ(essai.etat.titre_page, u"Site web de la tour 8 CARCASSONNE"_s);
    EXPECT_EQ(essai.ecrans.montres, std::vector<QString>{u"Affichage"_s});
}

TEST(Voir_Site, sans_serveur_l_adresse_est_vide)
{
    Poste_Essai essai;
    essai.etat.adresse_page = u"http://avant.test/"_s;
    Voir_Site(essai.poste, {});
    EXPECT_EQ(essai.etat.adresse_page, QString());
    EXPECT_EQ(essai.etat.titre_page, u"Site web de la tour  "_s);
}
