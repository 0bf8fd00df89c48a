#include "Log_Essai.h"
#include "diplomes/Affiche_Option.h"
#include "diplomes/Charge_Fiche.h"
#include "diplomes/Charge_Liste.h"
#include "diplomes/Sorties_Liste.h"
#include "diplomes/regles/Remplit_Liste.h"
#include "diplomes/tables/Tables.h"
#include "plateforme/Erreur_Execution.h"

#include <gtest/gtest.h>

using namespace diplomes;

namespace {

QString Confirme_Sur(const QString &bande, const QString &dpt = u"77"_s)
{
    return QSO({.dpt = dpt, .bande = bande, .qsl = u"*"_s});
}

Etat_Liste Liste(const Liste_Diplome &liste, const Lignes_Essai &lignes, const Choix &choix = {})
{
    Etat_Commun etat;
    Applique(choix, etat);
    return Remplit_Liste(liste, En_Texte(lignes), etat);
}

/// A station whose log of `code` holds one confirmed QSO.
struct Poste_D_Un_QSO : Poste_Essai {
    explicit Poste_D_Un_QSO(const QString &code)
    {
        fichiers.Pose(u"F9ZZY_%1.log"_s.arg(code),
                      En_Octets({QSO({.dpt = u"77"_s, .ref = u"77PT1"_s, .qsl = u"*"_s})}));
    }
    void Enregistre(const Liste_Diplome &liste) { Enregistre_Liste(poste, liste, Charge_Liste(poste, liste)); }
    std::vector<QString> Imprime(const Liste_Diplome &liste)
    {
        Imprime_Liste(poste, liste, Charge_Liste(poste, liste));
        return imprimante.documents.back();
    }
};

} // namespace

TEST(Liste_DCF, montre_les_lignes_sans_QSL)
{
    const Etat_Liste liste = Liste(liste_dcf, Fois(10, QSO({.dpt = u"77"_s})), {.code_categorie = u"de Base"});
    EXPECT_EQ(liste.rangs.size(), 10U);
    EXPECT_EQ(liste.compte, u" 10 Cathedrales confirmées"_s);
    EXPECT_EQ(liste.titre, u"Diplôme DCF"_s);
}

TEST(Liste_DCF, l_excellence_n_y_est_pas_une_liste_de_departements)
{
    const Etat_Liste liste = Liste(liste_dcf, Fois(3, Confirme_Sur(u"14 Mhz"_s)), {.code_categorie = u"Excellence"});
    EXPECT_EQ(liste.rangs.size(), 3U);
}

TEST(Listes_Sans_Pli, la_Corse_arrete_la_liste_des_awards_qui_ne_la_replient_pas)
{
    const Choix choix = {.bande_liste = u"HF", .code_categorie = u"MI"};
    for (const Liste_Diplome *liste : {&liste_dcf, &liste_dlf, &liste_difm, &liste_dcpf})
        for (const QString &dpt : {u"2A"_s, u"2B"_s, u"FR"_s, u""_s})
            EXPECT_THROW(Liste(*liste, {Confirme_Sur(u"14 Mhz"_s, dpt)}, choix), Erreur_Execution)
                << liste->ecran.toString().toStdString();
    EXPECT_THROW(Liste(liste_dff, {Confirme_Sur(u"14 Mhz"_s, u"2A"_s)}, {.code_categorie = u"HF"}), Erreur_Execution);
}

TEST(Listes_Sans_Pli, les_listes_sans_table_prennent_tout_departement)
{
    for (const Liste_Diplome *liste : {&liste_fff, &liste_wlf, &liste_pc}) {
        const Lignes_Essai lignes = {Confirme_Sur(u"14 Mhz"_s, u"2A"_s), Confirme_Sur(u"14 Mhz"_s, u"FR"_s),
                                     Confirme_Sur(u"14 Mhz"_s, u""_s), Confirme_Sur(u"14 Mhz"_s, u"98"_s)};
        EXPECT_EQ(Liste(*liste, lignes).rangs.size(), 4U);
    }
}

