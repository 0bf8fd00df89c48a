#include "Ouvrages_Essai.h"
#include "diplomes/ADIF_Ouvrages.h"
#include "diplomes/Charge_Liste.h"
#include "diplomes/regles/Ligne_ADIF_Ouvrage.h"
#include "diplomes/tables/Tables.h"
#include "faux/Attendus.h"
#include "faux/Echec.h"

#include <gtest/gtest.h>

#include <map>

using namespace diplomes;

namespace {

const QByteArray entete_dohf = "Vorlain_DOHF\r\n"
                               "\r\n"
                               "Exportation du log de la station F9ZZY au format ADIF\r\n"
                               "\r\n"
                               "\r\n"
                               "<eoh>\r\n";

struct Poste_Barrages : Poste_Essai {
    explicit Poste_Barrages(const Lignes_Essai &lignes)
    {
        fichiers.Pose(u"F9ZZY_DOHF.log"_s, En_Octets(lignes));
        etat.code_categorie = u"BA"_s;
        etat.categorie_liste = u"BA"_s;
        etat.libelle_categorie = u"Barrages"_s;
        etat.niveau_liste = u"Niveau 1"_s;
    }
};

} // namespace

TEST(Ligne_ADIF_Ouvrage, les_champs_sont_dans_leur_ordre_et_sig_info_porte_la_longueur_de_la_reference)
{
    const QString ligne = QSO({.ind = u"F5ABC/P"_s,
                               .dpt = u"45"_s,
                               .prenom = u"RENÉ"_s,
                               .ref = u"45EC102"_s,
                               .date = u"31/12/98"_s,
                               .heure = u"07:05"_s,
                               .mode = u"CW"_s,
                               .bande = u"7.0 Mhz"_s,
                               .rstr = u"599"_s,
                               .rste = u"57"_s,
                               .nom = u"ECLUSE DE LA FORÊT"_s,
                               .qsl = u"*"_s});
    EXPECT_EQ(Ligne_ADIF_Ouvrage(ligne),
              u"<call:7>F5ABC/P <state:2>45 <sig:7>45EC102 <name:4>RENÉ <band:3>40m <mode:2>CW "
              u"<qso_date:8>20981231 <time_on:4>0705 <rst_rcvd:3>599 <rst_sent:2>57 "
              u"<sig_info:20>7 ECLUSE DE LA FORÊT <eor>"_s);
}

TEST(Ligne_ADIF_Ouvrage, six_bandes_ont_une_longueur_d_onde_et_les_autres_rien)
{
    const std::map<QString, QString> attendues = {
        {u"3.5 Mhz"_s, u"<band:3>80m "_s}, {u"7.0 Mhz"_s, u"<band:3>40m "_s}, {u"14 Mhz"_s, u"<band:3>20m "_s},
        {u"21 Mhz"_s, u"<band:3>15m "_s},  {u"28 Mhz"_s, u"<band:3>10m "_s},  {u"144 Mhz"_s, u"<band:2>2m "_s},
        {u"1.8 Mhz"_s, u"<band:0> "_s},    {u"10 Mhz"_s, u"<band:0> "_s},     {u"18 Mhz"_s, u"<band:0> "_s},
        {u"24 Mhz"_s, u"<band:0> "_s},     {u"50 Mhz"_s, u"<band:0> "_s},     {u"432 Mhz"_s, u"<band:0> "_s},
        {u"14.123"_s, u"<band:0> "_s},     {u""_s, u"<band:0> "_s},
    };
    for (const auto &[bande, element] : attendues)
        EXPECT_TRUE(Ligne_ADIF_Ouvrage(QSO({.bande = bande})).contains(element)) << bande.toStdString();
}

TEST(Ligne_ADIF_Ouvrage, une_ligne_coupee_donne_des_champs_vides)
{
    EXPECT_EQ(Ligne_ADIF_Ouvrage(Ouvrage(u"45EC102"_s).left(20)),
              u"<call:5>F5ABC <state:2>45 <sig:0> <name:2>JE <band:0> <mode:0> <qso_date:2>20 <time_on:0> "
              u"<rst_rcvd:0> <rst_sent:0> <sig_info:1>0 <eor>"_s);
}

