#include "Charge_Essai.h"
#include "diplomes/Affiche_Option.h"
#include "diplomes/regles/Fiche_Des_Comptes.h"
#include "diplomes/regles/Liste_DPF.h"
#include "diplomes/regles/Provinces.h"
#include "diplomes/regles/Regle_DPF.h"
#include "faux/Attendus.h"

#include <map>
#include <set>

using namespace diplomes;

namespace {

const QString log_dpf = u"F9ZZY_DPF.log"_s;

/// One department of each province, in their order.
const QStringList un_par_province = {u"67"_s, u"24"_s, u"03"_s, u"14"_s, u"21"_s, u"22"_s, u"18"_s, u"08"_s,
                                     u"2A"_s, u"25"_s, u"27"_s, u"11"_s, u"19"_s, u"54"_s, u"09"_s, u"59"_s,
                                     u"44"_s, u"02"_s, u"16"_s, u"04"_s, u"75"_s, u"01"_s};

Etat_Commun Variante(const QString &genre, const QString &classe, const QString &mode = u"CW"_s)
{
    Etat_Commun etat;
    etat.station.indicatif = u"F9ZZY"_s;
    etat.code_categorie = genre;
    etat.bande_liste = classe;
    etat.mode_liste = mode;
    return etat;
}

QString Ligne(const QString &dpt, const QString &bande = u"14 Mhz"_s, const QString &mode = u"CW"_s)
{
    return QSO({.dpt = dpt, .mode = mode, .bande = bande, .qsl = u"*"_s});
}

Lignes_Essai Provinces(int nombre, const QString &bande, const QString &mode = u"CW"_s)
{
    Lignes_Essai lignes;
    for (const QString &dpt : un_par_province.first(nombre))
        lignes.push_back(Ligne(dpt, bande, mode));
    return lignes;
}

int Compte_Simple(const Lignes_Essai &lignes, const QString &classe = u"HF"_s)
{
    return Compte_DPF(En_Texte(lignes), Variante(u"Simple"_s, classe))[0].n;
}

Etat_Fiche Fiche(const Etat_Commun &variante, const Lignes_Essai &lignes)
{
    Poste_Essai essai;
    essai.etat = variante;
    return Fiche_De(essai, fiche_dpf, log_dpf, lignes);
}

Etat_Liste Liste(const Etat_Commun &variante, const Lignes_Essai &lignes)
{
    Poste_Essai essai;
    essai.etat = variante;
    return Liste_De(essai, liste_dpf, log_dpf, lignes);
}

/// Department -> place of its province, read from the texts of Detail_DPF and put right by hand.
std::map<QString, std::size_t> Provinces_Lentes()
{
    std::map<QString, std::size_t> provinces;
    for (std::size_t numero = 0; numero < textes_provinces.size(); ++numero)
        for (const QString &dpt : textes_provinces[numero].toString().section(u" Dpt "_s, 1).split(u' '))
            provinces[dpt] = numero;
    provinces[u"79"_s] = 16;
    provinces.erase(u"49"_s);
    return provinces;
}

QString Nom(const QString &dpt, QString avant = {})
{
    Province_De_Departement(dpt, avant);
    return avant;
}

} // namespace

TEST(Provinces, les_deux_tables_disent_la_meme_province)
{
    std::map<std::size_t, QString> noms;
    const std::map<QString, std::size_t> provinces = Provinces_Lentes();
    EXPECT_EQ(provinces.size(), 95U);
    for (const auto &[dpt, numero] : provinces) {
        EXPECT_EQ(Numero_Province(dpt), numero) << dpt.toStdString();
        const QString nom = Nom(dpt);
        EXPECT_EQ(nom.size(), 20);
        EXPECT_EQ(noms.try_emplace(numero, nom).first->second, nom) << dpt.toStdString();
    }
    EXPECT_EQ(noms.size(), nombre_provinces);
    EXPECT_EQ(noms[11], u"Langedoc-Rousillon  "_s);
    EXPECT_EQ(noms[19], u"Provence-Cote-d'Azur"_s);
}

