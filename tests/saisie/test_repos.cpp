#include "faux/Impression.h"
#include "faux/Poste_Saisie.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using enum Controle;

class Au_Repos : public ::testing::Test {
protected:
    Au_Repos()
    {
        for (const Controle champ : {Ind_A, Dpt_A, Ref_A, Date_A, Heure_A, RSTR_A, RSTE_A, Prenom_A, Nom_A, Mode_Aff})
            saisie.Ecrit(champ, u"texte"_s);
        for (const Controle champ :
             {Dpt_A, Prenom_A, Ref_A, Date_A, Heure_A, Mode_A, RSTR_A, RSTE_A, Nom_A, QSL_A, Valide_A, Annule_Saisie})
            saisie.Active(champ, true);
        saisie.Active(Ind_A, false);
        saisie.Active(Bande_A, false);
        saisie.Coche(QSL_A, true);
        saisie.qso_affiche = saisie.qso_en_edition = saisie.saisie_differee = true;
        saisie.ligne_selectionnee = u"ligne"_s;
    }

    Poste_Saisie essai;
    Saisie &saisie = essai.saisie;

    void Attend_Vide()
    {
        for (const Controle champ : {Ind_A, Dpt_A, Ref_A, Date_A, Heure_A, Prenom_A, Nom_A})
            EXPECT_EQ(saisie.Texte(champ), u""_s);
        for (const Controle champ :
             {Dpt_A, Ref_A, Date_A, Heure_A, Mode_A, RSTR_A, RSTE_A, Prenom_A, Nom_A, QSL_A, Valide_A, Annule_Saisie})
            EXPECT_FALSE(saisie.Est_Actif(champ)) << static_cast<int>(champ);
        EXPECT_TRUE(saisie.Est_Actif(Ind_A));
        EXPECT_FALSE(saisie.Est_Coche(QSL_A));
        EXPECT_FALSE(saisie.qso_affiche);
        EXPECT_EQ(saisie.Texte(Mode_Aff), u"Saisie QSO"_s);
        EXPECT_EQ(saisie.Texte(Bande_A), u"14 Mhz"_s);
        EXPECT_EQ(saisie.Texte(Mode_A), u"SSB"_s);
        EXPECT_EQ(saisie.Texte(RSTR_A), u"59"_s);
        EXPECT_EQ(saisie.Texte(RSTE_A), u"59"_s);
        // These two outlive it.
        EXPECT_TRUE(saisie.saisie_differee);
        EXPECT_EQ(saisie.ligne_selectionnee, u"ligne"_s);
    }
};

} // namespace

TEST_F(Au_Repos, efface_finit_aussi_la_modification_et_va_au_diplome)
{
    Efface_Tout(saisie);
    Attend_Vide();
    EXPECT_FALSE(saisie.Est_Actif(Bande_A));
    EXPECT_FALSE(saisie.qso_en_edition);
    EXPECT_EQ(saisie.Focus(), Dip_A);
}

TEST_F(Au_Repos, efface_saisie_laisse_la_modification_et_va_a_la_bande)
{
    Efface_Champs(saisie);
    Attend_Vide();
    EXPECT_TRUE(saisie.Est_Actif(Bande_A));
    EXPECT_TRUE(saisie.qso_en_edition);
    EXPECT_EQ(saisie.Focus(), Bande_A);
}

TEST_F(Au_Repos, en_cw_les_reports_ont_trois_chiffres)
{
    saisie.Ecrit(Mode_A, u"CW"_s);
    Efface_Tout(saisie);
    EXPECT_EQ(saisie.Texte(RSTR_A), u"599"_s);
    EXPECT_EQ(saisie.Texte(RSTE_A), u"599"_s);
}
