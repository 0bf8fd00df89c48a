#include "Fiche_Essai.h"
#include "diplomes/Affiche_Option.h"
#include "diplomes/Charge_Fiche.h"
#include "diplomes/regles/Lignes_Retenues.h"
#include "diplomes/tables/Tables.h"
#include "plateforme/Erreur_Execution.h"

#include <gtest/gtest.h>

using namespace diplomes;

namespace {

QString Confirme_En(const QString &mode, const QString &dpt = u"77"_s)
{
    return QSO({.dpt = dpt, .mode = mode, .qsl = u"*"_s});
}

QString Confirme_Sur(const QString &bande)
{
    return QSO({.dpt = u"77"_s, .bande = bande, .qsl = u"*"_s});
}

/// One confirmed line a department, `nombre` in all, in `departements` departments.
Lignes_Essai Repartis(const QString &mode, int nombre, int departements)
{
    Lignes_Essai lignes;
    for (int i = 0; i < nombre; ++i)
        lignes.push_back(Confirme_En(mode, QString::number(10 + i % departements)));
    return lignes;
}

Etat_Commun Choisi(const QString &code, const QString &niveau = {})
{
    Etat_Commun etat;
    etat.code_categorie = code;
    etat.niveau_liste = niveau;
    return etat;
}

Etat_Fiche DAF(const Lignes_Essai &lignes, const QString &code = u"Mixte"_s)
{
    return Etat_De(fiche_daf, lignes, Choisi(code, u"Chasseur mixte"_s));
}

Etat_Fiche DFF(const QString &code, const Lignes_Essai &lignes)
{
    Poste_Essai essai;
    essai.etat.code_categorie = code;
    essai.fichiers.Pose(u"F9ZZY_DFF.log"_s, En_Octets(lignes));
    return Charge_Fiche(essai.poste, fiche_dff);
}

} // namespace

TEST(Fiche_DCF, dix_lignes_sans_QSL_donnent_le_diplome_de_base)
{
    const Etat_Fiche etat = Etat_De(fiche_dcf, Fois(10, QSO({.dpt = u"FR"_s})));
    EXPECT_TRUE(Est_Atteint(etat, u"Label4"));
    EXPECT_EQ(Texte_De(etat, u"Label18"), u"avec les QSL des 10 Cathedrales confirmés"_s);
    EXPECT_EQ(Texte_De(etat, u"Label19"), u"il vous manque 20 Cathedrales confirmées"_s);
}

TEST(Fiche_PC, une_etoile_ou_un_blanc_compte_et_rien_d_autre)
{
    const auto qsl = [](const QString &marque) { return QSO({.qsl = marque}); };
    const Lignes_Essai lignes = {qsl(u"*"_s), qsl(u" "_s), qsl(u"X"_s), qsl(u" "_s).left(110)};
    EXPECT_EQ(Compte(fiche_pc.regles, En_Texte(lignes), {}).front().n, 2);
    const Etat_Fiche etat = Etat_De(fiche_pc, Fois(100, qsl(u" "_s)));
    EXPECT_EQ(Texte_De(etat, u"Label18"), u"avec les 100 Patrimoines contactés"_s);
    EXPECT_EQ(Texte_De(etat, u"Label19"), u"il vous manque 100 Patrimoines contactés"_s);
}

TEST(Fiche_DMF, l_excellence_porte_le_nom_des_chateaux)
{
    const Etat_Fiche etat = Etat_De(fiche_dmf, Departements_Confirmes(1, 90));
    EXPECT_EQ(Texte_De(etat, u"Label15"), u"Bravo vous pouvez obtenir le Diplome DFCF Excellence"_s);
    EXPECT_EQ(etat.entete, u"Diplomes DMF bande HF"_s);
}

