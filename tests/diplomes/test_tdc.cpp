#include "Charge_Essai.h"
#include "diplomes/Affiche_Option.h"
#include "faux/Attendus.h"
#include "plateforme/Erreur_Execution.h"

#include <map>

using namespace diplomes;

namespace {

const QString log_tdc = u"F9ZZY_TDC.log"_s;

const QString tours = u"Rev 001 du 01/01/20;;;;;;;\r\n"
                      "101;59;1;TOUR DE DUNKERQUE;Dunkerque - Ostende;France;TC001;\r\n"
                      "\r\n"
                      "102;75;2;MONTMARTRE;Paris - Lille;France;;\r\n"
                      "103;59;3;LILLE;Paris - Lille;France;;\r\n"
                      "8;11;4;CARCASSONNE;Narbonne - Perpignan;France;;\r\n"
                      "104;21;5;DIJON;Dijon - Besançon;France;;\r\n"_s;

void Choisit(Poste_Essai &essai, const QString &ligne, std::int16_t nombre)
{
    essai.etat.libelle_categorie = ligne;
    essai.etat.code_categorie = ligne;
    essai.etat.nb_tours_ligne = nombre;
    essai.fichiers.Pose(u"Liste_TDC.csv"_s, Encode_1252(tours));
}

QString Tour(const QString &ref, const QString &qsl = u"*"_s)
{
    return QSO({.dpt = ref.left(2), .ref = ref, .nom = u"T. "_s + ref, .qsl = qsl});
}

Etat_Fiche Fiche(const Lignes_Essai &lignes, const QString &ligne = u"Paris - Lille"_s, std::int16_t nombre = 24)
{
    Poste_Essai essai;
    Choisit(essai, ligne, nombre);
    return Fiche_De(essai, fiche_tdc, log_tdc, lignes);
}

Etat_Liste Liste(const Lignes_Essai &lignes, const QString &ligne = u"Paris - Lille"_s)
{
    Poste_Essai essai;
    Choisit(essai, ligne, 24);
    return Liste_De(essai, liste_tdc, log_tdc, lignes);
}

} // namespace

TEST(Fiche_TDC, la_ligne_est_atteinte_avec_ses_tours_ni_moins_ni_plus)
{
    EXPECT_FALSE(Est_Atteint(Fiche(Fois(23, Tour(u"75-102"_s))), u"Label4"));
    EXPECT_FALSE(Est_Atteint(Fiche(Fois(25, Tour(u"75-102"_s))), u"Label4"));
    const Etat_Fiche etat = Fiche(Fois(12, Tour(u"75-102"_s)) + Fois(12, Tour(u"59-103"_s)));
    EXPECT_EQ(Texte_De(etat, u"Label4"), u"Bravo vous pouvez obtenir le diplome TDC ligne Paris - Lille"_s);
    EXPECT_EQ(Texte_De(etat, u"Label18"), u"avec les QSL des 24 Tours confirmées"_s);
    EXPECT_TRUE(Est_Atteint(etat, u"Label4"));
    EXPECT_EQ(Boutons_Actifs(etat), QStringList{u"TDC_Lignes"_s});
}

TEST(Fiche_TDC, sans_contact_tout_manque)
{
    const Etat_Fiche etat = Fiche({});
    EXPECT_EQ(Texte_De(etat, u"Label4"), u"Vous ne pouvez pas obtenir le diplome TDC ligne Paris - Lille"_s);
    EXPECT_EQ(Texte_De(etat, u"Label18"), u"il vous manque 24 Tours confirmées sur les  24 tours de la ligne"_s);
    EXPECT_TRUE(Boutons_Actifs(etat).isEmpty());
}

TEST(Fiche_TDC, deux_contacts_avec_la_seule_tour_de_la_ligne_ne_l_atteignent_pas)
{
    const QString ligne = u"Dunkerque - Ostende"_s;
    EXPECT_TRUE(Est_Atteint(Fiche({Tour(u"59-101"_s)}, ligne, 1), u"Label4"));
    const Etat_Fiche etat = Fiche(Fois(2, Tour(u"59-101"_s)), ligne, 1);
    EXPECT_FALSE(Est_Atteint(etat, u"Label4"));
    EXPECT_EQ(Texte_De(etat, u"Label18"), u"il vous manque -1 Tours confirmées sur les  1 tours de la ligne"_s);
}

TEST(Fiche_TDC, ni_sans_carte_ni_d_une_autre_ligne_ni_inconnue)
{
    // An unknown reference must not count as the last tower of the list.
    const Lignes_Essai lignes = {Tour(u"21-104"_s, u" "_s), Tour(u"75-102"_s), Tour(u"21-999"_s), Tour(u""_s)};
    EXPECT_EQ(Texte_De(Fiche(lignes, u"Dijon - Besançon"_s, 12), u"Label18"),
              u"il vous manque 12 Tours confirmées sur les  12 tours de la ligne"_s);
    EXPECT_TRUE(Liste(lignes, u"Dijon - Besançon"_s).rangs.empty());
}

TEST(Fiche_TDC, un_poste_de_moins_de_trois_chiffres_n_est_connu_que_sans_zeros)
{
    const QString ligne = u"Narbonne - Perpignan"_s;
    EXPECT_TRUE(Liste({Tour(u"11-008"_s)}, ligne).rangs.empty());
    EXPECT_EQ(Liste({Tour(u"11-8"_s)}, ligne).rangs.size(), 1U);
}

