#include "Charge_Essai.h"
#include "diplomes/Affiche_Option.h"
#include "diplomes/regles/Regle_DDFM.h"
#include "faux/Attendus.h"

using namespace diplomes;

namespace {

const QString log_ddfm = u"F9ZZY_DDFM.log"_s;

Lignes_Essai Confirmees(std::size_t nombre, const QString &bande, const QString &mode = u"CW"_s)
{
    return Fois(nombre, QSO({.dpt = u"77"_s, .mode = mode, .bande = bande, .qsl = u"*"_s}));
}

Etat_Fiche Fiche(const QString &bande, const Lignes_Essai &lignes)
{
    Poste_Essai essai;
    essai.etat.code_categorie = u"HF"_s;
    essai.etat.bande_liste = bande;
    return Fiche_De(essai, fiche_ddfm, log_ddfm, lignes);
}

Etat_Liste Liste(const QString &bande, const QString &mode, const Lignes_Essai &lignes)
{
    Poste_Essai essai;
    essai.etat.bande_liste = bande;
    essai.etat.mode_liste = mode;
    return Liste_De(essai, liste_ddfm, log_ddfm, lignes);
}

Comptes Compte_CW(const Lignes_Essai &lignes)
{
    return Compte_DDFM(En_Texte(lignes), cinq_bandes_ddfm)[0];
}

Comptes Compte_Phonie(const Lignes_Essai &lignes)
{
    return Compte_DDFM(En_Texte(lignes), cinq_bandes_ddfm)[1];
}

const QStringList bandes_hf = {u"1.8 Mhz"_s, u"3.5 Mhz"_s, u"7.0 Mhz"_s, u"10 Mhz"_s, u"14 Mhz"_s,
                               u"18 Mhz"_s,  u"21 Mhz"_s,  u"24 Mhz"_s,  u"28 Mhz"_s};

/// 60 lines on each of five bands: the least that the award over five bands takes.
Lignes_Essai Cinq_Fois_Soixante(const QString &mode)
{
    Lignes_Essai lignes;
    for (const QString &bande : {u"3.5 Mhz"_s, u"7.0 Mhz"_s, u"14 Mhz"_s, u"21 Mhz"_s, u"28 Mhz"_s})
        lignes = lignes + Confirmees(60, bande, mode);
    return lignes;
}

} // namespace

TEST(Fiche_DDFM, le_seuil_d_une_bande_est_50_et_30_sur_144_et_432)
{
    for (const auto &[bande, seuil] : {std::pair(u"1.8 Mhz"_s, 50U),
                                       {u"18 Mhz"_s, 50U},
                                       {u"50 Mhz"_s, 50U},
                                       {u"144 Mhz"_s, 30U},
                                       {u"432 Mhz"_s, 30U}})
        for (const auto &[mode, label] : {std::pair(u"CW"_s, u"Label4"_s), {u"SSB"_s, u"Label1"_s}}) {
            EXPECT_FALSE(Est_Atteint(Fiche(bande, Confirmees(seuil - 1, bande, mode)), label)) << bande.toStdString();
            EXPECT_TRUE(Est_Atteint(Fiche(bande, Confirmees(seuil, bande, mode)), label)) << bande.toStdString();
            EXPECT_TRUE(Est_Atteint(Fiche(bande, Confirmees(seuil + 1, bande, mode)), label)) << bande.toStdString();
        }
}

TEST(Fiche_DDFM, 51_lignes_en_CW_sur_50_Mhz)
{
    const Etat_Fiche etat = Fiche(u"50 Mhz"_s, Confirmees(51, u"50 Mhz"_s));
    EXPECT_EQ(Texte_De(etat, u"Label4"), u"Bravo vous pouvez obtenir le diplome DDFM HF CW 50 Mhz"_s);
    EXPECT_EQ(Texte_De(etat, u"Label18"), u"avec les QSL des 51 départements confirmés"_s);
    EXPECT_EQ(Texte_De(etat, u"Label1"), u"Vous ne pouvez pas encore obtenir le diplome DDFM HF Phonie "_s);
    EXPECT_EQ(Texte_De(etat, u"Label3"), u"il vous manque 50 départements confirmés"_s);
    EXPECT_EQ(Boutons_Actifs(etat), QStringList{u"DDFM_HF_CW"_s});
}