TEST(Provinces, chaque_nom_est_ecrit_comme_sur_la_liste)
{
    // clang-format off
    const QStringList noms = {
        u"Alsace              "_s,
        u"Aquitaine           "_s,
        u"Auvergne            "_s,
        u"Basse-Normandie     "_s,
        u"Bourgogne           "_s,
        u"Bretagne            "_s,
        u"Centre              "_s,
        u"Champagne           "_s,
        u"Corse               "_s,
        u"Franche-Comte       "_s,
        u"Haute-Normandie     "_s,
        u"Langedoc-Rousillon  "_s,
        u"Limousin            "_s,
        u"Lorraine            "_s,
        u"Midi-Pyrenees       "_s,
        u"Nord                "_s,
        u"Pays-de-Loire       "_s,
        u"Picardie            "_s,
        u"Poitou-Charentes    "_s,
        u"Provence-Cote-d'Azur"_s,
        u"Ile-de-France       "_s,
        u"Rhone-Alpes         "_s,
    };
    // clang-format on
    ASSERT_EQ(un_par_province.size(), noms.size());
    for (qsizetype i = 0; i < noms.size(); ++i)
        EXPECT_EQ(Nom(un_par_province[i]), noms[i]);
}

TEST(Provinces, 79_est_des_Pays_de_Loire_et_49_de_nulle_part)
{
    EXPECT_EQ(Nom(u"79"_s).trimmed(), u"Pays-de-Loire"_s);
    EXPECT_EQ(Nom(u"86"_s).trimmed(), u"Poitou-Charentes"_s);
    EXPECT_EQ(Numero_Province(u"79"), 16U);
    EXPECT_EQ(Numero_Province(u"49"), std::nullopt);
    EXPECT_EQ(Nom(u"49"_s, u"avant"_s), u"avant"_s);
}

TEST(Provinces, un_departement_vide_est_de_l_Ile_de_France)
{
    EXPECT_EQ(Numero_Province(u""), 20U);
    EXPECT_EQ(Nom(u""_s).trimmed(), u"Ile-de-France"_s);
    EXPECT_EQ(Compte_Simple({Ligne(u"  "_s), Ligne(u"75"_s)}), 1);
}

TEST(Compte_DPF, 44_et_85_font_une_province_et_49_aucune)
{
    EXPECT_EQ(Compte_Simple({Ligne(u"44"_s), Ligne(u"85"_s)}), 1);
    EXPECT_EQ(Compte_Simple({Ligne(u"49"_s)}), 0);
    EXPECT_EQ(Compte_Simple({Ligne(u"79"_s), Ligne(u"44"_s)}), 1);
    EXPECT_EQ(Compte_Simple({Ligne(u"79"_s), Ligne(u"17"_s)}), 2);
    EXPECT_EQ(Compte_Simple({Ligne(u"2a"_s), Ligne(u"2B"_s)}), 1);
}

TEST(Compte_DPF, 50_Mhz_compte_en_HF_et_se_montre_en_THF)
{
    const Lignes_Essai lignes = {Ligne(u"77"_s, u"50 Mhz"_s)};
    EXPECT_EQ(Compte_Simple(lignes), 1);
    EXPECT_EQ(Compte_Simple(lignes, u"THF"_s), 0);
    EXPECT_EQ(Liste(Variante(u"Simple"_s, u"HF"_s), lignes).rangs.size(), 0U);
    EXPECT_EQ(Liste(Variante(u"Simple"_s, u"THF"_s), lignes).rangs.size(), 1U);
}

TEST(Compte_DPF, 18_et_10_Mhz_prennent_la_classe_de_la_ligne_d_avant)
{
    for (const QString &bande : {u"18 Mhz"_s, u"10 Mhz"_s}) {
        const QString ligne = Ligne(u"77"_s, bande);
        EXPECT_EQ(Compte_Simple({ligne}), 0);
        EXPECT_EQ(Compte_Simple({QSO({}), ligne}), 1);
        EXPECT_EQ(Compte_Simple({QSO({.bande = u"144 Mhz"_s}), ligne}), 0);
        EXPECT_EQ(Compte_Simple({QSO({.bande = u"144 Mhz"_s}), ligne}, u"THF"_s), 1);
    }
    EXPECT_EQ(Liste(Variante(u"Simple"_s, u"HF"_s), {Ligne(u"77"_s, u"18 Mhz"_s)}).rangs.size(), 1U);
    EXPECT_EQ(Liste(Variante(u"Simple"_s, u"HF"_s), {Ligne(u"77"_s, u"10 Mhz"_s)}).rangs.size(), 0U);
}