TEST(Fiche_TDC, sans_la_liste_des_tours_rien_n_est_montre)
{
    Poste_Essai essai;
    EXPECT_THROW(Fiche_De(essai, fiche_tdc, log_tdc, {Tour(u"75-102"_s)}), Erreur_Execution);
    EXPECT_THROW(Charge_Liste(essai.poste, liste_tdc), Erreur_Execution);
}

TEST(Fiche_TDC, des_logs_au_hasard_donnent_le_compte_lent)
{
    const std::map<QString, QString> lignes_des_tours = {{u"59-101"_s, u"Dunkerque - Ostende"_s},
                                                         {u"75-102"_s, u"Paris - Lille"_s},
                                                         {u"59-103"_s, u"Paris - Lille"_s},
                                                         {u"21-104"_s, u"Dijon - Besançon"_s}};
    std::mt19937 hasard(7);
    for (int essai = 0; essai < 50; ++essai) {
        Lignes_Essai lignes;
        std::size_t lent = 0;
        for (int i = 0; i < essai * 3; ++i) {
            const QString ref =
                Au_Hasard(hasard, {u"59-101"_s, u"75-102"_s, u"59-103"_s, u"21-104"_s, u"11-008"_s, u"99-999"_s});
            const QString qsl = Au_Hasard(hasard, {u"*"_s, u" "_s, u"X"_s});
            lignes.push_back(Tour(ref, qsl));
            const auto place = lignes_des_tours.find(ref);
            if (qsl == u"*"_s && place != lignes_des_tours.end() && place->second == u"Paris - Lille"_s)
                ++lent;
        }
        EXPECT_EQ(Liste(lignes).rangs.size(), lent);
        EXPECT_EQ(Est_Atteint(Fiche(lignes), u"Label4"), lent == 24);
    }
}

TEST(Fiche_TDC, le_bouton_donne_le_nom_de_la_ligne)
{
    Poste_Essai essai;
    essai.etat.libelle_categorie = u"Paris - Brest"_s;
    Presse_Bouton(essai.poste, fiche_tdc, u"TDC_Lignes");
    EXPECT_EQ(essai.etat.code_categorie, u"Paris - Brest"_s);
    EXPECT_EQ(essai.ecrans.montres, std::vector<QString>{u"Liste_TDC"_s});
}

TEST(Liste_TDC, le_titre_montre_la_bande_d_un_autre_ecran)
{
    Poste_Essai essai;
    Choisit(essai, u"Paris - Lille"_s, 24);
    essai.etat.bande_liste = u"THF"_s;
    const Etat_Liste etat = Liste_De(essai, liste_tdc, log_tdc, {Tour(u"75-102"_s), Tour(u"59-103"_s)});
    EXPECT_EQ(etat.entete, u"Diplome TDC THF"_s);
    EXPECT_EQ(etat.compte, u" 2 Tours confirmées"_s);
    EXPECT_EQ(etat.rangs.front(), u" 59-103      59  T. 59-103                       12/05/07  14:48  F5ABC       "_s);
    EXPECT_EQ(Liste({}).entete, u"Diplome TDC "_s);
}

TEST(Liste_TDC, le_fichier_et_la_page)
{
    Poste_Essai essai;
    Choisit(essai, u"Dijon - Besançon"_s, 12);
    const Etat_Liste etat =
        Liste_De(essai, liste_tdc, log_tdc, {Tour(u"21-104"_s), Tour(u"75-102"_s), Tour(u"21-104"_s)});
    Enregistre_Liste(essai.poste, liste_tdc, etat);
    const QString nom = u"F9ZZY_Diplome_TDC_Dijon - Besançon_15_11_26.txt"_s;
    EXPECT_EQ(essai.boites.messages, std::vector<QString>{u"Fichier enregistré sous le nom : "_s + nom});
    Compare_Attendu(u"liste_tdc.txt"_s, essai.fichiers.Octets(nom));
    Compare_Attendu(u"page_tdc.txt"_s, En_Octets(Page_De(essai, liste_tdc, etat)));
}

TEST(Choix_TDC, chaque_option_donne_le_nom_et_les_tours_de_sa_ligne)
{
    const std::map<int, std::pair<QString, int>> attendus = {
        {1, {u"Paris - Lille"_s, 24}},       {6, {u"Paris - Bayonne"_s, 112}},    {9, {u"Saint Omer - Calais"_s, 4}},
        {10, {u"Dunkerque - Ostende"_s, 1}}, {12, {u"Anvers - Amsterdam"_s, 19}}, {16, {u"Dijon - Besançon"_s, 12}},
        {17, {u"Lyon - Venise"_s, 25}}};
    int options = 0;
    for (const Groupe_Options &groupe : choix_tdc.groupes)
        for (const Option_Diplome &option : groupe.options) {
            Poste_Essai essai;
            Affiche_Option(essai.poste, option);
            EXPECT_EQ(essai.ecrans.montres, std::vector<QString>{u"Diplomes_TDC"_s});
            EXPECT_EQ(option.indice, ++options);
            if (!attendus.contains(option.indice))
                continue;
            EXPECT_EQ(essai.etat.libelle_categorie, attendus.at(option.indice).first);
            EXPECT_EQ(essai.etat.nb_tours_ligne, attendus.at(option.indice).second);
        }
    EXPECT_EQ(options, 17);
}