TEST(Listes_Par_Mode, le_rang_montre_la_Corse_repliee)
{
    for (const Liste_Diplome *liste : {&liste_difi, &liste_dplf, &liste_daf}) {
        const Etat_Liste etat = Liste(*liste, {Confirme_Sur(u"14 Mhz"_s, u"2A"_s), Confirme_Sur(u"14 Mhz"_s, u"2b"_s)},
                                      {.mode_liste = u"MIX"});
        ASSERT_EQ(etat.rangs.size(), 2U);
        EXPECT_EQ(etat.rangs[0].sliced(11, 2), u"96"_s);
        EXPECT_EQ(etat.rangs[1].sliced(11, 2), u"97"_s);
        EXPECT_THROW(Liste(*liste, {Confirme_Sur(u"14 Mhz"_s, u"FR"_s)}, {.mode_liste = u"SSB"}), Erreur_Execution);
    }
}

TEST(Listes_Par_Mode, MIX_prend_tout_mode_et_les_autres_le_leur)
{
    Lignes_Essai lignes;
    for (const QString &mode : {u"SSB"_s, u"CW"_s, u"PSK"_s, u"FM"_s})
        lignes.push_back(QSO({.dpt = u"77"_s, .mode = mode, .qsl = u"*"_s}));
    for (const Liste_Diplome *liste : {&liste_difi, &liste_dplf, &liste_daf}) {
        EXPECT_EQ(Liste(*liste, lignes, {.mode_liste = u"MIX"}).rangs.size(), 4U);
        EXPECT_EQ(Liste(*liste, lignes, {.mode_liste = u"CW"}).rangs.size(), 1U);
        EXPECT_EQ(Liste(*liste, lignes, {.mode_liste = u"DIGI"}).rangs.size(), 0U);
    }
}

TEST(Listes_Par_Mode, le_titre_suit_le_mode)
{
    EXPECT_EQ(Liste(liste_difi, {}, {.mode_liste = u"MIX"}).titre, u"Liste DIFI Mode Mixte"_s);
    EXPECT_EQ(Liste(liste_daf, {}, {.mode_liste = u"CW"}).titre, u"Liste DAF Mode CW"_s);
    EXPECT_EQ(Liste(liste_dplf, {}, {.mode_liste = u"DIGI"}).titre, u"Liste DPLF Mode Digital"_s);
    EXPECT_EQ(Liste(liste_daf, {}, {.mode_liste = u"DIGI"}).titre, u"Diplôme DAF"_s);
}

TEST(Liste_DMF, l_excellence_commence_par_un_blanc_et_coupe_la_reference)
{
    const QString ligne = QSO({.dpt = u"75"_s, .prenom = u"JEAN"_s, .ref = u"7500123456"_s, .qsl = u"*"_s});
    const Etat_Liste liste = Liste(liste_dmf, {ligne, ligne}, {.bande_liste = u"HF", .code_categorie = u"Excellence"});
    ASSERT_EQ(liste.rangs.size(), 1U);
    EXPECT_EQ(liste.rangs[0], u" 75  75001234  F5ABC        JEAN            12/05/07  14:48  14 Mhz   SSB  "_s);
    EXPECT_EQ(liste.colonnes, u" Dep  Ref       Indicatif    Prénom            Date    Heure  Bande   Mode"_s);
    EXPECT_EQ(liste.compte, u" 2 Moulins confirmés"_s);
}

TEST(Liste_DMF, replie_la_Corse_et_la_montre_comme_au_log)
{
    const Etat_Liste liste =
        Liste(liste_dmf, {Confirme_Sur(u"14 Mhz"_s, u"2A"_s)}, {.bande_liste = u"HF", .code_categorie = u"de Base"});
    EXPECT_EQ(liste.rangs.at(0).sliced(11, 2), u"2A"_s);
}

TEST(Liste_DLF, le_432_prend_la_classe_de_la_ligne_d_avant)
{
    const Lignes_Essai lignes = {Confirme_Sur(u"432 Mhz"_s), Confirme_Sur(u"144 Mhz"_s), Confirme_Sur(u"432 Mhz"_s),
                                 Confirme_Sur(u"14 Mhz"_s), Confirme_Sur(u"18 Mhz"_s)};
    EXPECT_EQ(Liste(liste_dlf, lignes, {.bande_liste = u"VHF"}).rangs.size(), 2U);
    EXPECT_EQ(Liste(liste_dlf, lignes, {.bande_liste = u"HF"}).rangs.size(), 2U);
    EXPECT_EQ(Liste(liste_dlf, lignes, {.bande_liste = u"UHF"}).rangs.size(), 0U);
}