TEST(Compte_DPF, une_ligne_sans_carte_ou_d_un_autre_mode_ne_compte_pas)
{
    EXPECT_EQ(Compte_Simple({QSO({.dpt = u"77"_s, .mode = u"CW"_s}), Ligne(u"77"_s, u"14 Mhz"_s, u"SSB"_s)}), 0);
}

TEST(Compte_DPF, des_logs_au_hasard_donnent_le_compte_lent)
{
    std::mt19937 hasard(11);
    const std::map<QString, std::size_t> provinces = Provinces_Lentes();
    QStringList departements = {u"49"_s, u"98"_s};
    for (const auto &[dpt, numero] : provinces)
        departements << dpt;
    for (int essai = 0; essai < 60; ++essai) {
        Lignes_Essai lignes;
        std::set<std::size_t> vues;
        std::map<QString, std::set<std::size_t>> par_bande;
        QString classe;
        for (int i = 0; i < 12 * essai; ++i) {
            const QString bande = Au_Hasard(hasard, {u"1.8 Mhz"_s, u"3.5 Mhz"_s, u"10 Mhz"_s, u"14 Mhz"_s, u"18 Mhz"_s,
                                                     u"50 Mhz"_s, u"144 Mhz"_s, u"432 Mhz"_s, u"7,045"_s});
            const QString dpt = Au_Hasard(hasard, departements);
            const bool compte = Au_Hasard(hasard, {u"o"_s, u"n"_s}) == u"o"_s;
            lignes.push_back(QSO({.dpt = dpt, .mode = u"CW"_s, .bande = bande, .qsl = compte ? u"*"_s : u" "_s}));
            if (bande.startsWith(u"144") || bande.startsWith(u"432"))
                classe = u"THF"_s;
            else if (bande != u"10 Mhz"_s && bande != u"18 Mhz"_s && bande != u"7,045"_s)
                classe = u"HF"_s;
            if (!compte || !provinces.contains(dpt))
                continue;
            if (classe == u"HF"_s)
                vues.insert(provinces.at(dpt));
            par_bande[bande].insert(provinces.at(dpt));
        }
        EXPECT_EQ(Compte_Simple(lignes), static_cast<int>(vues.size()));
        std::size_t total = 0;
        for (const QString &bande : {u"1.8 Mhz"_s, u"3.5 Mhz"_s, u"10 Mhz"_s, u"14 Mhz"_s, u"18 Mhz"_s})
            total += par_bande[bande].size();
        EXPECT_EQ(Compte_DPF(En_Texte(lignes), Variante(u"5 Bandes"_s, u"HF"_s))[0].n, static_cast<int>(total));
    }
}

TEST(Fiche_DPF, les_seuils_sont_22_en_HF_et_16_en_THF)
{
    for (const auto &[classe, bande, seuil] :
         {std::tuple(u"HF"_s, u"14 Mhz"_s, 22), std::tuple(u"THF"_s, u"144 Mhz"_s, 16)})
        for (const auto &[mode, label] : {std::pair(u"CW"_s, u"Label4"_s), {u"SSB"_s, u"Label1"_s}}) {
            const Etat_Commun variante = Variante(u"Simple"_s, classe);
            EXPECT_FALSE(Est_Atteint(Fiche(variante, Provinces(seuil - 1, bande, mode)), label));
            EXPECT_TRUE(Est_Atteint(Fiche(variante, Provinces(seuil, bande, mode)), label));
        }
    EXPECT_TRUE(Est_Atteint(Fiche(Variante(u"Simple"_s, u"THF"_s), Provinces(17, u"432 Mhz"_s)), u"Label4"));
}

TEST(Fiche_DPF, le_statut_en_CW_change_et_celui_de_la_phonie_reste)
{
    const Etat_Fiche etat = Fiche(Variante(u"Simple"_s, u"THF"_s), Provinces(3, u"144 Mhz"_s));
    EXPECT_EQ(etat.entete, u"Diplome DPF Simple"_s);
    EXPECT_EQ(Texte_De(etat, u"Label4"), u"Vous ne pouvez pas obtenir le diplome DPF Simple CW THF"_s);
    EXPECT_EQ(Texte_De(etat, u"Label18"), u"il vous manque 13 Provinces confirmées"_s);
    EXPECT_EQ(Texte_De(etat, u"Label1"), u"Vous ne pouvez pas encore obtenir le diplome DPF Simple Phonie "_s);
    EXPECT_EQ(Texte_De(etat, u"Label3"), u"il vous manque 16 Provinces confirmées"_s);
    EXPECT_TRUE(Boutons_Actifs(etat).isEmpty());
}

