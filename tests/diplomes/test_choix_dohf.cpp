#include "Log_Essai.h"
#include "diplomes/Affiche_Option.h"
#include "diplomes/tables/Tables.h"

#include <gtest/gtest.h>

#include <map>

using namespace diplomes;

namespace {

void Affiche(Poste_Essai &essai, int indice)
{
    for (const Groupe_Options &groupe : choix_dohf.groupes)
        for (const Option_Diplome &option : groupe.options)
            if (option.indice == indice)
                Affiche_Option(essai.poste, option);
}

struct Canal_Attendu {
    int indice;
    QString nom;
    int ouvrages;
    int numero;
};

} // namespace

TEST(Choix_DOHF, chaque_categorie_donne_son_code_et_son_libelle_et_montre_la_fiche)
{
    const std::map<int, std::pair<QString, QString>> attendus = {
        {1, {u"BA"_s, u"Barrages"_s}},
        {2, {u"EC"_s, u"Ecluses / Bassins"_s}},
        {3, {u"PT"_s, u"Ponts / Ponts Cannaux / Tunnels"_s}},
        {4, {u"AQ"_s, u"Aqueducs"_s}},
        {5, {u"MA"_s, u"Machines / Pentes d'eau"_s}},
        {6, {u"MI"_s, u"Mixte"_s}},
    };
    for (const auto &[indice, attendu] : attendus) {
        Poste_Essai essai;
        essai.etat.niveau_liste = u"Honneur"_s;
        Affiche(essai, indice);
        EXPECT_EQ(essai.etat.code_categorie, attendu.first);
        EXPECT_EQ(essai.etat.libelle_categorie, attendu.second);
        EXPECT_EQ(essai.etat.niveau_liste, indice == 1 ? u"Niveau 1"_s : u"Honneur"_s);
        EXPECT_EQ(essai.etat.canal_challenge, QString());
        EXPECT_EQ(essai.ecrans.montres, std::vector<QString>{u"Diplomes_DOHF"_s});
    }
}

TEST(Choix_DOHF, chaque_canal_donne_ses_ouvrages_et_son_numero_et_laisse_la_categorie)
{
    const std::vector<Canal_Attendu> attendus = {
        {7, u"Canal latéral à la Loire"_s, 77, 1}, {8, u"Canal de la Garonne"_s, 76, 2},
        {9, u"Canal du Nivernais"_s, 124, 5},      {10, u"Canal de Bourgogne"_s, 196, 4},
        {11, u"Canal de Briard"_s, 41, 3},         {12, u"Canal de Somme"_s, 50, 6},
        {13, u"Canal Saint Martin"_s, 25, 7},      {14, u"Canal de Meuse"_s, 50, 8},
    };
    for (const Canal_Attendu &attendu : attendus) {
        Poste_Essai essai;
        essai.etat.code_categorie = u"EC"_s;
        essai.etat.libelle_categorie = u"Ecluses / Bassins"_s;
        Affiche(essai, attendu.indice);
        EXPECT_EQ(essai.etat.canal_challenge, attendu.nom);
        EXPECT_EQ(essai.etat.nb_ouvrages_canal, attendu.ouvrages);
        EXPECT_EQ(essai.etat.numero_canal, attendu.numero);
        EXPECT_EQ(essai.etat.code_categorie, u"EC"_s);
        EXPECT_EQ(essai.etat.libelle_categorie, u"Ecluses / Bassins"_s);
        EXPECT_EQ(essai.ecrans.montres, std::vector<QString>{u"Challenge"_s});
    }
}

TEST(Choix_DOHF, les_options_ont_leurs_mots_sous_leurs_etiquettes)
{
    ASSERT_EQ(choix_dohf.groupes.size(), 2U);
    EXPECT_EQ(choix_dohf.titre, u"Sélection Diplome"_s);
    EXPECT_EQ(choix_dohf.entete, u"Sélection d'un diplome DOHF"_s);
    EXPECT_EQ(choix_dohf.groupes[0].etiquette, u"Diplomes"_s);
    EXPECT_EQ(choix_dohf.groupes[1].etiquette, u"Challenges"_s);
    EXPECT_EQ(choix_dohf.groupes[0].options.size(), 6U);
    QStringList canaux;
    for (const Option_Diplome &option : choix_dohf.groupes[1].options)
        canaux.push_back(option.texte.toString());
    EXPECT_EQ(canaux, (QStringList{u"Canal latéral à la Loire"_s, u"Canal latéral à la Garonne"_s,
                                   u"Canal du Nivernais"_s, u"Canal de Bourgogne"_s, u"Canal de Briard"_s,
                                   u"Canal de la Somme"_s, u"Canal Saint Martin"_s, u"Canal de Meuse"_s}));
}
