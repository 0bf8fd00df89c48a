#include "faux/Echec.h"
#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "faux/QSO_Essai.h"
#include "log/Recherches_Log.h"
#include "outils/Log_Essai.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString journal =
    Texte_Log({QSO({.dpt = u"77"_s, .ref = u"77001"_s, .date = u"12/05/07"_s}),
               QSO({.dpt = u"05"_s, .ref = u"77001"_s, .date = u"13/05/07"_s, .mode = u"CW"_s}),
               QSO({.dpt = u"05"_s, .ref = u"05012R"_s, .date = u"14/05/07"_s, .bande = u"144 Mhz"_s})});

} // namespace

TEST(Cherche_Ref, la_premiere_ligne_donne_la_date)
{
    const Trouvaille trouvaille = Cherche_Ref_Dans(Lignes_Texte(journal), u"77001");
    EXPECT_TRUE(trouvaille.oui);
    EXPECT_EQ(trouvaille.date, u"12/05/07"_s);
}

TEST(Cherche_Ref, le_texte_entier_compte)
{
    const Lignes_Texte lignes(journal);
    for (const QStringView ref : {u"77001R"_s, u"7700"_s, u"05012"_s, u"05012r"_s, u" 77001"_s})
        EXPECT_FALSE(Cherche_Ref_Dans(lignes, ref).oui) << ref.toString().toStdString();
    EXPECT_EQ(Cherche_Ref_Dans(lignes, u"05012R").date, u"14/05/07"_s);
}

TEST(Cherche_Ref, une_ligne_courte_a_une_reference_vide)
{
    EXPECT_TRUE(Cherche_Ref_Dans(Lignes_Texte(u"F5ABC\r\n"_s), u"").oui);
    EXPECT_FALSE(Cherche_Ref_Dans(Lignes_Texte(QString()), u"").oui);
}

TEST(Cherche_Dpt_Bande_Mode, les_trois_sont_egaux_a_la_fois)
{
    const Lignes_Texte lignes(journal);
    EXPECT_EQ(Cherche_Dpt_Bande_Mode_Dans(lignes, u"05", u"14 Mhz", u"CW").date, u"13/05/07"_s);
    EXPECT_FALSE(Cherche_Dpt_Bande_Mode_Dans(lignes, u"05", u"14 Mhz", u"SSB").oui);
    EXPECT_FALSE(Cherche_Dpt_Bande_Mode_Dans(lignes, u"77", u"144 Mhz", u"SSB").oui);
    EXPECT_FALSE(Cherche_Dpt_Bande_Mode_Dans(lignes, u"77", u"14 Mhz", u"CW").oui);
}

TEST(Recherches_Log, chacune_lit_son_log)
{
    Poste_Essai essai;
    essai.Ouvre(u"DDFM"_s);
    essai.fichiers.Pose(u"F9ZZY_DDFM.log"_s, journal.toLatin1());
    essai.fichiers.Pose(u"F9ZZY_DFCF.log"_s, Texte_Log({QSO({.ref = u"63087"_s})}).toLatin1());
    EXPECT_TRUE(Cherche_Ref(essai.poste, Diplome::DFCF, u"63087").oui);
    EXPECT_FALSE(Cherche_Ref(essai.poste, Diplome::DFCF, u"77001").oui);
    EXPECT_TRUE(Cherche_Dpt_Bande_Mode(essai.poste, u"77", u"14 Mhz", u"SSB").oui);
    EXPECT_EQ(Echec([&] { (void)Cherche_Ref(essai.poste, Diplome::DMF, u"77001"); })->La_Cause(),
              Cause::Fichier_Introuvable);
}