TEST(Fiche_DPF, atteint_en_phonie)
{
    const Etat_Fiche etat = Fiche(Variante(u"Simple"_s, u"HF"_s), Provinces(22, u"14 Mhz"_s, u"SSB"_s));
    EXPECT_EQ(Texte_De(etat, u"Label1"), u"Bravo vous pouvez obtenir le diplome DPF Simple Phonie HF"_s);
    EXPECT_EQ(Texte_De(etat, u"Label3"), u"avec les QSL des 22 Provinces confirmées"_s);
    EXPECT_EQ(Boutons_Actifs(etat), QStringList{u"DDFM_HF_PH"_s});
}

TEST(Fiche_DPF, chaque_niveau_atteint_a_son_texte_son_detail_et_son_bouton)
{
    struct Attendu {
        QString genre, classe, mode, statut, texte, label, detail, bouton;
    };
    // clang-format off
    const std::vector<Attendu> attendus = {
        {u"Simple"_s, u"HF"_s, u"CW"_s, u"Label4"_s, u"Bravo vous pouvez obtenir le diplome DPF Simple CW HF"_s,
         u"Label18"_s, u"avec les QSL des 22 Provinces confirmées"_s, u"DDFM_HF_CW"_s},
        {u"Simple"_s, u"HF"_s, u"SSB"_s, u"Label1"_s, u"Bravo vous pouvez obtenir le diplome DPF Simple Phonie HF"_s,
         u"Label3"_s, u"avec les QSL des 22 Provinces confirmées"_s, u"DDFM_HF_PH"_s},
        {u"Simple"_s, u"THF"_s, u"CW"_s, u"Label4"_s, u"Bravo vous pouvez obtenir le diplome DPF Simple CW THF"_s,
         u"Label18"_s, u"avec les QSL des 16 Provinces confirmées"_s, u"DDFM_HF_CW"_s},
        {u"Simple"_s, u"THF"_s, u"SSB"_s, u"Label1"_s, u"Bravo vous pouvez obtenir le diplome DPF Simple Phonie THF"_s,
         u"Label3"_s, u"avec les QSL des 16 Provinces confirmées"_s, u"DDFM_HF_PH"_s},
        {u"5 Bandes"_s, u"HF"_s, u"CW"_s, u"Label4"_s, u"Bravo vous pouvez obtenir le diplome DPF 5 Bandes CW HF"_s,
         u"Label18"_s, u"avec les  110 QSL des 5 Provinces confirmées"_s, u"DDFM_HF_CW"_s},
        {u"5 Bandes"_s, u"HF"_s, u"SSB"_s, u"Label1"_s, u"Bravo vous pouvez obtenir le diplome DPF 5 Bandes Phonie HF"_s,
         u"Label3"_s, u"avec les  110 QSL des 5 Provinces confirmées"_s, u"DDFM_HF_PH"_s},
        {u"5 Bandes"_s, u"THF"_s, u"CW"_s, u"Label4"_s, u"Bravo vous pouvez obtenir le diplome DPF 5 Bandes CW THF"_s,
         u"Label18"_s, u"avec les  110 QSL des 5 Provinces confirmées"_s, u"DDFM_HF_CW"_s},
        {u"5 Bandes"_s, u"THF"_s, u"SSB"_s, u"Label1"_s, u"Bravo vous pouvez obtenir le diplome DPF 5 Bandes Phonie THF"_s,
         u"Label3"_s, u"avec les  110 QSL des 5 Provinces confirmées"_s, u"DDFM_HF_PH"_s},
    };
    // clang-format on
    for (const Attendu &attendu : attendus) {
        Lignes_Essai lignes;
        if (attendu.genre == u"5 Bandes")
            for (const QString &bande : {u"1.8 Mhz"_s, u"3.5 Mhz"_s, u"7.0 Mhz"_s, u"24 Mhz"_s, u"28 Mhz"_s})
                lignes = lignes + Provinces(22, bande, attendu.mode);
        else
            lignes = attendu.classe == u"HF" ? Provinces(22, u"14 Mhz"_s, attendu.mode)
                                             : Provinces(16, u"432 Mhz"_s, attendu.mode);
        const Etat_Fiche etat = Fiche(Variante(attendu.genre, attendu.classe), lignes);
        EXPECT_TRUE(Est_Atteint(etat, attendu.statut));
        EXPECT_EQ(Texte_De(etat, attendu.statut), attendu.texte);
        EXPECT_EQ(Texte_De(etat, attendu.label), attendu.detail);
        EXPECT_EQ(Boutons_Actifs(etat), QStringList{attendu.bouton});
    }
}

