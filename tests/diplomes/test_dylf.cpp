#include "Fiche_Essai.h"
#include "diplomes/Charge_Fiche.h"
#include "diplomes/Charge_Liste.h"
#include "diplomes/Charge_Scores_DYLF.h"
#include "diplomes/Sorties_Liste.h"
#include "diplomes/regles/Points_DYLF.h"
#include "diplomes/tables/Tables.h"
#include "faux/Attendus.h"
#include "faux/Echec.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>

using namespace diplomes;

namespace {

QString Sur(const QString &bande, const QString &mode)
{
    return QSO({.mode = mode, .bande = bande});
}

const QStringList bandes = {u"1.8 Mhz"_s, u"3.5 Mhz"_s, u"7.0 Mhz"_s, u"10 Mhz"_s, u"14 Mhz"_s,
                            u"18 Mhz"_s,  u"21 Mhz"_s,  u"24 Mhz"_s,  u"28 Mhz"_s, u"50 Mhz"_s,
                            u"144 Mhz"_s, u"432 Mhz"_s, u"14.123"_s,  u""_s};
const QStringList modes = {u"SSB"_s, u"CW"_s, u"PSK"_s, u"TTY"_s, u"FM"_s, u"SST"_s, u"ssb"_s, u""_s};

Lignes_Essai QSO_Au_Hasard(unsigned graine)
{
    std::mt19937 hasard(graine);
    const auto tire = [&](const QStringList &textes) {
        return textes[static_cast<qsizetype>(hasard() % static_cast<unsigned>(textes.size()))];
    };
    Lignes_Essai lignes;
    for (int i = 0; i < 1500; ++i) {
        const QString ligne = QSO({.ind = u"F5YL"_s + QString(u"ABCDEFGH"_s[hasard() % 8]),
                                   .dpt = u"31"_s,
                                   .prenom = u"ANNE"_s,
                                   .mode = tire(modes),
                                   .bande = tire(bandes),
                                   .nom = u"VILLEFRANCHE DE LAURAGAIS"_s,
                                   .qsl = tire({u"*"_s, u" "_s})});
        lignes.push_back(hasard() % 15 == 0 ? ligne.left(static_cast<qsizetype>(hasard() % 112)) : ligne);
    }
    return lignes;
}

/// The points of a line by hand: on the sheet, and in the score table with the row there.
struct Points_Lents {
    int fiche = 0;
    int scores = 0;
    std::size_t rang = 0;
};

Points_Lents Compte_Lent(const QString &ligne)
{
    const QString bande = ligne.mid(63, 7).trimmed();
    const QString mode = ligne.mid(59, 3).trimmed();
    const bool vhf = bande == u"144 Mhz"_s;
    const bool uhf = bande == u"432 Mhz"_s;
    const bool hf = bandes.mid(0, 9).contains(bande);
    if (hf && mode == u"SSB"_s)
        return {30, 30, 1};
    if (hf && mode == u"CW"_s)
        return {100, 100, 2};
    if (hf && (mode == u"PSK"_s || mode == u"TTY"_s))
        return {50, 50, 3};
    if (mode == u"SSB"_s && (vhf || bande == u"50 Mhz"_s))
        return {vhf ? 150 : 0, 150, 4};
    if (vhf && mode == u"FM"_s)
        return {100, 100, 5};
    if (uhf && mode == u"SSB"_s)
        return {150, 150, 6};
    if (uhf && mode == u"FM"_s)
        return {150, 100, 7};
    return {};
}

struct Poste_DYLF : Poste_Essai {
    explicit Poste_DYLF(const Lignes_Essai &lignes, const QString &categorie = u"Bronze"_s)
    {
        fichiers.Pose(u"F9ZZY_DYLF.log"_s, En_Octets(lignes));
        etat.code_categorie = categorie;
    }
    [[nodiscard]] Etat_Fiche Fiche() const { return Charge_Fiche(poste, fiche_dylf); }
    [[nodiscard]] Etat_Liste Liste() const { return Charge_Liste(poste, liste_dylf); }
};

/// Lines that bring so many points on the sheet, a multiple of ten.
Lignes_Essai Lignes_Pour(int points)
{
    Lignes_Essai lignes;
    for (; points % 50 != 0; points -= 30)
        lignes.push_back(Sur(u"14 Mhz"_s, u"SSB"_s));
    return lignes + Fois(static_cast<std::size_t>(points / 50), Sur(u"3.5 Mhz"_s, u"PSK"_s));
}

const Lignes_Essai operatrices = {
    QSO({.ind = u"F5YLB"_s, .dpt = u"31"_s, .prenom = u"HÉLÈNE"_s, .nom = u"VILLEFRANCHE DE LAURAGAIS"_s}),
    QSO({.ind = u"F4YLA/P"_s, .dpt = u"2A"_s, .prenom = u"ANNE"_s, .nom = u"AJACCIO"_s, .qsl = u"*"_s}),
    QSO({.ind = u"F4YLA/P"_s, .dpt = u"2A"_s, .prenom = u"ANNE"_s, .date = u"01/02/08"_s, .nom = u"AJACCIO"_s}),
    QSO({.ind = u"F6YLC"_s, .prenom = u"MARIE"_s}).left(60),
};

} // namespace