TEST(Liste_DFF, la_classe_est_celle_de_la_categorie_et_non_de_la_bande)
{
    const Lignes_Essai lignes = {Confirme_Sur(u"144 Mhz"_s), Confirme_Sur(u"14 Mhz"_s), Confirme_Sur(u"14 Mhz"_s)};
    EXPECT_EQ(Liste(liste_dff, lignes, {.bande_liste = u"HF", .code_categorie = u"VHF"}).rangs.size(), 1U);
}

TEST(Listes_A_Reference_Entiere, DFF_et_WLF_gardent_dix_colonnes_et_les_autres_huit)
{
    const QString ligne = QSO({.dpt = u"77"_s, .ref = u"7700123456"_s, .qsl = u"*"_s});
    EXPECT_TRUE(Liste(liste_dff, {ligne}, {.code_categorie = u"HF"}).rangs.at(0).startsWith(u" 7700123456  77  "_s));
    EXPECT_TRUE(Liste(liste_wlf, {ligne}).rangs.at(0).startsWith(u" 7700123456  77  "_s));
    EXPECT_TRUE(Liste(liste_fff, {ligne}).rangs.at(0).startsWith(u" 77001234  77  "_s));
}

TEST(Liste_PC, prend_une_etoile_ou_un_blanc)
{
    const Lignes_Essai lignes = {QSO({.qsl = u"*"_s}), QSO({}), QSO({.qsl = u"X"_s}), QSO({}).left(110)};
    const Etat_Liste liste = Liste(liste_pc, lignes, {.code_categorie = u"PC_100"});
    EXPECT_EQ(liste.rangs.size(), 2U);
    EXPECT_EQ(liste.entete, u"Diplome PC_100"_s);
}

TEST(Liste_DCPF, prend_les_lettres_de_la_categorie)
{
    const auto ref = [](const QString &texte) { return QSO({.dpt = u"81"_s, .ref = texte, .qsl = u"*"_s}); };
    const Choix choix = {.code_categorie = u"PT", .categorie_liste = u"Or", .niveau_liste = u"Tour isolée"};
    const Etat_Liste liste = Liste(liste_dcpf, {ref(u"81PT001"_s), ref(u"81CA001"_s)}, choix);
    EXPECT_EQ(liste.rangs.size(), 1U);
    EXPECT_EQ(liste.entete, u"Diplome DCPF Or type Pigeonnier Tour isolée"_s);
}

TEST(Sorties, FFF_ne_peut_enregistrer_son_trophe_et_l_imprime_sans_titre)
{
    Poste_D_Un_QSO essai(u"FFF"_s);
    for (const QStringView bouton : {u"Honneur", u"Maitre"}) {
        Presse_Bouton(essai.poste, fiche_fff, bouton);
        EXPECT_THROW(essai.Enregistre(liste_fff), Erreur_Execution);
        const std::vector<QString> page = essai.Imprime(liste_fff);
        EXPECT_EQ(std::vector<QString>(page.begin(), page.begin() + 4), std::vector<QString>(4));
        EXPECT_TRUE(page.at(4).contains(u"77PT1"_s));
    }
}

TEST(Sorties, les_lacs_prennent_le_nom_et_le_papier_de_FFF)
{
    Poste_D_Un_QSO essai(u"WLF"_s);
    Presse_Bouton(essai.poste, fiche_wlf, u"Base");
    const QString nom = u"F9ZZY_Diplome_FFF_de_Base_15_11_26.txt"_s;
    essai.fichiers.Pose(nom, "a list of FFF");
    essai.Enregistre(liste_wlf);
    EXPECT_TRUE(essai.fichiers.Octets(nom).startsWith("   F9ZZY Liste alphanumerique des Sites contact\xE9s au "));
    EXPECT_EQ(essai.Imprime(liste_wlf)[0], u"                 F9ZZY Diplome FFF De base du 15/11/26"_s);
}