TEST(ADIF_DOHF, des_references_bien_formees_ne_laissent_que_l_en_tete)
{
    Poste_Barrages essai({Ouvrage(u"45BA102"_s), Ouvrage(u"2ABA001"_s)});
    Etat_Liste etat = Charge_Liste(essai.poste, liste_dohf);
    ADIF_Ouvrages(essai.poste, liste_dohf, etat);
    const QString nom = u"F9ZZY Diplome Niveau 1 Barrages le 15_11_26.adi"_s;
    EXPECT_EQ(essai.fichiers.Octets(nom), entete_dohf);
    EXPECT_EQ(essai.boites.messages, std::vector<QString>{u"Le fichier a été enregistré sous le nom : "_s + nom});
    EXPECT_EQ(essai.fichiers.Fichiers(), (QStringList{nom, u"F9ZZY_DOHF.log"_s}));
}

TEST(ADIF_DOHF, la_categorie_est_cherchee_a_la_place_du_departement)
{
    Poste_Barrages essai({Ouvrage(u"BA102"_s), Ouvrage(u"45BA102"_s), Ouvrage(u"BAEC001"_s, u"*"_s)});
    Etat_Liste etat = Charge_Liste(essai.poste, liste_dohf);
    ADIF_Ouvrages(essai.poste, liste_dohf, etat);
    const QByteArray octets = essai.fichiers.Octets(u"F9ZZY Diplome Niveau 1 Barrages le 15_11_26.adi"_s);
    Compare_Attendu(u"barrages.adi"_s, octets);
    EXPECT_EQ(octets.count("<eor>"), 2);
}

TEST(ADIF_DOHF, une_barre_devient_un_souligne_aussi_a_l_ecran_et_deux_fois_donnent_le_meme_fichier)
{
    Poste_Barrages essai({Ouvrage(u"33PT010"_s)});
    essai.etat.libelle_categorie = u"Ponts / Ponts Cannaux / Tunnels"_s;
    Etat_Liste etat = Charge_Liste(essai.poste, liste_dohf);
    ADIF_Ouvrages(essai.poste, liste_dohf, etat);
    EXPECT_EQ(etat.entete, u"Diplome Niveau 1 Ponts _ Ponts Cannaux _ Tunnels"_s);
    ADIF_Ouvrages(essai.poste, liste_dohf, etat);
    EXPECT_EQ(etat.entete, u"Diplome Niveau 1 Ponts _ Ponts Cannaux _ Tunnels"_s);
    const QString nom = u"F9ZZY Diplome Niveau 1 Ponts _ Ponts Cannaux _ Tunnels le 15_11_26.adi"_s;
    EXPECT_EQ(essai.fichiers.Fichiers(), (QStringList{nom, u"F9ZZY_DOHF.log"_s}));
    const QString message = u"Le fichier a été enregistré sous le nom : "_s + nom;
    EXPECT_EQ(essai.boites.messages, (std::vector<QString>{message, message}));
}

TEST(ADIF_DOHF, le_log_est_relu_et_les_rangs_ne_comptent_pas)
{
    Poste_Barrages essai({Ouvrage(u"45BA102"_s)});
    Etat_Liste etat = Charge_Liste(essai.poste, liste_dohf);
    essai.fichiers.Pose(u"F9ZZY_DOHF.log"_s, En_Octets({Ouvrage(u"BA999"_s)}));
    ADIF_Ouvrages(essai.poste, liste_dohf, etat);
    EXPECT_TRUE(essai.fichiers.Octets(u"F9ZZY Diplome Niveau 1 Barrages le 15_11_26.adi"_s).contains("<sig:5>BA999 "));
}

TEST(ADIF_DOHF, un_log_qui_n_est_plus_la_est_l_echec_et_rien_n_est_ecrit)
{
    Poste_Barrages essai({});
    Etat_Liste etat = Charge_Liste(essai.poste, liste_dohf);
    essai.dossier.Supprime(u"F9ZZY_DOHF.log"_s);
    EXPECT_TRUE(Echec([&] { ADIF_Ouvrages(essai.poste, liste_dohf, etat); }));
    EXPECT_EQ(essai.fichiers.Fichiers(), QStringList());
    EXPECT_TRUE(essai.boites.messages.empty());
}
