#include "faux/Impression.h"
#include "faux/Vue_Fausse.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using enum Controle;

class Au_Repos : public ::testing::Test {
protected:
    Au_Repos()
    {
        for (const Controle champ : {Ind_A, Dpt_A, Ref_A, Date_A, Heure_A, RSTR_A, RSTE_A, Prenom_A, Nom_A, Mode_Aff})
            vue.Ecrit(champ, u"texte"_s);
        vue.inactifs = {Ind_A, Bande_A};
        vue.Coche_QSL(true);
        essai.etat.qso_affiche = essai.etat.qso_en_edition = essai.etat.saisie_differee = true;
        essai.etat.ligne_selectionnee = u"ligne"_s;
    }

    Poste_Saisie essai;
    Vue_Fausse &vue = essai.vue;

    void Attend_Vide()
    {
        for (const Controle champ : {Ind_A, Dpt_A, Ref_A, Date_A, Heure_A, Prenom_A, Nom_A})
            EXPECT_EQ(vue.Texte(champ), u""_s);
        for (const Controle champ :
             {Dpt_A, Ref_A, Date_A, Heure_A, Mode_A, RSTR_A, RSTE_A, Prenom_A, Nom_A, QSL_A, Valide_A, Annule_Saisie})
            EXPECT_FALSE(vue.Est_Actif(champ)) << static_cast<int>(champ);
        EXPECT_TRUE(vue.Est_Actif(Ind_A));
        EXPECT_FALSE(vue.QSL_Coche());
        EXPECT_FALSE(essai.etat.qso_affiche);
        EXPECT_EQ(vue.Texte(Mode_Aff), u"Saisie QSO"_s);
        EXPECT_EQ(vue.Texte(Bande_A), u"14 Mhz"_s);
        EXPECT_EQ(vue.Texte(Mode_A), u"SSB"_s);
        EXPECT_EQ(vue.Texte(RSTR_A), u"59"_s);
        EXPECT_EQ(vue.Texte(RSTE_A), u"59"_s);
        // These two outlive it.
        EXPECT_TRUE(essai.etat.saisie_differee);
        EXPECT_EQ(essai.etat.ligne_selectionnee, u"ligne"_s);
    }
};

} // namespace

TEST_F(Au_Repos, efface_finit_aussi_la_modification_et_va_au_diplome)
{
    vue.Efface();
    Attend_Vide();
    EXPECT_FALSE(vue.Est_Actif(Bande_A));
    EXPECT_FALSE(essai.etat.qso_en_edition);
    EXPECT_EQ(vue.focus, Dip_A);
}

TEST_F(Au_Repos, efface_saisie_laisse_la_modification_et_va_a_la_bande)
{
    vue.Efface_Saisie();
    Attend_Vide();
    EXPECT_TRUE(vue.Est_Actif(Bande_A));
    EXPECT_TRUE(essai.etat.qso_en_edition);
    EXPECT_EQ(vue.focus, Bande_A);
}

TEST_F(Au_Repos, en_cw_les_reports_ont_trois_chiffres)
{
    vue.Ecrit(Mode_A, u"CW"_s);
    vue.Efface();
    EXPECT_EQ(vue.Texte(RSTR_A), u"599"_s);
    EXPECT_EQ(vue.Texte(RSTE_A), u"599"_s);
}
