#include "faux/Donnees_Essai.h"
#include "faux/Impression.h"
#include "saisie/Menu_Principal.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const Entree_Menu &Entree_De(QStringView nom)
{
    const auto entrees = Menu_Principal();
    const auto place = std::find_if(entrees.begin(), entrees.end(), [&](const Entree_Menu &e) { return e.nom == nom; });
    if (place == entrees.end())
        throw std::runtime_error("no such entry");
    return *place;
}

} // namespace

TEST(Menu_Principal, tous_les_noms_et_libelles_dans_leur_ordre)
{
    QString texte;
    for (const Entree_Menu &entree : Menu_Principal())
        texte += entree.nom + u'|' + entree.libelle + u'\n';
    EXPECT_EQ(texte.toUtf8(), Attendu(u"menus.txt"_s));
}

TEST(Menu_Principal, une_entree_ouvre_son_ecran)
{
    // clang-format off
    constexpr std::pair<QStringView, QStringView> ecrans[] = {
        {u"Mnu_Sauve_Log", u"Sauvegarde_Log"},
        {u"Mnu_Copies", u"Copies"},
        {u"Mnu_New_Indicatif", u"Station"},
        {u"Mnu_Affiche", u"Aff_Contacte"},
        {u"Mnu_Aff_All", u"Affiche_Toutes_Activites"},
        {u"Mnu_Carte_Contacte", u"Carte_Acti"},
        {u"Mnu_Cluster", u"Cluster"},
        {u"Mnu_QSL", u"Multi_QSL"},
        {u"Mnu_Reglements", u"Reglements"},
    };
    // clang-format on
    for (const auto &[nom, ecran] : ecrans)
        EXPECT_EQ(Entree_De(nom).cible, ecran);
    EXPECT_EQ(Entree_De(u"Mnu_New_Indicatif").genre, Genre_Entree::Ecran_Modal);
}

TEST(Menu_Principal, les_separateurs_et_les_menus_de_la_barre)
{
    EXPECT_EQ(Entree_De(u"Mnu_Rien").genre, Genre_Entree::Separateur);
    EXPECT_EQ(Entree_De(u"Mnu_Rien1").genre, Genre_Entree::Separateur);
    QStringList barre;
    for (const Entree_Menu &entree : Menu_Principal())
        if (entree.genre == Genre_Entree::Menu || entree.genre == Genre_Entree::Barre ||
            entree.genre == Genre_Entree::Barre_Ecran)
            barre += entree.libelle.toString();
    EXPECT_EQ(barre, (QStringList{u"Fichiers"_s, u"Station"_s, u"Option"_s, u"Affichage"_s, u"Carte"_s, u"Outils"_s,
                                  u"Cluster"_s, u"Diplomes"_s, u"Gestion des QSL"_s, u"Nouvelle révision ?"_s,
                                  u"Règlements"_s, u"?"_s}));
}

TEST(Menu_Principal, aucun_nom_n_est_pris_deux_fois)
{
    QStringList noms;
    for (const Entree_Menu &entree : Menu_Principal())
        noms += entree.nom.toString();
    EXPECT_EQ(noms.removeDuplicates(), 0);
}
