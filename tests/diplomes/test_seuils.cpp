#include "Fiche_Essai.h"
#include "diplomes/Charge_Fiche.h"
#include "diplomes/tables/Tables.h"

#include <gtest/gtest.h>

using namespace diplomes;

namespace {

/// A tier as its award tells it: how many lines it asks for, and of which kind.
struct Niveau_Attendu {
    const Fiche_Diplome *fiche;
    QString categorie; ///< Code_Categorie before the sheet opens
    QString etat;
    QString bouton;
    int seuil;
    Champs_QSO ligne = {};
};

// clang-format off
const std::vector<Niveau_Attendu> niveaux_attendus = {
    {&fiche_dfcf, {}, u"Label4"_s, u"HF_Base"_s, 30},
    {&fiche_dfcf, {}, u"Label7"_s, u"HF_Honneur"_s, 1500},
    {&fiche_dfcf, {}, u"Label12"_s, u"HF_Trophe"_s, 3000},
    {&fiche_dfcf, {}, u"Label1"_s, {}, 5000},
    {&fiche_dcf, {}, u"Label4"_s, u"HF_Base"_s, 10},
    {&fiche_dcf, {}, u"Label7"_s, u"HF_Excellence"_s, 30},
    {&fiche_dcf, {}, u"Label12"_s, u"HF_Honneur"_s, 50},
    {&fiche_dcf, {}, u"Label15"_s, u"HF_Trophe"_s, 100},
    {&fiche_dmf, {}, u"Label4"_s, u"HF_Base"_s, 30},
    {&fiche_dmf, {}, u"Label7"_s, u"HF_Honneur"_s, 500},
    {&fiche_dlf, {}, u"Label4"_s, u"DLF_HF"_s, 30},
    {&fiche_dlf, {}, u"Label7"_s, u"DLF_VHF"_s, 10, {.bande = u"144 Mhz"_s}},
    {&fiche_difm, {}, u"Label4"_s, u"HF_Base"_s, 10},
    {&fiche_fff, {}, u"Label4"_s, u"Base"_s, 5},
    {&fiche_fff, {}, u"Label7"_s, u"Performant"_s, 50},
    {&fiche_fff, {}, u"Label12"_s, u"Expert"_s, 100},
    {&fiche_fff, {}, u"Label15"_s, u"Honneur"_s, 200},
    {&fiche_fff, {}, u"Label3"_s, u"Maitre"_s, 300},
    {&fiche_wlf, {}, u"Label4"_s, u"Base"_s, 10},
    {&fiche_wlf, {}, u"Label7"_s, u"Performant"_s, 50},
    {&fiche_wlf, {}, u"Label12"_s, u"Expert"_s, 100},
    {&fiche_wlf, {}, u"Label15"_s, u"Honneur"_s, 200},
    {&fiche_wlf, {}, u"Label3"_s, u"Maitre"_s, 300},
    {&fiche_pc, {}, u"Label4"_s, u"PC_100"_s, 100},
    {&fiche_pc, {}, u"Label7"_s, u"PC_200"_s, 200},
    {&fiche_pc, {}, u"Label12"_s, u"PC_300"_s, 300},
    {&fiche_pc, {}, u"Label15"_s, u"PC_400"_s, 400},
    {&fiche_pc, {}, u"Label3"_s, u"PC_500"_s, 500},
    {&fiche_dcpf, u"PT"_s, u"Label4"_s, u"Bronze"_s, 10, {.ref = u"81PT001"_s}},
    {&fiche_dcpf, u"PT"_s, u"Label7"_s, u"Argent"_s, 30, {.ref = u"81PT001"_s}},
    {&fiche_dcpf, u"PT"_s, u"Label12"_s, u"Dore"_s, 100, {.ref = u"81PT001"_s}},
    {&fiche_dcpf, u"MI"_s, u"Label15"_s, u"Honneur"_s, 500, {.ref = u"81CA001"_s}},
    {&fiche_dff, u"HF"_s, u"Label4"_s, u"Base"_s, 30},
    {&fiche_dff, u"HF"_s, u"Label7"_s, u"Performant"_s, 50},
    {&fiche_dff, u"HF"_s, u"Label12"_s, u"Expert"_s, 150},
    {&fiche_dff, u"HF"_s, u"Label15"_s, u"Honneur"_s, 300},
    {&fiche_dff, u"HF"_s, u"Label3"_s, u"Maitre"_s, 500},
    {&fiche_dff, u"VHF"_s, u"Label4"_s, u"Base"_s, 10, {.bande = u"144 Mhz"_s}},
    {&fiche_dff, u"VHF"_s, u"Label7"_s, u"Performant"_s, 30, {.bande = u"144 Mhz"_s}},
    {&fiche_dff, u"VHF"_s, u"Label12"_s, u"Expert"_s, 50, {.bande = u"144 Mhz"_s}},
    {&fiche_dff, u"VHF"_s, u"Label15"_s, u"Honneur"_s, 100, {.bande = u"144 Mhz"_s}},
    {&fiche_dff, u"VHF"_s, u"Label3"_s, u"Maitre"_s, 200, {.bande = u"144 Mhz"_s}},
    {&fiche_difi, {}, u"Label4"_s, u"HF_Base"_s, 25, {.mode = u"CW"_s}},
    {&fiche_difi, {}, u"Label7"_s, u"HF_Excellence"_s, 25},
    {&fiche_difi, {}, u"Label12"_s, u"HF_Honneur"_s, 25, {.mode = u"CW"_s}},
    {&fiche_dplf, {}, u"Label4"_s, u"B_SSB"_s, 25},
    {&fiche_dplf, {}, u"Label7"_s, u"B_CW"_s, 25, {.mode = u"CW"_s}},
    {&fiche_dplf, {}, u"Label1"_s, u"B_MIX"_s, 25, {.mode = u"FM"_s}},
    {&fiche_daf, u"Mixte"_s, u"Label4"_s, u"B_SSB"_s, 15, {.mode = u"FM"_s}},
    {&fiche_daf, u"Phone"_s, u"Label7"_s, u"B_CW"_s, 50},
    {&fiche_daf, u"CW"_s, u"Label1"_s, u"B_MIX"_s, 100, {.mode = u"CW"_s}},
    {&fiche_daf, u"Mixte"_s, u"Label5"_s, u"B_Acti"_s, 250},
    {&fiche_dohf, u"BA"_s, u"Label4"_s, u"N1"_s, 10, {.ref = u"45BA001"_s}},
    {&fiche_dohf, u"EC"_s, u"Label7"_s, u"N2"_s, 20, {.ref = u"45BS001"_s}},
    {&fiche_dohf, u"PT"_s, u"Label12"_s, u"N3"_s, 30, {.ref = u"45TU001"_s}},
    {&fiche_dohf, u"AQ"_s, u"Label15"_s, u"Chasseur"_s, 50, {.ref = u"45AQ001"_s}},
    {&fiche_dohf, u"MA"_s, u"Label3"_s, u"Excellence"_s, 100, {.ref = u"45PE001"_s}},
    {&fiche_dohf, u"MI"_s, u"Label1"_s, u"Honneur"_s, 250, {.ref = u"45XX001"_s}},
    {&fiche_dohf, u"EC"_s, u"Label27"_s, u"Maitre"_s, 500, {.ref = u"45EC001"_s}},
    {&fiche_dvff, {}, u"Label4"_s, u"N1"_s, 10},
    {&fiche_dvff, {}, u"Label7"_s, u"N2"_s, 20},
    {&fiche_dvff, {}, u"Label12"_s, u"N3"_s, 30},
    {&fiche_dvff, {}, u"Label15"_s, u"Chasseur"_s, 50},
    {&fiche_dvff, {}, u"Label3"_s, u"Excellence"_s, 100},
    {&fiche_dvff, {}, u"Label1"_s, u"Honneur"_s, 250},
    {&fiche_dvff, {}, u"Label27"_s, u"Maitre"_s, 500},
};
// clang-format on

/// Confirmed lines of that kind, one department after the other.
Lignes_Essai Lignes_De(Champs_QSO champs, int nombre)
{
    Lignes_Essai lignes;
    champs.qsl = u"*"_s;
    for (int i = 0; i < nombre; ++i) {
        champs.dpt = QString::number(1 + i % 95).rightJustified(2, u'0');
        lignes.push_back(QSO(champs));
    }
    return lignes;
}

Etat_Fiche Fiche_Apres(const Niveau_Attendu &attendu, int nombre)
{
    Poste_Essai essai;
    essai.etat.code_categorie = attendu.categorie;
    essai.fichiers.Pose(u"F9ZZY_%1.log"_s.arg(Code(attendu.fiche->sources.diplome)),
                        En_Octets(Lignes_De(attendu.ligne, nombre)));
    return Charge_Fiche(essai.poste, *attendu.fiche);
}

std::string Nom_D_Essai(const ::testing::TestParamInfo<Niveau_Attendu> &essai)
{
    const Niveau_Attendu &attendu = essai.param;
    return QString(Code(attendu.fiche->sources.diplome) + u'_' + attendu.categorie + u'_' + attendu.etat).toStdString();
}

class Seuils : public ::testing::TestWithParam<Niveau_Attendu> {};

} // namespace

