#include "faux/Echec.h"
#include "faux/Impression.h"
#include "log/Catalogue.h"
#include "log/Charge_Log.h"
#include "log/Ecritures_Log.h"
#include "log/Recherches_Log.h"
#include "outils/Log_Essai.h"
#include "plateforme/Windows_1252.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QByteArray Tous_Les_Octets()
{
    QByteArray octets;
    for (int i = 0; i < 256; ++i)
        octets += static_cast<char>(i);
    return octets;
}

/// A log with everything that a hand or another program may have left in it, and one good line.
QByteArray Log_Malmene(const QString &bonne)
{
    return "\r\n" + QByteArray("F5ABC\r\n") + QByteArray(5000, 'x') + "\r\n" + Tous_Les_Octets() + "\r\n" +
           bonne.toLatin1() + "\n" + QByteArray(111, '\0') + "\n\r\r\n" + bonne.toLatin1().left(60) + "\r\nsans fin";
}

class Mauvaise_Entree : public ::testing::Test {
protected:
    Mauvaise_Entree() { Pose(Log_Malmene(bonne)); }

    Poste_Essai essai;
    const QString journal = u"F9ZZY_DFCF.log"_s;
    const QString bonne = QSO({.dpt = u"77"_s, .ref = u"77001"_s});
    const QString nouvelle = QSO({.ref = u"77002"_s, .date = u"13/05/07"_s});

    void Pose(const QByteArray &octets)
    {
        essai.fichiers.Pose(journal, octets);
        essai.Ouvre(u"DFCF"_s);
    }
    [[nodiscard]] std::vector<QString> Lignes() const { return En_Lignes(essai.dossier.Lit(journal)); }
};

} // namespace

TEST_F(Mauvaise_Entree, charger_ne_change_pas_un_octet)
{
    Charge_Log(essai.poste, Diplome::DFCF);
    EXPECT_EQ(essai.fichiers.Octets(journal), Log_Malmene(bonne));
    ASSERT_EQ(essai.ecran.liste.size(), Lignes().size());
    for (std::size_t rang = 0; rang < essai.ecran.liste.size(); ++rang)
        EXPECT_LE(Ligne_Affichage(rang + 1, essai.ecran.liste[rang]).size(), colonnes_affichage::longueur);
}

TEST_F(Mauvaise_Entree, ajouter_garde_tous_les_octets)
{
    Ajoute_Ligne(essai.poste, nouvelle, Diplome::DFCF);
    EXPECT_EQ(essai.fichiers.Octets(journal), Log_Malmene(bonne) + "\r\n" + nouvelle.toLatin1() + "\r\n");
}

TEST_F(Mauvaise_Entree, remplacer_supprimer_inserer_gardent_les_autres_lignes)
{
    std::vector<QString> attendues = Lignes();
    const auto place = std::find(attendues.begin(), attendues.end(), bonne);
    ASSERT_NE(place, attendues.end());

    *place = nouvelle;
    Remplace_Ligne(essai.poste, nouvelle, bonne);
    EXPECT_EQ(Lignes(), attendues);

    const QString tot = QSO({.date = u"01/01/07"_s});
    attendues.insert(place, tot);
    Insere_Ligne(essai.poste, tot);
    EXPECT_EQ(Lignes(), attendues);

    std::erase(attendues, nouvelle);
    Supprime_Ligne(essai.poste, nouvelle, Diplome::DFCF);
    EXPECT_EQ(Lignes(), attendues);
}

TEST_F(Mauvaise_Entree, les_recherches_passent_sur_les_lignes_abimees)
{
    EXPECT_EQ(Cherche_Ref(essai.poste, Diplome::DFCF, u"77001").date, u"12/05/07"_s);
    EXPECT_TRUE(Cherche_Dpt_Bande_Mode(essai.poste, u"77", u"14 Mhz", u"SSB").oui);
}

TEST_F(Mauvaise_Entree, un_log_sans_cr_et_sans_derniere_fin_est_lu_entier)
{
    Pose(bonne.toLatin1() + "\n" + nouvelle.toLatin1());
    Charge_Log(essai.poste, Diplome::DFCF);
    EXPECT_EQ(En_Lignes(Texte_Log({bonne, nouvelle})), Lignes());
    Ajoute_Ligne(essai.poste, bonne, Diplome::DFCF);
    EXPECT_EQ(Lignes(), (std::vector<QString>{bonne, nouvelle, bonne}));
}

TEST_F(Mauvaise_Entree, tous_les_diplomes_chargent_des_octets_quelconques)
{
    essai.fichiers.Pose(u"Liste_TDC.csv"_s, "");
    essai.etat.station.annee_ch_dfcf = essai.etat.station.annee_ch_dmf = u"2026"_s;
    const QByteArray octets = Log_Malmene(bonne) + "\r\n" + Log_Malmene(QSO({.dpt = u"45"_s, .ref = u"TC102"_s}));
    for (const QStringView code : codes_diplome) {
        const QString nom = u"F9ZZY_" + code + (Est_Challenge(Diplome_De(code)) ? u"_2026.log" : u".log");
        essai.fichiers.Pose(nom, octets);
        EXPECT_FALSE(Echec([&] { Charge_Log(essai.poste, Diplome_De(code)); })) << code.toString().toStdString();
        EXPECT_EQ(essai.dossier.Lit_Lignes(nom).size(), Lignes_Texte(Decode_1252(octets)).size());
    }
}

TEST_F(Mauvaise_Entree, un_log_qui_est_un_repertoire_laisse_une_liste_vide)
{
    essai.fichiers.Pose(u"F9ZZY_DMF.log"_s, Texte_Log({bonne}).toLatin1());
    Charge_Log(essai.poste, Diplome::DMF);
    ASSERT_TRUE(QDir(essai.fichiers.Chemin()).mkdir(u"F9ZZY_DLF.log"_s));
    const auto echec = Echec([&] { Charge_Log(essai.poste, Diplome::DLF); });
    ASSERT_TRUE(echec);
    EXPECT_EQ(echec->Texte(), essai.fichiers.Chemin(u"F9ZZY_DLF.log"_s) + u" (c'est un répertoire)");
    EXPECT_TRUE(essai.ecran.liste.empty());
}