TEST(Fiche_DPF, cinq_bandes_demande_110_sur_cinq_bandes_entieres)
{
    const Etat_Commun variante = Variante(u"5 Bandes"_s, u"HF"_s);
    Lignes_Essai lignes;
    for (const QString &bande : {u"1.8 Mhz"_s, u"10 Mhz"_s, u"18 Mhz"_s, u"21 Mhz"_s, u"28 Mhz"_s})
        lignes = lignes + Provinces(22, bande);
    Etat_Fiche etat = Fiche(variante, lignes);
    EXPECT_EQ(Texte_De(etat, u"Label4"), u"Bravo vous pouvez obtenir le diplome DPF 5 Bandes CW HF"_s);
    EXPECT_EQ(Texte_De(etat, u"Label18"), u"avec les  110 QSL des 5 Provinces confirmées"_s);
    EXPECT_EQ(Boutons_Actifs(etat), QStringList{u"DDFM_HF_CW"_s});
    etat = Fiche(variante, lignes + Provinces(3, u"14 Mhz"_s) + Provinces(22, u"50 Mhz"_s));
    EXPECT_EQ(Texte_De(etat, u"Label18"), u"avec les  113 QSL des 5 Provinces confirmées"_s);
    lignes.pop_back();
    etat = Fiche(variante, lignes);
    EXPECT_EQ(Texte_De(etat, u"Label4"), u"Vous ne pouvez pas obtenir le diplome DPF 5 Bandes CW HF"_s);
    EXPECT_EQ(Texte_De(etat, u"Label18"), u"il vous manque 1 QSO confirmés et 1 bandes"_s);
    EXPECT_EQ(Texte_De(etat, u"Label1"), u"Vous ne pouvez pas encore obtenir le diplome DPF 5 Bandes Phonie "_s);
    EXPECT_EQ(Texte_De(etat, u"Label3"), u"il vous manque 110 QSO confirmés et 5 bandes\""_s);
}

TEST(Fiche_DPF, le_nombre_qui_manque_peut_etre_negatif)
{
    Lignes_Essai lignes;
    for (const QString &bande : {u"1.8 Mhz"_s, u"3.5 Mhz"_s, u"7.0 Mhz"_s, u"10 Mhz"_s, u"14 Mhz"_s, u"18 Mhz"_s})
        lignes = lignes + Provinces(21, bande, u"SSB"_s);
    const Etat_Fiche etat = Fiche(Variante(u"5 Bandes"_s, u"HF"_s), lignes);
    EXPECT_EQ(Texte_De(etat, u"Label3"), u"il vous manque -16 QSO confirmés et 5 bandes\""_s);
}

TEST(Fiche_DPF, cinq_bandes_et_109_montrent_un_QSO_et_aucune_bande)
{
    // Five whole bands hold 110, so no log leads here: the texts are held by themselves.
    Niveau_Diplome niveau = fiche_dpf.niveaux[0];
    niveau.seuil_n = 110;
    niveau.seuil_d = 5;
    niveau.detail[0].manque = u"il vous manque {reste_n} QSO confirmés et {reste_d} bandes";
    Fiche_Diplome fiche = fiche_dpf;
    fiche.niveaux = {&niveau, 1};
    const std::array comptes = {Comptes{.n = 109, .d = 5}};
    EXPECT_EQ(Texte_De(Fiche_Des_Comptes(fiche, comptes, {}), u"Label18"),
              u"il vous manque 1 QSO confirmés et 0 bandes"_s);
}