TEST(Fiche_DLF, le_144_compte_a_part_et_le_432_jamais)
{
    const Etat_Fiche etat =
        Etat_De(fiche_dlf, Fois(10, Confirme_Sur(u"144 Mhz"_s)) + Fois(40, Confirme_Sur(u"432 Mhz"_s)) +
                               Fois(3, Confirme_Sur(u"7.0 Mhz"_s)));
    EXPECT_EQ(Boutons_Actifs(etat), QStringList{u"DLF_VHF"_s});
    EXPECT_EQ(Texte_De(etat, u"Label4"), u"Vous ne pouvez pas obtenir le diplome DLF HF"_s);
    EXPECT_FALSE(Est_Atteint(etat, u"Label4"));
    EXPECT_EQ(Texte_De(etat, u"Label18"), u"il vous manque 27 lavoirs confirmés"_s);
    EXPECT_EQ(Texte_De(etat, u"Label7"), u"Bravo vous pouvez obtenir le diplome DLF VHF/UHF"_s);
    EXPECT_EQ(Texte_De(etat, u"Label19"), u"avec les QSL des 10 lavoirs confirmés"_s);
    EXPECT_EQ(Texte_De(Etat_De(fiche_dlf, {}), u"Label7"),
              u"Vous ne pouvez pas encore obtenir le diplome DLF VHF/UHF"_s);
}

TEST(Fiche_DFF, la_bande_choisie_donne_le_compte_et_les_seuils)
{
    const Etat_Fiche vhf = DFF(u"VHF"_s, Fois(10, Confirme_Sur(u"144 Mhz"_s)) + Fois(60, Confirme_Sur(u"14 Mhz"_s)));
    EXPECT_EQ(vhf.entete, u"Diplome DFF VHF"_s);
    EXPECT_EQ(Boutons_Actifs(vhf), QStringList{u"Base"_s});
    EXPECT_EQ(Texte_De(vhf, u"Label19"), u"il vous manque 20 Fontaines confirmées"_s);
    const Etat_Fiche hf = DFF(u"HF"_s, Fois(40, Confirme_Sur(u"144 Mhz"_s)) + Fois(29, Confirme_Sur(u"14 Mhz"_s)));
    EXPECT_EQ(Boutons_Actifs(hf), QStringList());
    EXPECT_EQ(Texte_De(hf, u"Label18"), u"il vous manque 1 Fontaines confirmées"_s);
}

TEST(Fiche_DCPF, compte_les_lettres_choisies_et_MI_compte_tout)
{
    const auto ref = [](const QString &texte) { return QSO({.ref = texte, .qsl = u"*"_s}); };
    const Lignes_Essai lignes = {ref(u"81PT001"_s), ref(u"81CA001"_s), ref(u"PT81001"_s), ref(u"81pt001"_s)};
    const auto compte = [&](const QString &code) {
        return Compte(fiche_dcpf.regles, En_Texte(lignes), Choisi(code)).front().n;
    };
    EXPECT_EQ(compte(u"PT"_s), 1);
    EXPECT_EQ(compte(u"CA"_s), 1);
    EXPECT_EQ(compte(u"PA"_s), 0);
    EXPECT_EQ(compte(u"MI"_s), 4);
    EXPECT_EQ(Etat_De(fiche_dcpf, {}, Choisi(u"PT"_s, u"Tour isolée"_s)).entete, u"Diplome DCPF Tour isolée"_s);
}

TEST(Fiche_DIFI, SSB_et_CW_font_ensemble_le_compte_mixte)
{
    const Etat_Fiche etat = Etat_De(fiche_difi, Repartis(u"SSB"_s, 25, 5) + Repartis(u"CW"_s, 25, 5) +
                                                    Repartis(u"PSK"_s, 9, 9) + Repartis(u"FM"_s, 9, 9));
    EXPECT_EQ(Boutons_Actifs(etat), (QStringList{u"HF_Base"_s, u"HF_Excellence"_s, u"HF_Honneur"_s}));
    EXPECT_EQ(Detail_De(etat.niveaux[0]), u"avec les QSL des|50|Iles confirmées et|5|départements confirmés"_s);
    EXPECT_EQ(Detail_De(etat.niveaux[2]), u"avec les QSL des|25|Iles confirmées et|5|départements confirmés"_s);
}