TEST(Fiche_DDFM, sans_le_seuil_le_statut_change_en_CW_et_reste_en_phonie)
{
    const Etat_Fiche etat = Fiche(u"14 Mhz"_s, {});
    EXPECT_EQ(Texte_De(etat, u"Label4"), u"Vous ne pouvez pas obtenir le diplome DDFM HF CW 14 Mhz"_s);
    EXPECT_EQ(Texte_De(etat, u"Label1"), u"Vous ne pouvez pas encore obtenir le diplome DDFM HF Phonie "_s);
    EXPECT_TRUE(Boutons_Actifs(etat).isEmpty());
}

TEST(Fiche_DDFM, la_phonie_atteinte_le_dit_et_ouvre_son_bouton)
{
    const Etat_Fiche etat = Fiche(u"14 Mhz"_s, Confirmees(50, u"14 Mhz"_s, u"SSB"_s));
    EXPECT_EQ(Texte_De(etat, u"Label1"), u"Bravo vous pouvez obtenir le diplome DDFM HF Phonie 14 Mhz"_s);
    EXPECT_EQ(Texte_De(etat, u"Label3"), u"avec les QSL des 50 départements confirmés"_s);
    EXPECT_EQ(Boutons_Actifs(etat), QStringList{u"DDFM_HF_PH"_s});
}

TEST(Fiche_DDFM, un_autre_mode_ou_une_ligne_sans_carte_ne_compte_pas)
{
    Lignes_Essai lignes = Confirmees(50, u"14 Mhz"_s, u"FM"_s) + Confirmees(50, u"14 Mhz"_s, u"PSK"_s) +
                          Fois(50, QSO({.mode = u"CW"_s})) + Confirmees(50, u"21 Mhz"_s);
    const Etat_Fiche etat = Fiche(u"14 Mhz"_s, lignes);
    EXPECT_EQ(Texte_De(etat, u"Label18"), u"il vous manque 50 départements confirmés"_s);
    EXPECT_EQ(Texte_De(etat, u"Label3"), u"il vous manque 50 départements confirmés"_s);
}

TEST(Fiche_DDFM, cinq_bandes_demande_300_et_5_bandes)
{
    const QString bande = cinq_bandes_ddfm.toString();
    Lignes_Essai lignes = Cinq_Fois_Soixante(u"CW"_s);
    Etat_Fiche etat = Fiche(bande, lignes);
    EXPECT_EQ(Texte_De(etat, u"Label4"), u"Bravo vous pouvez obtenir le diplome DDFM HF CW 5_bandes"_s);
    EXPECT_EQ(Texte_De(etat, u"Label18"), u"avec les QSL des 300 départements confirmés"_s);
    EXPECT_EQ(Texte_De(etat, u"Label3"), u"il vous manque 300 départements confirmés et 5 bandes\""_s);
    EXPECT_TRUE(Est_Atteint(Fiche(bande, lignes + Confirmees(1, u"14 Mhz"_s)), u"Label4"));
    lignes.pop_back();
    etat = Fiche(bande, lignes);
    EXPECT_EQ(Texte_De(etat, u"Label4"), u"Vous ne pouvez pas obtenir le diplome DDFM HF CW 5_bandes"_s);
    EXPECT_EQ(Texte_De(etat, u"Label18"), u"il vous manque 1 départements confirmés et 0 bandes"_s);
}

TEST(Fiche_DDFM, cinq_bandes_en_phonie_garde_son_statut_et_ses_guillemets)
{
    const QString bande = cinq_bandes_ddfm.toString();
    const Etat_Fiche etat = Fiche(bande, Confirmees(400, u"14 Mhz"_s, u"SSB"_s));
    EXPECT_EQ(Texte_De(etat, u"Label1"), u"Vous ne pouvez pas encore obtenir le diplome DDFM HF Phonie "_s);
    EXPECT_EQ(Texte_De(etat, u"Label3"), u"il vous manque -100 départements confirmés et 4 bandes\""_s);
    EXPECT_TRUE(Est_Atteint(Fiche(bande, Cinq_Fois_Soixante(u"SSB"_s)), u"Label1"));
}

TEST(Fiche_DDFM, dix_departements_ne_font_que_la_bande_et_onze_le_total)
{
    EXPECT_EQ(Compte_CW(Confirmees(10, u"14 Mhz"_s)).n, 0);
    EXPECT_EQ(Compte_CW(Confirmees(10, u"14 Mhz"_s)).d, 1);
    EXPECT_EQ(Compte_CW(Confirmees(11, u"14 Mhz"_s)).n, 11);
}

