#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "faux/QSO_Essai.h"
#include "log/Charge_Log.h"
#include "log/Fin_Coupee.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString ligne = QSO({.dpt = u"77"_s, .ref = u"77001"_s, .nom = u"C. DE VAUX"_s});
const QString entiere = ligne + u"\r\n";

QString Reparee(const QString &texte)
{
    const auto fin = Repare_La_Fin(texte);
    return fin ? fin->texte : u"(rien)"_s;
}

} // namespace

TEST(Fin_Coupee, un_log_dont_chaque_ligne_a_sa_fin_reste)
{
    EXPECT_EQ(Reparee(u""_s), u"(rien)"_s);
    EXPECT_EQ(Reparee(entiere), u"(rien)"_s);
    EXPECT_EQ(Reparee(u"court\n"_s), u"(rien)"_s);
}

TEST(Fin_Coupee, une_ligne_entiere_sans_fin_reste)
{
    EXPECT_EQ(Reparee(entiere + ligne), u"(rien)"_s);
    EXPECT_EQ(Reparee(ligne + u" et plus"), u"(rien)"_s);
}

TEST(Fin_Coupee, une_ligne_coupee_dans_sa_fin_de_ligne_la_recoit)
{
    EXPECT_EQ(Reparee(entiere + ligne + u'\r'), entiere + entiere);
}

TEST(Fin_Coupee, une_ligne_qui_dit_encore_quand_et_sur_quelle_bande_est_completee)
{
    for (const int taille : {70, 85, 110}) {
        const QString morceau = ligne.left(taille);
        EXPECT_EQ(Reparee(entiere + morceau), entiere + morceau.leftJustified(111) + u"\r\n") << taille;
    }
    EXPECT_TRUE(Repare_La_Fin(ligne.left(85))->message.endsWith(u"il a été complété : vérifiez-le"));
}

TEST(Fin_Coupee, un_morceau_plus_court_est_retire_et_montre)
{
    for (const int taille : {1, 44, 69}) {
        const auto fin = Repare_La_Fin(entiere + ligne.left(taille));
        ASSERT_TRUE(fin) << taille;
        EXPECT_EQ(fin->texte, entiere) << taille;
        EXPECT_TRUE(fin->message.endsWith(u"retiré :\n"_s + ligne.left(taille))) << taille;
    }
}

TEST(Fin_Coupee, ce_que_le_programme_n_a_pas_ecrit_reste)
{
    EXPECT_EQ(Reparee(entiere + QString(100, u'x')), u"(rien)"_s);
    EXPECT_EQ(Reparee(entiere + u"une ligne a la main"), u"(rien)"_s);
    EXPECT_EQ(Reparee(u"court\r\n"_s + ligne.left(50)), u"(rien)"_s);
    EXPECT_EQ(Reparee(ligne + u'\n' + ligne.left(50)), u"(rien)"_s);
}

TEST(Fin_Coupee, l_ouverture_repare_le_log_et_le_dit)
{
    Poste_Essai essai;
    essai.fichiers.Pose(u"F9ZZY_DFCF.log"_s, (entiere + ligne.left(50)).toLatin1());
    Charge_Log(essai.poste, Diplome::DFCF);
    EXPECT_EQ(essai.fichiers.Octets(u"F9ZZY_DFCF.log"_s), entiere.toLatin1());
    EXPECT_EQ(essai.ecran.liste.size(), 1U);
    EXPECT_EQ(essai.boites.messages,
              std::vector<QString>{u"Le dernier QSO du log F9ZZY_DFCF.log avait été coupé, ce qui en restait a été "
                                   u"retiré :\n"_s +
                                   ligne.left(50)});
    Charge_Log(essai.poste, Diplome::DFCF);
    EXPECT_EQ(essai.boites.messages.size(), 1U);
}
