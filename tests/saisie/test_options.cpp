#include "faux/Impression.h"
#include "faux/Poste_Saisie.h"
#include "log/Historique.h"
#include "saisie/Options.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class Choix : public ::testing::Test {
protected:
    Poste_Saisie essai;
    [[nodiscard]] QString Reglage(const QString &cle) const
    {
        return essai.reglages.Lit(u"Setup F9ZZY"_s, cle, u"(rien)"_s);
    }
};

} // namespace

TEST_F(Choix, en_differe_puis_en_temps_reel)
{
    Choisit_Saisie(essai.poste, essai.saisie, true);
    EXPECT_TRUE(essai.saisie.saisie_differee);
    EXPECT_TRUE(essai.saisie.Est_Coche(Controle::Mnu_Date_Auto_Non));
    EXPECT_FALSE(essai.saisie.Est_Coche(Controle::Mnu_Date_Auto_Oui));
    EXPECT_EQ(essai.saisie.Texte(Controle::Label15), u"en differé"_s);
    EXPECT_EQ(Reglage(u"Date Auto"_s), u"Non"_s);

    Choisit_Saisie(essai.poste, essai.saisie, false);
    EXPECT_FALSE(essai.saisie.saisie_differee);
    EXPECT_FALSE(essai.saisie.Est_Coche(Controle::Mnu_Date_Auto_Non));
    EXPECT_TRUE(essai.saisie.Est_Coche(Controle::Mnu_Date_Auto_Oui));
    EXPECT_EQ(essai.saisie.Texte(Controle::Label15), u"en temps reél"_s);
    EXPECT_EQ(Reglage(u"Date Auto"_s), u"Oui"_s);
}

TEST_F(Choix, le_separateur_automatique)
{
    Choisit_Separateur(essai.poste, essai.saisie, true);
    EXPECT_TRUE(essai.saisie.separateur_auto);
    EXPECT_TRUE(essai.saisie.Est_Coche(Controle::Mnu_Sep_Oui));
    EXPECT_FALSE(essai.saisie.Est_Coche(Controle::Mnu_Sep_Non));
    EXPECT_EQ(Reglage(u"Separateur Auto"_s), u"Oui"_s);
    Choisit_Separateur(essai.poste, essai.saisie, false);
    EXPECT_FALSE(essai.saisie.separateur_auto);
    EXPECT_FALSE(essai.saisie.Est_Coche(Controle::Mnu_Sep_Oui));
    EXPECT_TRUE(essai.saisie.Est_Coche(Controle::Mnu_Sep_Non));
    EXPECT_EQ(Reglage(u"Separateur Auto"_s), u"Non"_s);
}

TEST_F(Choix, les_trois_etiquettes_de_l_horloge)
{
    essai.horloge.utc = QDateTime(QDate(2026, 12, 31), QTime(23, 5, 59), Qt::UTC);
    Tique(essai.poste, essai.saisie);
    EXPECT_EQ(essai.saisie.Texte(Controle::Label37), u"23:05 Utc"_s);
    EXPECT_EQ(essai.saisie.Texte(Controle::Label34), u"00:05 Loc"_s);
    EXPECT_EQ(essai.saisie.Texte(Controle::Label33), u"31/12/26"_s);
    essai.horloge.utc = QDateTime(QDate(2007, 1, 2), QTime(3, 4, 0), Qt::UTC);
    Tique(essai.poste, essai.saisie);
    EXPECT_EQ(essai.saisie.Texte(Controle::Label37), u"03:04 Utc"_s);
    EXPECT_EQ(essai.saisie.Texte(Controle::Label33), u"02/01/07"_s);
}

TEST_F(Choix, a_propos_et_historique)
{
    essai.etat.version = u"V1.2.5c"_s;
    essai.etat.historique = Historique();
    Affiche_A_Propos(essai.poste);
    Affiche_Historique(essai.poste);
    const std::vector<QString> messages = essai.Messages();
    ASSERT_EQ(messages.size(), 2U);
    EXPECT_TRUE(messages[0].startsWith(u"Vorlain Revision V1.2.5c\n\n"_s));
    EXPECT_EQ(messages[1], Historique());
}
