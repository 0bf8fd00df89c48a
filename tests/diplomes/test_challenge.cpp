#include "Log_Essai.h"
#include "diplomes/ADIF_Canal.h"
#include "diplomes/Charge_Challenge.h"
#include "diplomes/regles/Canal.h"
#include "faux/Attendus.h"
#include "plateforme/Erreur_Execution.h"

#include <gtest/gtest.h>

#include <map>
#include <random>

using namespace diplomes;

namespace {

/// A work of Liste_Ouvrages.csv with its nineteen separators.
QString Ouvrage(const QString &ref, const QString &canal)
{
    return ref + u";Nom;Type;45;Canal;"_s + canal + u";;;;;;;;;;;;;;\r\n"_s;
}

const QString ouvrages = u"Rev 001 du 01/01/20;;;;;;;;;;;;;;;;;;;\r\n"_s + Ouvrage(u"45-EC-102"_s, u"3"_s) +
                         Ouvrage(u"45EC103"_s, u"3"_s) + Ouvrage(u"45EC104"_s, u"33"_s) +
                         Ouvrage(u"45EC105"_s, u"2"_s) + Ouvrage(u"45EC105"_s, u"3"_s);

QString Contact(const QString &ref, const QString &ind = u"F5ABC"_s, const QString &qsl = u" "_s)
{
    return QSO({.ind = ind, .dpt = u"45"_s, .prenom = u"JEAN"_s, .ref = ref, .nom = u"ECLUSE "_s + ref, .qsl = qsl});
}

struct Poste_Canal : Poste_Essai {
    explicit Poste_Canal(const Lignes_Essai &lignes)
    {
        etat.canal_challenge = u"Canal de Briard"_s;
        etat.nb_ouvrages_canal = 41;
        etat.numero_canal = 3;
        fichiers.Pose(u"Liste_Ouvrages.csv"_s, Encode_1252(ouvrages));
        fichiers.Pose(u"F9ZZY_DOHF.log"_s, En_Octets(lignes));
    }
    [[nodiscard]] Etat_Challenge Tableau() const { return Charge_Challenge(poste); }
};

std::vector<int> Manques(int contactes, int nombre)
{
    std::vector<int> manques;
    for (const Palier &palier : Paliers(contactes, nombre))
        manques.push_back(palier.manque);
    return manques;
}

int Atteints(int contactes, int nombre)
{
    int atteints = 0;
    for (const Palier &palier : Paliers(contactes, nombre))
        atteints += palier.atteint ? 1 : 0;
    return atteints;
}

} // namespace

TEST(Paliers, un_quart_d_ouvrage_en_demande_un_entier)
{
    EXPECT_EQ(Atteints(10, 41), 0);
    EXPECT_EQ(Atteints(11, 41), 1);
    EXPECT_EQ(Atteints(19, 77), 0);
    EXPECT_EQ(Atteints(20, 77), 1);
    EXPECT_EQ(Manques(0, 41), (std::vector{10, 20, 30, 41}));
    EXPECT_EQ(Manques(0, 77), (std::vector{19, 38, 57, 77}));
}

TEST(Paliers, chacun_a_son_seuil_juste_avant_et_juste_au_dessus)
{
    for (int palier = 1; palier <= 4; ++palier) {
        EXPECT_EQ(Atteints(palier * 31 - 1, 124), palier - 1);
        EXPECT_EQ(Atteints(palier * 31, 124), palier);
        EXPECT_EQ(Atteints(palier * 31 + 1, 124), palier);
    }
}

TEST(Paliers, au_dela_du_canal_seul_100_pour_cent_est_negatif)
{
    EXPECT_EQ(Manques(43, 41), (std::vector{0, 0, 0, -2}));
    // The whole part goes down, so a quarter too many is one too many.
    EXPECT_EQ(Manques(41, 41), (std::vector{0, 0, 0, 0}));
}

TEST(Charge_Challenge, montre_chaque_contact_du_canal_dans_l_ordre_du_log)
{
    const Poste_Canal essai({Contact(u"45EC103"_s), Contact(u"45EC104"_s), Contact(u"45EC102"_s, u"F6DEF"_s, u"*"_s),
                             Contact(u"45EC999"_s), Contact(u"45EC103"_s), Contact(u"45EC105"_s)});
    const Etat_Challenge etat = essai.Tableau();
    EXPECT_EQ(etat.entete, u"Challenge oeuvres du Canal de Briard"_s);
    EXPECT_EQ(etat.rangs, (std::vector<QString>{
                              u"    1  45EC103     ECLUSE 45EC103                  12/05/07  F5ABC          "_s,
                              u"    2  45EC102     ECLUSE 45EC102                  12/05/07  F6DEF         *"_s,
                              u"    3  45EC103     ECLUSE 45EC103                  12/05/07  F5ABC          "_s,
                              u"    4  45EC105     ECLUSE 45EC105                  12/05/07  F5ABC          "_s}));
    EXPECT_EQ(etat.paliers[0].manque, 6);
}