TEST(Points_DYLF, chaque_bande_et_chaque_mode_ont_les_points_des_deux_tables)
{
    for (const QString &bande : bandes)
        for (const QString &mode : modes) {
            const Lignes_Texte ligne = En_Texte({Sur(bande, mode)});
            const Points_Lents attendus = Compte_Lent(ligne[0].toString());
            EXPECT_EQ(Points_De_Fiche(ligne), attendus.fiche) << bande.toStdString() << " " << mode.toStdString();
            EXPECT_EQ(Total(Compte_Scores(ligne)).points, attendus.scores);
            EXPECT_EQ(Total(Compte_Scores(ligne)).nombre, attendus.rang == 0 ? 0 : 1);
        }
}

TEST(Points_DYLF, le_432_MHz_en_FM_donne_150_sur_la_fiche_et_100_dans_les_scores)
{
    const Lignes_Texte ligne = En_Texte({Sur(u"432 Mhz"_s, u"FM"_s)});
    EXPECT_EQ(Points_De_Fiche(ligne), 150);
    EXPECT_EQ(Compte_Scores(ligne)[6].points, 100);
    EXPECT_EQ(Compte_Scores(ligne)[6].nombre, 1);
}

TEST(Points_DYLF, le_50_MHz_en_SSB_ne_donne_rien_sur_la_fiche_et_150_dans_les_scores)
{
    const Lignes_Texte ligne = En_Texte({Sur(u"50 Mhz"_s, u"SSB"_s)});
    EXPECT_EQ(Points_De_Fiche(ligne), 0);
    EXPECT_EQ(Compte_Scores(ligne)[3].points, 150);
    EXPECT_EQ(Compte_Scores(ligne)[3].nombre, 1);
}

TEST(Points_DYLF, une_frequence_libre_en_SSB_ne_compte_nulle_part)
{
    const Lignes_Texte lignes = En_Texte({Sur(u"14.123"_s, u"SSB"_s), Sur(u""_s, u"SSB"_s), u""_s});
    EXPECT_EQ(Points_De_Fiche(lignes), 0);
    EXPECT_EQ(Total(Compte_Scores(lignes)).nombre, 0);
}

TEST(Points_DYLF, un_log_au_hasard_a_les_points_comptes_a_la_main)
{
    for (const unsigned graine : {1U, 2U, 3U, 4U}) {
        const Lignes_Essai lignes = QSO_Au_Hasard(graine);
        int fiche = 0;
        std::array<Score, 8> attendus;
        for (const QString &ligne : lignes) {
            const Points_Lents points = Compte_Lent(ligne);
            fiche += points.fiche;
            ++attendus[points.rang].nombre;
            attendus[points.rang].points += points.scores;
        }
        const auto scores = Compte_Scores(En_Texte(lignes));
        EXPECT_EQ(Points_De_Fiche(En_Texte(lignes)), fiche);
        Score total;
        for (std::size_t i = 0; i < scores.size(); ++i) {
            EXPECT_EQ(scores[i].nombre, attendus[i + 1].nombre);
            EXPECT_EQ(scores[i].points, attendus[i + 1].points);
            EXPECT_GT(scores[i].nombre, 0);
            total.nombre += attendus[i + 1].nombre;
            total.points += attendus[i + 1].points;
        }
        EXPECT_EQ(Total(scores).nombre, total.nombre);
        EXPECT_EQ(Total(scores).points, total.points);
    }
}