TEST(Liste_DPF, une_province_a_un_rang_le_premier_dans_l_ordre)
{
    const Etat_Liste etat = Liste(Variante(u"Simple"_s, u"HF"_s, u"SSB"_s),
                                  {Ligne(u"85"_s, u"14 Mhz"_s, u"SSB"_s), Ligne(u"44"_s, u"3.5 Mhz"_s, u"SSB"_s),
                                   Ligne(u"44"_s, u"14 Mhz"_s, u"SSB"_s), Ligne(u"67"_s, u"21 Mhz"_s, u"SSB"_s)});
    EXPECT_EQ(etat.entete, u"Diplome DPF Simple HF SSB"_s);
    EXPECT_EQ(etat.colonnes, u"    Province               Dpt  Indicatif       Date   Heure   Bande   Mode"_s);
    EXPECT_EQ(etat.compte, u" 2 Provinces confirmées"_s);
    // Behind a mode of three letters the name keeps a blank in front.
    EXPECT_EQ(etat.rangs,
              (std::vector<QString>{u"  Alsace                   67  F5ABC         12/05/07  14:48  21 Mhz   SSB"_s,
                                    u"  Pays-de-Loire            44  F5ABC         12/05/07  14:48  14 Mhz   SSB"_s}));
}

TEST(Liste_DPF, en_CW_la_province_est_sans_blanc_de_plus)
{
    const Etat_Liste etat = Liste(Variante(u"Simple"_s, u"HF"_s), {Ligne(u"2a"_s)});
    EXPECT_EQ(etat.rangs,
              std::vector<QString>{u" Corse                     2A  F5ABC         12/05/07  14:48  14 Mhz   CW "_s});
}

TEST(Liste_DPF, un_departement_sans_province_montre_celle_d_avant)
{
    EXPECT_TRUE(Liste(Variante(u"Simple"_s, u"HF"_s), {Ligne(u"49"_s)})
                    .rangs.at(0)
                    .startsWith(u"                           49  "_s));
    const Etat_Liste etat = Liste(Variante(u"Simple"_s, u"HF"_s), {Ligne(u"49"_s), Ligne(u"48"_s)});
    EXPECT_EQ(etat.compte, u" 1 Provinces confirmées"_s);
    EXPECT_TRUE(etat.rangs.at(0).startsWith(u" Langedoc-Rousillon        48  "_s));
}

TEST(Liste_DPF, cinq_bandes_a_un_rang_par_province_et_bande)
{
    const Etat_Liste etat = Liste(Variante(u"5 Bandes"_s, u"HF"_s, u"SSB"_s),
                                  {Ligne(u"85"_s, u"14 Mhz"_s, u"SSB"_s), Ligne(u"44"_s, u"14 Mhz"_s, u"SSB"_s),
                                   Ligne(u"44"_s, u"18 Mhz"_s, u"SSB"_s), Ligne(u"44"_s, u"50 Mhz"_s, u"SSB"_s)});
    EXPECT_EQ(etat.colonnes, u"    Province               Bande   Dpt  Indicatif       Date   Heure  Mode"_s);
    EXPECT_EQ(etat.rangs,
              (std::vector<QString>{u"  Pays-de-Loire           14 Mhz   44  F5ABC         12/05/07  14:48  SSB"_s,
                                    u"  Pays-de-Loire           18 Mhz   44  F5ABC         12/05/07  14:48  SSB"_s}));
    EXPECT_EQ(etat.compte, u" 0 Provinces confirmées et 2 QSO"_s);
}

TEST(Liste_DPF, le_compte_de_cinq_bandes_ignore_la_derniere_province)
{
    const auto compte = [](int premiere, int deuxieme, int derniere) {
        const QStringList bandes = {u"1.8 Mhz"_s, u"3.5 Mhz"_s, u"7.0 Mhz"_s, u"10 Mhz"_s, u"14 Mhz"_s, u"18 Mhz"_s};
        Lignes_Essai lignes;
        for (const auto &[dpt, nombre] : {std::pair(u"67"_s, premiere), {u"24"_s, deuxieme}, {u"03"_s, derniere}})
            for (const QString &bande : bandes.first(nombre))
                lignes.push_back(Ligne(dpt, bande));
        return Liste(Variante(u"5 Bandes"_s, u"HF"_s), lignes).compte;
    };
    // The first province counts from four bands on, those behind it from five, the last one never.
    EXPECT_EQ(compte(3, 4, 6), u" 0 Provinces confirmées et 13 QSO"_s);
    EXPECT_EQ(compte(4, 4, 1), u" 1 Provinces confirmées et 9 QSO"_s);
    EXPECT_EQ(compte(4, 5, 6), u" 2 Provinces confirmées et 15 QSO"_s);
    EXPECT_EQ(compte(0, 0, 6), u" 0 Provinces confirmées et 6 QSO"_s);
    EXPECT_EQ(compte(0, 0, 0), u" 0 Provinces confirmées et 0 QSO"_s);
}