TEST(Fiche_DIFI, mixte_ne_montre_rien_a_la_place_d_un_zero)
{
    const Etat_Fiche etat = Etat_De(fiche_difi, Repartis(u"SSB"_s, 30, 4));
    EXPECT_EQ(Texte_De(etat, u"Label5"), QString());
    EXPECT_EQ(Texte_De(etat, u"Label15"), u"1"_s);
    // The other two tiers show their 0.
    EXPECT_EQ(Texte_De(etat, u"Label8"), u"0"_s);
    EXPECT_EQ(Texte_De(Etat_De(fiche_difi, {}), u"Label5"), u"25"_s);
}

TEST(Fiche_DIFI, un_departement_illisible_n_arrete_que_dans_un_mode_compte)
{
    EXPECT_NO_THROW(Etat_De(fiche_difi, {Confirme_En(u"PSK"_s, u"FR"_s)}));
    EXPECT_THROW(Etat_De(fiche_difi, {Confirme_En(u"CW"_s, u"FR"_s)}), Erreur_Execution);
}

TEST(Fiche_DPLF, vingt_cinq_PSK_font_mixte_et_jamais_digital)
{
    const Etat_Fiche etat = Etat_De(fiche_dplf, Fois(25, Confirme_En(u"PSK"_s, u"FR"_s)));
    EXPECT_EQ(Boutons_Actifs(etat), QStringList{u"B_MIX"_s});
    EXPECT_EQ(Texte_De(etat, u"Label3"), u"avec les QSL des 25 phares contactés"_s);
    EXPECT_EQ(Texte_De(etat, u"Label21"), u"il vous manque 25 phares confirmés"_s);
    EXPECT_FALSE(Est_Atteint(Etat_De(fiche_dplf, Fois(99, Confirme_En(u"DIGI"_s))), u"Label15"));
}

TEST(Fiche_DPLF, mixte_non_atteint_montre_un_25_egare)
{
    EXPECT_EQ(Texte_De(Etat_De(fiche_dplf, Fois(24, Confirme_En(u"SSB"_s))), u"Label16"), u"25"_s);
    EXPECT_EQ(Texte_De(Etat_De(fiche_dplf, Fois(24, Confirme_En(u"SSB"_s))), u"Label3"),
              u"il vous manque 1 phares confirmés"_s);
}

TEST(Fiche_DAF, trois_departements_ne_disent_ni_oui_ni_non)
{
    const Etat_Fiche etat = DAF(Repartis(u"SSB"_s, 15, 3));
    EXPECT_EQ(Texte_De(etat, u"Label4"), u"Vous ne pouvez pas encore obtenir le diplome DAF SSB"_s);
    EXPECT_FALSE(Est_Atteint(etat, u"Label4"));
    EXPECT_EQ(Texte_De(etat, u"Label18"), u"il vous manque "_s);
    EXPECT_EQ(Boutons_Actifs(etat), QStringList());
    EXPECT_LT(etat.niveaux[0].avancement, 1);
}

TEST(Fiche_DAF, quatre_departements_atteignent_le_niveau_15)
{
    const Etat_Fiche etat = DAF(Repartis(u"SSB"_s, 15, 4));
    EXPECT_EQ(Texte_De(etat, u"Label4"), u"Bravo vous pouvez obtenir le diplome DAF Chasseur mixte Niveau 15"_s);
    EXPECT_EQ(Texte_De(etat, u"Label18"), u"avec les QSL des 15 Abbayes confirmées et 4 départements"_s);
    EXPECT_EQ(Texte_De(etat, u"Label7"),
              u"Vous ne pouvez pas encore obtenir le diplome DAF Chasseur mixte Niveau 50"_s);
    EXPECT_EQ(Texte_De(etat, u"Label19"), u"il vous manque 35 Abbayes confirmées et 0 départements "_s);
}