TEST(Fiche_DYLF, trois_lignes_HF_en_CW_donnent_le_bronze_et_laissent_300_points_pour_l_argent)
{
    const Etat_Fiche etat = Poste_DYLF(Fois(3, Sur(u"7.0 Mhz"_s, u"CW"_s))).Fiche();
    EXPECT_EQ(etat.entete, u"Diplomes  DYLF"_s);
    EXPECT_TRUE(Est_Atteint(etat, u"Label4"));
    EXPECT_EQ(Texte_De(etat, u"Label4"), u"Bravo vous pouvez obtenir le diplome DYLF de Bronze"_s);
    EXPECT_EQ(Detail_De(etat.niveaux[0]), u"avec vos|300|Points"_s);
    EXPECT_EQ(Texte_De(etat, u"Label7"), u"Vous ne pouvez pas encore obtenir le diplome DYLF d'Argent"_s);
    EXPECT_EQ(Detail_De(etat.niveaux[1]), u"il vous manque|300|Points"_s);
    EXPECT_EQ(Detail_De(etat.niveaux[2]), u"il vous manque|700|Points"_s);
    EXPECT_EQ(Boutons_Actifs(etat), QStringList{u"YL_Bronze"_s});
}

TEST(Fiche_DYLF, chaque_niveau_est_atteint_a_son_seuil_et_pas_dix_points_avant)
{
    struct Seuil {
        int points;
        QString etat;
        QString nombre;
        QString atteint;
    };
    const std::vector<Seuil> seuils = {
        {300, u"Label4"_s, u"Label5"_s, u"Bravo vous pouvez obtenir le diplome DYLF de Bronze"_s},
        {600, u"Label7"_s, u"Label8"_s, u"Bravo vous pouvez obtenir le diplome DYLF d'Argent"_s},
        {1000, u"Label12"_s, u"Label13"_s, u"Bravo vous pouvez obtenir le diplome DYLF d'Or"_s},
    };
    for (const Seuil &seuil : seuils) {
        const Etat_Fiche avant = Poste_DYLF(Lignes_Pour(seuil.points - 10)).Fiche();
        EXPECT_FALSE(Est_Atteint(avant, seuil.etat));
        EXPECT_EQ(Texte_De(avant, seuil.nombre), u"10"_s);
        for (const int points : {seuil.points, seuil.points + 10}) {
            const Etat_Fiche etat = Poste_DYLF(Lignes_Pour(points)).Fiche();
            EXPECT_TRUE(Est_Atteint(etat, seuil.etat));
            EXPECT_EQ(Texte_De(etat, seuil.etat), seuil.atteint);
            EXPECT_EQ(Texte_De(etat, seuil.nombre), QString::number(points));
        }
    }
}

TEST(Fiche_DYLF, un_log_vide_montre_les_trois_seuils_et_un_log_absent_est_l_echec)
{
    QStringList details;
    for (const Etat_Niveau &niveau : Poste_DYLF({}).Fiche().niveaux)
        details.push_back(Detail_De(niveau));
    EXPECT_EQ(details, (QStringList{u"il vous manque|300|Points"_s, u"il vous manque|600|Points"_s,
                                    u"il vous manque|1000|Points"_s}));
    Poste_Essai sans_log;
    EXPECT_TRUE(Echec([&] { Charge_Fiche(sans_log.poste, fiche_dylf); }));
    EXPECT_TRUE(Echec([&] { Charge_Scores_DYLF(sans_log.poste); }));
}

TEST(Fiche_DYLF, les_boutons_donnent_leur_categorie_et_celui_de_l_or_en_capitales)
{
    for (const auto &[bouton, categorie] : std::map<QString, QString>{
             {u"YL_Bronze"_s, u"Bronze"_s}, {u"YL_Argent"_s, u"Argent"_s}, {u"YL_Or"_s, u"OR"_s}}) {
        Poste_DYLF essai({});
        Presse_Bouton(essai.poste, fiche_dylf, bouton);
        EXPECT_EQ(essai.etat.code_categorie, categorie);
        EXPECT_EQ(essai.ecrans.montres, std::vector<QString>{u"Liste_DYLF"_s});
    }
}