TEST(Fiche_DDFM, six_bandes_en_montrent_cinq)
{
    Lignes_Essai lignes;
    for (const QString &bande : {u"1.8 Mhz"_s, u"3.5 Mhz"_s, u"7.0 Mhz"_s, u"10 Mhz"_s, u"14 Mhz"_s, u"21 Mhz"_s})
        lignes.push_back(Confirmees(1, bande).front());
    EXPECT_EQ(Compte_CW(lignes).d, 5);
}

TEST(Fiche_DDFM, un_seul_departement_en_phonie_sur_1_8_ne_fait_pas_la_bande)
{
    EXPECT_EQ(Compte_Phonie(Confirmees(1, u"1.8 Mhz"_s, u"SSB"_s)).d, 0);
    EXPECT_EQ(Compte_Phonie(Confirmees(2, u"1.8 Mhz"_s, u"SSB"_s)).d, 1);
    EXPECT_EQ(Compte_Phonie(Confirmees(1, u"3.5 Mhz"_s, u"SSB"_s)).d, 1);
    EXPECT_EQ(Compte_CW(Confirmees(1, u"1.8 Mhz"_s)).d, 1);
}

TEST(Fiche_DDFM, 18_Mhz_ne_compte_pas_dans_la_fiche_et_se_montre_dans_la_liste)
{
    const Lignes_Essai lignes = Confirmees(20, u"18 Mhz"_s);
    EXPECT_EQ(Compte_CW(lignes).n, 0);
    EXPECT_EQ(Compte_CW(lignes).d, 0);
    EXPECT_EQ(Liste(u"5_bandes"_s, u"CW"_s, lignes).rangs.size(), 20U);
}

TEST(Fiche_DDFM, les_boutons_donnent_le_mode_et_gardent_la_bande)
{
    for (const auto &[bouton, mode] : {std::pair(u"DDFM_HF_CW"_s, u"CW"_s), {u"DDFM_HF_PH"_s, u"SSB"_s}}) {
        Poste_Essai essai;
        essai.etat.bande_liste = u"14 Mhz"_s;
        Presse_Bouton(essai.poste, fiche_ddfm, bouton);
        EXPECT_EQ(essai.etat.mode_liste, mode);
        EXPECT_EQ(essai.etat.bande_liste, u"14 Mhz"_s);
        EXPECT_EQ(essai.ecrans.montres, std::vector<QString>{u"Liste_DDFM"_s});
    }
}

TEST(Fiche_DDFM, des_logs_au_hasard_donnent_le_compte_lent)
{
    std::mt19937 hasard(5);
    for (int essai = 0; essai < 40; ++essai) {
        Lignes_Essai lignes;
        std::map<QString, int> lent;
        const int nombre = 50 + essai * 20;
        for (int i = 0; i < nombre; ++i) {
            const QString bande = Au_Hasard(hasard, bandes_hf + QStringList{u"50 Mhz"_s});
            const QString mode = Au_Hasard(hasard, {u"CW"_s, u"SSB"_s, u"FM"_s});
            const QString qsl = Au_Hasard(hasard, {u"*"_s, u" "_s});
            lignes.push_back(QSO({.mode = mode, .bande = bande, .qsl = qsl}));
            lent[mode + bande] += qsl == u"*"_s ? 1 : 0;
        }
        const auto phonie_lente = [&] {
            Comptes comptes;
            for (const QString &bande : bandes_hf) {
                const int n = lent[u"SSB"_s + bande];
                if (bande == u"18 Mhz"_s)
                    continue;
                comptes.n += n > 10 ? n : 0;
                comptes.d += n > (bande == u"1.8 Mhz"_s ? 1 : 0) ? 1 : 0;
            }
            return comptes;
        }();
        EXPECT_EQ(Compte_Phonie(lignes).n, phonie_lente.n);
        EXPECT_EQ(Compte_Phonie(lignes).d, std::min(5, phonie_lente.d));
        EXPECT_EQ(Compte_DDFM(En_Texte(lignes), u"18 Mhz")[0].n, lent[u"CW18 Mhz"_s]);
    }
}