TEST(Liste_DPF, des_logs_au_hasard_donnent_les_provinces_d_un_compte_lent)
{
    std::mt19937 hasard(3);
    const std::map<QString, std::size_t> provinces = Provinces_Lentes();
    QStringList departements;
    for (const auto &[dpt, numero] : provinces)
        departements << dpt;
    for (int essai = 0; essai < 40; ++essai) {
        Lignes_Essai lignes;
        std::set<std::size_t> vues;
        std::set<std::pair<std::size_t, QString>> avec_bande;
        for (int i = 0; i < 10 * essai; ++i) {
            const QString bande = Au_Hasard(hasard, {u"1.8 Mhz"_s, u"14 Mhz"_s, u"18 Mhz"_s, u"28 Mhz"_s});
            const QString dpt = Au_Hasard(hasard, departements);
            const QString mode = Au_Hasard(hasard, {u"CW"_s, u"SSB"_s});
            lignes.push_back(Ligne(dpt, bande, mode));
            if (mode != u"CW"_s)
                continue;
            vues.insert(provinces.at(dpt));
            avec_bande.insert({provinces.at(dpt), bande});
        }
        EXPECT_EQ(Liste(Variante(u"Simple"_s, u"HF"_s), lignes).rangs.size(), vues.size());
        EXPECT_EQ(Liste(Variante(u"5 Bandes"_s, u"HF"_s), lignes).rangs.size(), avec_bande.size());
    }
}

TEST(Liste_DPF, les_fichiers_et_la_page)
{
    const std::vector<std::tuple<QString, QString, QString>> attendus = {
        {u"Simple"_s, u"HF"_s, u"F9ZZY_Diplome_DPF_HF_Simple_CW_15_11_26.txt"_s},
        {u"Simple"_s, u"THF"_s, u"F9ZZY_Diplome_DPF_THF_Simple_15_11_26.txt"_s},
        {u"5 Bandes"_s, u"HF"_s, u"F9ZZY_Diplome_DPF_HF_5 Bandes_CW_15_11_26.txt"_s},
    };
    for (const auto &[genre, classe, nom] : attendus) {
        Poste_Essai essai;
        essai.etat = Variante(genre, classe);
        const Etat_Liste etat =
            Liste_De(essai, liste_dpf, log_dpf,
                     {Ligne(u"06"_s), Ligne(u"31"_s, u"3.5 Mhz"_s), Ligne(u"25"_s, u"144 Mhz"_s), Ligne(u"09"_s)});
        Enregistre_Liste(essai.poste, liste_dpf, etat);
        EXPECT_EQ(essai.boites.messages, std::vector<QString>{u"Fichier enregistré sous le nom : "_s + nom});
        Compare_Attendu(nom, essai.fichiers.Octets(nom));
        Compare_Attendu(u"page_dpf_"_s + genre + u'_' + classe + u".txt", En_Octets(Page_De(essai, liste_dpf, etat)));
    }
}

TEST(Choix_DPF, chaque_option_donne_son_genre_et_sa_classe)
{
    const std::vector<std::pair<QString, QString>> attendus = {
        {u"Simple"_s, u"HF"_s}, {u"Simple"_s, u"THF"_s}, {u"5 Bandes"_s, u"HF"_s}};
    for (std::size_t i = 0; i < attendus.size(); ++i) {
        Poste_Essai essai;
        Affiche_Option(essai.poste, choix_dpf.groupes[0].options[i]);
        EXPECT_EQ(essai.etat.code_categorie, attendus[i].first);
        EXPECT_EQ(essai.etat.bande_liste, attendus[i].second);
        EXPECT_EQ(essai.ecrans.montres, std::vector<QString>{u"Diplomes_DPF"_s});
    }
}