TEST(Liste_DYLF, toutes_les_lignes_y_sont_quel_que_soit_le_niveau)
{
    for (const QString &categorie : {u"Bronze"_s, u"Argent"_s, u"OR"_s}) {
        const Etat_Liste liste = Poste_DYLF(operatrices, categorie).Liste();
        EXPECT_EQ(liste.entete, QString(u"Diplome DYLF "_s + categorie));
        EXPECT_EQ(liste.colonnes, u"  Indicatif     Prenom         Dpt  Ville                  Date    Heure"_s);
        EXPECT_EQ(liste.compte, u" 4 YL's contactées"_s);
        EXPECT_EQ(liste.rangs, (std::vector<QString>{
                                   u" F4YLA/P       ANNE            2A  AJACCIO              01/02/08  14:48"_s,
                                   u" F4YLA/P       ANNE            2A  AJACCIO              12/05/07  14:48"_s,
                                   u" F5YLB         HÉLÈNE          31  VILLEFRANCHE DE LAUR 12/05/07  14:48"_s,
                                   u" F6YLC         MARIE                12/05/07  14:48"_s,
                               }));
    }
}

TEST(Liste_DYLF, les_rangs_d_un_log_au_hasard_sont_ses_lignes_triees)
{
    const Lignes_Essai lignes = QSO_Au_Hasard(9);
    std::vector<QString> rangs;
    for (const QString &ligne : lignes)
        rangs.push_back(u" "_s + ligne.mid(0, 12) + u"  "_s + ligne.mid(18, 15) + u" "_s + ligne.mid(13, 2) + u"  "_s +
                        ligne.mid(79, 20) + u" "_s + ligne.mid(44, 8) + u"  "_s + ligne.mid(53, 5));
    std::sort(rangs.begin(), rangs.end());
    EXPECT_EQ(Poste_DYLF(lignes).Liste().rangs, rangs);
}

TEST(Liste_DYLF, le_fichier_du_bronze_et_celui_de_l_argent_ont_leur_nom_et_leurs_octets)
{
    for (const QString &categorie : {u"Bronze"_s, u"Argent"_s}) {
        Poste_DYLF essai(operatrices, categorie);
        Enregistre_Liste(essai.poste, liste_dylf, essai.Liste());
        const QString nom = u"F9ZZY_Diplome_DYLF %1 15_11_26.txt"_s.arg(categorie);
        Compare_Attendu(u"liste_dylf.txt"_s, essai.fichiers.Octets(nom));
        EXPECT_EQ(essai.boites.messages, std::vector<QString>{u"Fichier enregistré sous le nom : "_s + nom});
    }
}

TEST(Liste_DYLF, l_or_du_bouton_n_a_pas_de_fichier)
{
    Poste_DYLF essai(operatrices, u"OR"_s);
    const auto echec = Echec([&] { Enregistre_Liste(essai.poste, liste_dylf, essai.Liste()); });
    ASSERT_TRUE(echec);
    EXPECT_TRUE(echec->Texte().contains(essai.fichiers.Chemin())) << echec->Texte().toStdString();
    EXPECT_EQ(essai.fichiers.Fichiers(), QStringList{u"F9ZZY_DYLF.log"_s});
    EXPECT_TRUE(essai.boites.messages.empty());
}

TEST(Liste_DYLF, la_page_de_chaque_niveau_a_son_titre_et_tout_autre_est_l_or)
{
    const std::map<QString, QString> titres = {
        {u"Bronze"_s, u"Diplome DYLF Bronze du 15/11/2026"_s},
        {u"Argent"_s, u"Diplome DYLF Argent du 15/11/2026"_s},
        {u"OR"_s, u"Diplome DYLF Or du 15/11/2026"_s},
        {u"HF"_s, u"Diplome DYLF Or du 15/11/2026"_s},
    };
    for (const auto &[categorie, titre] : titres) {
        Poste_DYLF essai(operatrices, categorie);
        Imprime_Liste(essai.poste, liste_dylf, essai.Liste());
        ASSERT_EQ(essai.imprimante.documents.size(), 1U);
        EXPECT_EQ(essai.imprimante.documents[0][0], titre);
        if (categorie == u"Bronze"_s)
            Compare_Attendu(u"page_dylf.txt"_s, En_Octets(essai.imprimante.documents[0]));
    }
}