TEST(Charge_Challenge, des_logs_au_hasard_donnent_le_compte_d_un_balayage)
{
    std::mt19937 hasard(13);
    const std::vector<QString> refs = {u"45EC102"_s, u"45EC103"_s, u"45EC104"_s, u"45EC105"_s, u"18PT001"_s, u""_s};
    const std::map<QString, bool> du_canal = {{refs[0], true}, {refs[1], true},  {refs[2], false},
                                              {refs[3], true}, {refs[4], false}, {refs[5], false}};
    for (int essai = 0; essai < 30; ++essai) {
        Lignes_Essai lignes;
        std::size_t lent = 0;
        for (int i = 0; i < essai * 4; ++i) {
            const QString &ref = refs[std::uniform_int_distribution<std::size_t>(0, refs.size() - 1)(hasard)];
            lignes.push_back(Contact(ref));
            lent += du_canal.at(ref) ? 1U : 0U;
        }
        EXPECT_EQ(Poste_Canal(lignes).Tableau().rangs.size(), lent);
    }
}

TEST(Charge_Challenge, sans_liste_ou_sans_log_c_est_un_echec)
{
    Poste_Essai essai;
    EXPECT_THROW(Charge_Challenge(essai.poste), Erreur_Execution);
    essai.fichiers.Pose(u"F9ZZY_DOHF.log"_s, En_Octets({Contact(u"45EC102"_s)}));
    EXPECT_THROW(Charge_Challenge(essai.poste), Erreur_Execution);
    essai.fichiers.Pose(u"Liste_Ouvrages.csv"_s, "Rev;;;;;;;;;;\r\n45EC102;N;T;45;C;3;;;;\r\n");
    EXPECT_THROW(Charge_Challenge(essai.poste), Erreur_Execution);
}

TEST(Ligne_ADIF_Canal, lit_quatre_colonnes_trop_tot)
{
    EXPECT_EQ(Ligne_ADIF_Canal(Contact(u"45EC102"_s)),
              u"<call:5>F5ABC <name:4>JEAN <band:0> <mode:3>:48 <qso_date:7>20/0 12 <time_on:4>/0 1 "
              "<rst_rcvd:2>hz <rst_sent:2>59 <comment:24>45EC1 59  ECLUSE 45EC102 <eor>"_s);
}

TEST(Ligne_ADIF_Canal, une_ligne_de_l_ancienne_forme_donne_ses_valeurs)
{
    const QString ligne =
        u"F5ABC        45   JEAN            45EC1 12/05/07 14:48 SSB 14 Mhz  59  57  ECLUSE DE BRIARE"_s;
    EXPECT_EQ(Ligne_ADIF_Canal(ligne),
              u"<call:5>F5ABC <name:4>JEAN <band:3>20m <mode:3>SSB <qso_date:8>20070512 <time_on:4>1448 "
              "<rst_rcvd:2>59 <rst_sent:2>57 <comment:22>45EC1 ECLUSE DE BRIARE <eor>"_s);
}

TEST(ADIF_Challenge, les_quatre_fichiers_prennent_la_premiere_ligne_de_chaque_debut_de_reference)
{
    Poste_Canal essai({Contact(u"45EC104"_s, u"F1AAA"_s), Contact(u"45EC102"_s, u"F6DEF"_s), Contact(u"45EC103"_s)});
    const Etat_Challenge etat = essai.Tableau();
    ASSERT_EQ(etat.rangs.size(), 2U);
    for (const Palier &palier : etat.paliers) {
        ADIF_Challenge(essai.poste, etat, palier.texte);
        const QString nom = u"F9ZZY Diplome Challenge oeuvres du Canal de Briard "_s + palier.texte + u".adi"_s;
        EXPECT_EQ(essai.boites.messages.back(), u"Le fichier a été enregistré sous le nom : "_s + nom);
        Compare_Attendu(u"canal.adi"_s, essai.fichiers.Octets(nom));
    }
    EXPECT_EQ(essai.fichiers.Fichiers().filter(u".adi"_s).size(), 4);
}

TEST(ADIF_Challenge, un_fichier_du_meme_nom_est_remplace_et_le_log_est_relu)
{
    Poste_Canal essai({Contact(u"45EC102"_s)});
    const Etat_Challenge etat = essai.Tableau();
    const QString nom = u"F9ZZY Diplome Challenge oeuvres du Canal de Briard Palier 25%.adi"_s;
    essai.fichiers.Pose(nom, QByteArray(5000, '#'));
    essai.fichiers.Pose(u"F9ZZY_DOHF.log"_s, {});
    ADIF_Challenge(essai.poste, etat, u"Palier 25%");
    EXPECT_EQ(
        essai.fichiers.Octets(nom),
        QByteArray("Vorlain_DOHF\r\n\r\nExportation du log de la station F9ZZY au format ADIF\r\n\r\n\r\n<eoh>\r\n"));
}