TEST(Liste_DDFM, montre_la_bande_et_le_mode_dans_l_ordre_des_departements)
{
    const QString vu = QSO({.ind = u"F5ABC"_s, .dpt = u"77"_s, .mode = u"CW"_s, .nom = u"MELUN"_s, .qsl = u"*"_s});
    const QString avant = QSO({.ind = u"F6DEF"_s, .dpt = u"03"_s, .mode = u"CW"_s, .nom = u"VICHY"_s, .qsl = u"*"_s});
    const Etat_Liste etat = Liste(u"14 Mhz"_s, u"CW"_s,
                                  {vu, avant, QSO({.mode = u"CW"_s}), QSO({.mode = u"SSB"_s, .qsl = u"*"_s}),
                                   QSO({.mode = u"CW"_s, .bande = u"21 Mhz"_s, .qsl = u"*"_s})});
    EXPECT_EQ(etat.entete, u"Diplome DDFM 14 Mhz CW"_s);
    EXPECT_EQ(etat.colonnes, u"  Dpt  Indicatif      Bande  Mode   Date   Heure      Ville"_s);
    EXPECT_EQ(etat.compte, u" 2 Départements confirmés"_s);
    EXPECT_EQ(etat.rangs, (std::vector<QString>{
                              u" 03  F6DEF         14 Mhz   CW   12/05/07  14:48  VICHY                         "_s,
                              u" 77  F5ABC         14 Mhz   CW   12/05/07  14:48  MELUN                         "_s}));
}

TEST(Liste_DDFM, cinq_bandes_montre_les_bandes_de_dix_lignes)
{
    const Lignes_Essai lignes = Confirmees(9, u"7.0 Mhz"_s) + Confirmees(10, u"10 Mhz"_s) +
                                Confirmees(10, u"14 Mhz"_s, u"SSB"_s) + Confirmees(12, u"50 Mhz"_s) +
                                Fois(5, QSO({.mode = u"CW"_s, .bande = u"10 Mhz"_s}));
    const Etat_Liste etat = Liste(u"5_bandes"_s, u"CW"_s, lignes);
    EXPECT_EQ(etat.compte, u" 10 Départements confirmés"_s);
    for (const QString &rang : etat.rangs)
        EXPECT_TRUE(rang.contains(u"10 Mhz "_s));
}

TEST(Liste_DDFM, le_fichier_et_la_page)
{
    Poste_Essai essai;
    essai.etat.bande_liste = u"1.8 Mhz"_s;
    essai.etat.mode_liste = u"SSB"_s;
    const Etat_Liste etat = Liste_De(
        essai, liste_ddfm, log_ddfm,
        {QSO({.ind = u"F5ABC"_s, .dpt = u"2A"_s, .bande = u"1.8 Mhz"_s, .nom = u"PROPRIANO"_s, .qsl = u"*"_s}),
         QSO({.ind = u"F6DEF/P"_s, .dpt = u"19"_s, .bande = u"1.8 Mhz"_s, .nom = u"UZERCHE"_s, .qsl = u"*"_s})});
    Enregistre_Liste(essai.poste, liste_ddfm, etat);
    const QString nom = u"F9ZZY_Diplome_DDFM_1_8 Mhz_SSB_15_11_26.txt"_s;
    EXPECT_EQ(essai.boites.messages, std::vector<QString>{u"Fichier enregistré sous le nom : "_s + nom});
    Compare_Attendu(u"liste_ddfm.txt"_s, essai.fichiers.Octets(nom));
    Compare_Attendu(u"page_ddfm.txt"_s, En_Octets(Page_De(essai, liste_ddfm, etat)));
}

TEST(Choix_DDFM, chaque_option_donne_sa_categorie_et_sa_bande)
{
    const std::vector<std::pair<QString, QString>> attendus = {
        {u"HF"_s, u"7.0 Mhz"_s}, {u"THF"_s, u"7.0 Mhz"_s}, {u"HF"_s, u"5_bandes"_s}};
    for (std::size_t i = 0; i < attendus.size(); ++i) {
        Poste_Essai essai;
        const Option_Diplome &option = choix_ddfm.groupes[0].options[i];
        Affiche_Option(essai.poste, option, u"7.0 Mhz"_s);
        EXPECT_EQ(essai.etat.code_categorie, attendus[i].first);
        EXPECT_EQ(essai.etat.bande_liste, attendus[i].second);
        EXPECT_EQ(essai.ecrans.montres, std::vector<QString>{u"Diplomes_DDFM"_s});
    }
}
