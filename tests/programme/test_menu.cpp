#include "programme/Programme_Essai.h"

#include "saisie/Menu_Principal.h"

#include <QComboBox>

using namespace Qt::StringLiterals;

namespace {

class Menu_Complet : public Programme_Essai {};

} // namespace

TEST_F(Menu_Complet, chaque_entree_a_son_nom_son_libelle_et_sa_reponse)
{
    Installe_Station(u"DFCF"_s);
    Ouvre();
    for (const Entree_Menu &entree : Menu_Principal()) {
        const auto *action = Ecran().findChild<QAction *>(entree.nom.toString());
        ASSERT_NE(action, nullptr) << entree.nom.toString().toStdString();
        EXPECT_EQ(action->text(), entree.libelle.toString());
        EXPECT_EQ(action->isSeparator(), entree.genre == Genre_Entree::Separateur);
        EXPECT_TRUE(action->isEnabled()) << entree.nom.toString().toStdString() << " has no screen and no command";
    }
}

TEST_F(Menu_Complet, chaque_ecran_du_menu_s_ouvre_sous_son_nom)
{
    Installe_Station(u"DFCF"_s);
    Ouvre();
    for (const Entree_Menu &entree : Menu_Principal()) {
        if (entree.genre != Genre_Entree::Ecran)
            continue;
        conduite::Repond({}, [&] { Controle_Nomme<QAction>(entree.nom.toString()).trigger(); });
        QWidget *ecran = conduite::Fenetre(entree.cible.toString());
        ASSERT_NE(ecran, nullptr) << entree.nom.toString().toStdString();
        EXPECT_TRUE(ecran->isWindow());
        ecran->close();
    }
}

TEST_F(Menu_Complet, la_fiche_suit_le_texte_du_diplome_et_non_celui_qui_est_ouvert)
{
    Installe_Station(u"DFCF"_s);
    Ouvre();
    Controle_Nomme<QComboBox>(u"Dip_A"_s).setCurrentIndex(Rang(u"DLF"_s));
    Controle_Nomme<QAction>(u"Mnu_Diplomes"_s).trigger();
    EXPECT_NE(conduite::Fenetre(u"Diplomes_DLF"_s), nullptr);
    Controle_Nomme<QComboBox>(u"Dip_A"_s).setEditText(u"XYZ"_s);
    Controle_Nomme<QAction>(u"Mnu_Diplomes"_s).trigger();
    EXPECT_EQ(conduite::Fenetre(u"Diplomes_DFCF"_s), nullptr);
}