TEST(Sorties, les_lacs_n_enregistrent_pas_les_niveaux_sans_ligne)
{
    Poste_D_Un_QSO essai(u"WLF"_s);
    for (const QStringView bouton : {u"Performant", u"Expert", u"Maitre"}) {
        Presse_Bouton(essai.poste, fiche_wlf, bouton);
        EXPECT_THROW(essai.Enregistre(liste_wlf), Erreur_Execution) << bouton.toString().toStdString();
    }
    Presse_Bouton(essai.poste, fiche_wlf, u"Honneur");
    EXPECT_NO_THROW(essai.Enregistre(liste_wlf));
}

TEST(Sorties, le_nom_de_l_honneur_DCPF_a_un_souligne_de_plus_que_l_or)
{
    Poste_D_Un_QSO essai(u"DCPF"_s);
    Affiche_Option(essai.poste, choix_dcpf.groupes[0].options[1]);
    for (const QStringView bouton : {u"Dore", u"Honneur"}) {
        Presse_Bouton(essai.poste, fiche_dcpf, bouton);
        essai.Enregistre(liste_dcpf);
    }
    EXPECT_TRUE(essai.fichiers.Existe(u"F9ZZY_Diplome_DCPF_Or_Pigeonnier Tour isolée 15_11_26.txt"_s));
    EXPECT_TRUE(essai.fichiers.Existe(u"F9ZZY_Diplome_DCPF_Honneur_Pigeonnier Tour isolée _15_11_26.txt"_s));
    EXPECT_EQ(essai.Imprime(liste_dcpf)[0], u"                 F9ZZY Diplome DCPF Mixte du 15/11/26"_s);
}

TEST(Sorties, le_mixte_des_phares_et_des_abbayes_n_a_ni_fichier_ni_titre)
{
    for (const auto &[liste, code] : {std::pair(&liste_dplf, u"DPLF"_s), std::pair(&liste_daf, u"DAF"_s)}) {
        Poste_D_Un_QSO essai(code);
        essai.etat.mode_liste = u"MIX"_s;
        EXPECT_THROW(essai.Enregistre(*liste), Erreur_Execution);
        EXPECT_EQ(essai.Imprime(*liste)[0], QString());
        essai.etat.mode_liste = u"SSB"_s;
        EXPECT_NO_THROW(essai.Enregistre(*liste));
    }
}

TEST(Textes_Partages, une_liste_lit_ce_qu_un_autre_award_a_pose)
{
    Poste_D_Un_QSO essai(u"DLF"_s);
    Presse_Bouton(essai.poste, fiche_dlf, u"DLF_VHF");
    // The dovecotes leave the band as the wash-houses left it, and put their own category beside it.
    Affiche_Option(essai.poste, choix_dcpf.groupes[0].options[0]);
    Presse_Bouton(essai.poste, fiche_dcpf, u"Bronze");
    EXPECT_EQ(essai.etat.bande_liste, u"VHF"_s);
    EXPECT_EQ(essai.etat.code_categorie, u"CA"_s);
    essai.fichiers.Pose(u"F9ZZY_DFCF.log"_s, {});
    const Etat_Liste liste = Charge_Liste(essai.poste, liste_dfcf);
    EXPECT_EQ(liste.titre, u"Liste DFCF bande VHF"_s);
    EXPECT_EQ(liste.entete, u"Diplome DFCF VHF CA"_s);
}

TEST(Textes_Partages, DPLF_garde_la_bande_et_pose_ses_modes)
{
    Poste_Essai essai;
    essai.etat.bande_liste = u"VHF"_s;
    Presse_Bouton(essai.poste, fiche_dplf, u"B_MIX");
    EXPECT_EQ(essai.etat.bande_liste, u"VHF"_s);
    EXPECT_EQ(essai.etat.mode_liste, u"MIX"_s);
    EXPECT_EQ(essai.etat.code_categorie, u"Mixe"_s);
    Presse_Bouton(essai.poste, fiche_difi, u"HF_Honneur");
    EXPECT_EQ(essai.etat.code_categorie, u"De Base"_s);
}