TEST_P(Seuils, un_de_moins_attend_et_dit_qu_il_en_manque_un)
{
    const Etat_Fiche etat = Fiche_Apres(GetParam(), GetParam().seuil - 1);
    EXPECT_FALSE(Est_Atteint(etat, GetParam().etat));
    EXPECT_FALSE(Boutons_Actifs(etat).contains(GetParam().bouton));
    for (const Etat_Niveau &niveau : etat.niveaux)
        if (niveau.etat.nom == GetParam().etat) {
            EXPECT_TRUE(Detail_De(niveau).replace(u'|', u' ').contains(u" 1 "_s)) << Detail_De(niveau).toStdString();
            EXPECT_LT(niveau.avancement, 1);
        }
}

TEST_P(Seuils, le_compte_exact_et_un_de_plus_atteignent)
{
    for (const int nombre : {GetParam().seuil, GetParam().seuil + 1}) {
        const Etat_Fiche etat = Fiche_Apres(GetParam(), nombre);
        EXPECT_TRUE(Est_Atteint(etat, GetParam().etat));
        EXPECT_TRUE(Texte_De(etat, GetParam().etat).startsWith(u"Bravo vous pouvez obtenir "_s));
        if (!GetParam().bouton.isEmpty()) {
            EXPECT_TRUE(Boutons_Actifs(etat).contains(GetParam().bouton));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Tous, Seuils, ::testing::ValuesIn(niveaux_attendus), Nom_D_Essai);

TEST(Seuils_De_Departements, DFCF_demande_90_departements_aux_grands_niveaux_et_95_a_l_excellence)
{
    const auto etat = [](int departements, int nombre) {
        const Lignes_Essai lignes = Departements_Confirmes(1, departements);
        return Etat_De(fiche_dfcf, lignes + Fois(static_cast<std::size_t>(nombre - departements), lignes[0]));
    };
    EXPECT_FALSE(Est_Atteint(etat(89, 5000), u"Label7"));
    EXPECT_FALSE(Est_Atteint(etat(89, 5000), u"Label12"));
    EXPECT_FALSE(Est_Atteint(etat(89, 5000), u"Label1"));
    EXPECT_TRUE(Est_Atteint(etat(90, 1500), u"Label7"));
    EXPECT_TRUE(Est_Atteint(etat(90, 3000), u"Label12"));
    EXPECT_TRUE(Est_Atteint(etat(91, 5000), u"Label1"));
    EXPECT_FALSE(Est_Atteint(etat(94, 94), u"Label15"));
    EXPECT_TRUE(Est_Atteint(etat(95, 95), u"Label15"));
    EXPECT_TRUE(Est_Atteint(etat(97, 97), u"Label15"));
}

TEST(Seuils_De_Departements, DMF_demande_90_departements_a_l_excellence_seule)
{
    const auto etat = [](int departements) { return Etat_De(fiche_dmf, Departements_Confirmes(1, departements)); };
    EXPECT_FALSE(Est_Atteint(etat(89), u"Label15"));
    EXPECT_EQ(Texte_De(etat(89), u"Label16"), u"1"_s);
    EXPECT_TRUE(Est_Atteint(etat(90), u"Label15"));
    EXPECT_TRUE(Est_Atteint(etat(91), u"Label15"));
    EXPECT_TRUE(Est_Atteint(Etat_De(fiche_dmf, Fois(500, Departements_Confirmes(7, 7)[0])), u"Label7"));
}

TEST(Seuils_De_Departements, DIFI_demande_cinq_departements)
{
    const auto etat = [](int departements) {
        const Lignes_Essai lignes = Departements_Confirmes(1, departements);
        return Etat_De(fiche_difi, lignes + Fois(40, lignes[0]));
    };
    EXPECT_FALSE(Est_Atteint(etat(4), u"Label7"));
    EXPECT_TRUE(Est_Atteint(etat(5), u"Label7"));
    EXPECT_TRUE(Est_Atteint(etat(6), u"Label7"));
}