TEST(Fiche_DAF, deux_departements_manquent_leur_troisieme)
{
    const Etat_Fiche etat = DAF(Repartis(u"SSB"_s, 250, 2));
    EXPECT_FALSE(Est_Atteint(etat, u"Label5"));
    EXPECT_EQ(Texte_De(etat, u"Label6"), u"il vous manque 0 Abbayes confirmées et 1 départements "_s);
    EXPECT_EQ(Texte_De(etat, u"Label18"), u"il vous manque -235 Abbayes confirmées et 1 départements "_s);
}

TEST(Fiche_DAF, le_niveau_250_n_hesite_jamais_et_montre_le_reste)
{
    EXPECT_EQ(Texte_De(DAF(Repartis(u"CW"_s, 260, 3)), u"Label5"),
              u"Vous ne pouvez pas encore obtenir le diplome DAF Chasseur mixte Niveau 250"_s);
    EXPECT_EQ(Texte_De(DAF(Repartis(u"CW"_s, 260, 4)), u"Label6"),
              u"avec les QSL des -10 Abbayes contactés et 4 départements"_s);
    EXPECT_EQ(Texte_De(DAF(Repartis(u"CW"_s, 260, 4)), u"Label3"),
              u"avec les QSL des 260 Abbayes contactés et 4 départements"_s);
    EXPECT_EQ(Texte_De(DAF(Repartis(u"CW"_s, 260, 4)), u"Label1"),
              u"Bravo vous pouvez obtenir le Diplome DAF  Chasseur mixte Niveau 100"_s);
}

TEST(Fiche_DAF, phone_ne_compte_que_SSB)
{
    const Lignes_Essai lignes = Repartis(u"FM"_s, 20, 10) + Repartis(u"SSB"_s, 3, 3) + Repartis(u"CW"_s, 5, 5);
    const auto compte = [&](const QString &code) {
        return Compte(fiche_daf.regles, En_Texte(lignes), Choisi(code)).front().n;
    };
    EXPECT_EQ(compte(u"Phone"_s), 3);
    EXPECT_EQ(compte(u"CW"_s), 5);
    EXPECT_EQ(compte(u"Mixte"_s), 28);
}

TEST(Fiche_DAF, un_departement_illisible_n_arrete_que_dans_le_mode_choisi)
{
    EXPECT_NO_THROW(DAF({Confirme_En(u"FM"_s, u"FR"_s)}, u"Phone"_s));
    EXPECT_THROW(DAF({Confirme_En(u"FM"_s, u"FR"_s)}), Erreur_Execution);
}

TEST(Presse_Bouton, la_liste_SSB_s_ouvre_aussi_depuis_le_chasseur_CW)
{
    Poste_Essai essai;
    Affiche_Option(essai.poste, choix_daf.groupes[0].options[2]);
    EXPECT_EQ(essai.etat.libelle_categorie, u"Chasseur CW"_s);
    EXPECT_EQ(essai.etat.code_categorie, u"CW"_s);
    Presse_Bouton(essai.poste, fiche_daf, u"B_SSB");
    EXPECT_EQ(essai.etat.mode_liste, u"SSB"_s);
    EXPECT_EQ(essai.etat.code_categorie, u"SSB"_s);
    Presse_Bouton(essai.poste, fiche_daf, u"B_Acti");
    EXPECT_EQ(essai.ecrans.montres, (std::vector<QString>{u"Diplomes_DAF"_s, u"Liste_DAF"_s}));
}

TEST(Affiche_Option, DFF_laisse_le_nom_du_niveau)
{
    Poste_Essai essai;
    essai.etat.niveau_liste = u"Tour isolée"_s;
    Affiche_Option(essai.poste, choix_dff.groupes[0].options[1]);
    EXPECT_EQ(essai.etat.code_categorie, u"VHF"_s);
    EXPECT_EQ(essai.etat.libelle_categorie, u"Diplome VHF"_s);
    EXPECT_EQ(essai.etat.niveau_liste, u"Tour isolée"_s);
}
