#include "faux/Donnees_Essai.h"
#include "faux/Echec.h"
#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "faux/QSO_Essai.h"
#include "log/Charge_Log.h"
#include "log/Ecritures_Log.h"
#include "outils/Log_Essai.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString nouvelle =
    QSO({.ind = u"F8NEW"_s, .dpt = u"63"_s, .prenom = u"LÉA"_s, .ref = u"63087"_s, .nom = u"C. DE TOURNOËL"_s});

class Ecritures : public ::testing::Test {
protected:
    Ecritures()
    {
        essai.Ouvre(u"DFCF"_s);
        essai.fichiers.Pose(journal, Donnee(u"journal.log"_s));
    }

    Poste_Essai essai;
    const QString journal = u"F9ZZY_DFCF.log"_s;

    [[nodiscard]] QString Ligne(std::size_t rang) const { return essai.dossier.Lit_Lignes(journal)[rang].toString(); }

    /// The log equals the golden file, no temporary is left, and the list was reloaded before its last entry was taken.
    void Attend_Log(const QString &attendu)
    {
        EXPECT_EQ(essai.fichiers.Octets(journal), Attendu(attendu));
        EXPECT_EQ(essai.fichiers.Fichiers(), QStringList{journal});
        EXPECT_EQ(essai.ecran.appels, (std::vector<QString>{u"Active_Ind_A"_s, u"Selectionne_Derniere"_s}));
        const Lignes_Texte lues = essai.dossier.Lit_Lignes(journal);
        ASSERT_EQ(essai.ecran.liste.size(), lues.size());
        EXPECT_EQ(essai.ecran.selection, Ligne_Affichage(lues.size(), lues[lues.size() - 1]));
    }
};

} // namespace

TEST_F(Ecritures, ajoute_a_la_fin)
{
    Ajoute_Ligne(essai.poste, nouvelle, Diplome::DFCF);
    Attend_Log(u"ajoute.log"_s);
}

TEST_F(Ecritures, ajoute_au_log_du_code_et_non_du_diplome_courant)
{
    essai.Ouvre(u"DMF"_s);
    Ajoute_Ligne(essai.poste, nouvelle, Diplome::DFCF);
    Attend_Log(u"ajoute.log"_s);
}

TEST_F(Ecritures, remplace_la_premiere_des_lignes_egales)
{
    Remplace_Ligne(essai.poste, nouvelle, Ligne(1));
    Attend_Log(u"remplace.log"_s);
}

TEST_F(Ecritures, remplace_une_ligne_disparue_par_un_ajout)
{
    Remplace_Ligne(essai.poste, nouvelle, QSO({.ref = u"99999"_s}));
    Attend_Log(u"ajoute.log"_s);
    EXPECT_EQ(essai.boites.messages,
              std::vector<QString>{u"L'ancien QSO n'est plus dans le log, le QSO modifié a été ajouté à la fin"_s});
}

TEST_F(Ecritures, remplace_et_insere_dans_le_log_du_diplome_courant)
{
    essai.Ouvre(u"DMF"_s);
    essai.fichiers.Pose(u"F9ZZY_DMF.log"_s, "");
    essai.ecran.dip_a = u"DFCF"_s;
    Remplace_Ligne(essai.poste, nouvelle, u"");
    Insere_Ligne(essai.poste, nouvelle);
    EXPECT_EQ(essai.fichiers.Octets(journal), Donnee(u"journal.log"_s));
    EXPECT_EQ(essai.dossier.Lit(u"F9ZZY_DMF.log"_s), Texte_Log({nouvelle, nouvelle}));
}

TEST_F(Ecritures, supprime_la_premiere_des_lignes_egales)
{
    Supprime_Ligne(essai.poste, Ligne(1), Diplome::DFCF);
    Attend_Log(u"supprime.log"_s);
}

TEST_F(Ecritures, supprime_dans_le_log_du_code)
{
    essai.Ouvre(u"DMF"_s);
    Supprime_Ligne(essai.poste, Ligne(1), Diplome::DFCF);
    Attend_Log(u"supprime.log"_s);
}

TEST_F(Ecritures, supprime_une_ligne_disparue_ne_change_rien_recharge_la_liste_et_le_dit)
{
    essai.ecran.liste = Lignes_Texte(Texte_Log({QSO({.ref = u"99999"_s})}));
    Supprime_Ligne(essai.poste, QSO({.ref = u"99999"_s}), Diplome::DFCF);
    EXPECT_EQ(essai.fichiers.Octets(journal), Donnee(u"journal.log"_s));
    EXPECT_EQ(essai.ecran.liste.size(), essai.dossier.Lit_Lignes(journal).size());
    EXPECT_EQ(essai.boites.messages, std::vector<QString>{u"Ce QSO n'est plus dans le log, rien n'a été supprimé"_s});
}

TEST_F(Ecritures, une_ligne_sans_ses_derniers_blancs_ou_trop_longue_se_supprime_et_se_remplace)
{
    const QString ligne = QSO({.dpt = u"97"_s, .ref = u"97101"_s, .nom = u"C. DE VAUX"_s});
    const QString deborde = QString(ligne).replace(15, 1, u"1"_s) + u" et la suite";
    const QByteArray abimees = deborde.toLatin1() + "\r\n" + ligne.first(89).toLatin1() + "\r\n";
    for (const QByteArray &autre : {QByteArray(), QByteArray("court\r\n")}) {
        essai.fichiers.Pose(journal, autre + abimees);
        Supprime_Ligne(essai.poste, ligne, Diplome::DFCF);
        EXPECT_EQ(essai.fichiers.Octets(journal), autre + ligne.first(89).toLatin1() + "\r\n");
        Remplace_Ligne(essai.poste, nouvelle, ligne);
        EXPECT_EQ(essai.fichiers.Octets(journal), autre + nouvelle.toLatin1() + "\r\n");
        EXPECT_TRUE(essai.boites.messages.empty());
    }
}

TEST_F(Ecritures, les_autres_lignes_gardent_leurs_octets)
{
    const QByteArray deborde = QSO({.dpt = u"97"_s}).replace(15, 1, u"1"_s).toLatin1() + " et la suite\r\n";
    const QByteArray courte = QSO({}).first(78).toLatin1() + "\r\n";
    const QString visee = QSO({.ref = u"97101"_s});
    essai.fichiers.Pose(journal, deborde + visee.toLatin1() + "\r\n" + courte);
    Remplace_Ligne(essai.poste, nouvelle, visee);
    EXPECT_EQ(essai.fichiers.Octets(journal), deborde + nouvelle.toLatin1() + "\r\n" + courte);
    Supprime_Ligne(essai.poste, nouvelle, Diplome::DFCF);
    EXPECT_EQ(essai.fichiers.Octets(journal), deborde + courte);
}

TEST_F(Ecritures, une_tour_montree_sans_ses_blancs_de_devant_se_supprime)
{
    essai.Ouvre(u"TDC"_s);
    essai.fichiers.Pose(u"F9ZZY_TDC.log"_s, Texte_Log({QSO({.ref = u" 11-008"_s})}).toLatin1());
    Charge_Log(essai.poste, Diplome::TDC);
    Supprime_Ligne(essai.poste, Ligne_Log_Affichee(Ligne_Affichage(1, essai.ecran.liste[0])), Diplome::TDC);
    EXPECT_EQ(essai.fichiers.Octets(u"F9ZZY_TDC.log"_s), "");
}

TEST_F(Ecritures, supprime_la_derniere_ligne_laisse_un_log_vide)
{
    essai.fichiers.Pose(journal, Texte_Log({nouvelle}).toLatin1());
    Supprime_Ligne(essai.poste, nouvelle, Diplome::DFCF);
    EXPECT_EQ(essai.fichiers.Octets(journal), "");
    EXPECT_TRUE(essai.ecran.liste.empty());
    EXPECT_EQ(essai.ecran.selection, QString());
}

TEST_F(Ecritures, insere_devant_les_lignes_de_la_meme_minute)
{
    Insere_Ligne(essai.poste, nouvelle);
    Attend_Log(u"insere_meme_minute.log"_s);
}

TEST_F(Ecritures, insere_avant_l_an_2000)
{
    Insere_Ligne(essai.poste, QSO({.ind = u"F4OLD"_s,
                                   .dpt = u"63"_s,
                                   .ref = u"63088"_s,
                                   .date = u"31/12/99"_s,
                                   .heure = u"12:00"_s,
                                   .nom = u"C. €"_s}));
    Attend_Log(u"insere_ancien.log"_s);
}

TEST_F(Ecritures, insere_dans_un_log_vide)
{
    essai.fichiers.Pose(journal, "");
    Insere_Ligne(essai.poste, nouvelle);
    EXPECT_EQ(essai.dossier.Lit(journal), Texte_Log({nouvelle}));
}

TEST_F(Ecritures, un_temporaire_d_une_panne_ne_gene_pas)
{
    essai.fichiers.Pose(u"Temporaire.txt"_s, "reste");
    essai.fichiers.Pose(u"Temporaire6.txt"_s, "reste");
    Supprime_Ligne(essai.poste, Ligne(1), Diplome::DFCF);
    Insere_Ligne(essai.poste, nouvelle);
    EXPECT_EQ(essai.fichiers.Fichiers(), QStringList{journal});
}

TEST_F(Ecritures, un_log_absent_est_dit_et_reste_absent)
{
    essai.Ouvre(u"DMF"_s);
    for (const auto &etape : std::vector<std::function<void()>>{
             [&] { Remplace_Ligne(essai.poste, nouvelle, nouvelle); }, [&] { Insere_Ligne(essai.poste, nouvelle); },
             [&] { Supprime_Ligne(essai.poste, nouvelle, Diplome::DMF); }})
        EXPECT_EQ(Echec(etape)->La_Cause(), Cause::Fichier_Introuvable);
    EXPECT_FALSE(essai.fichiers.Existe(u"F9ZZY_DMF.log"_s));
}

TEST_F(Ecritures, un_log_qui_est_un_repertoire_est_dit)
{
    essai.Ouvre(u"DMF"_s);
    ASSERT_TRUE(QDir(essai.fichiers.Chemin()).mkdir(u"F9ZZY_DMF.log"_s));
    for (const auto &etape : std::vector<std::function<void()>>{
             [&] { Ajoute_Ligne(essai.poste, nouvelle, Diplome::DMF); },
             [&] { Remplace_Ligne(essai.poste, nouvelle, nouvelle); }, [&] { Insere_Ligne(essai.poste, nouvelle); },
             [&] { Supprime_Ligne(essai.poste, nouvelle, Diplome::DMF); }}) {
        const auto echec = Echec(etape);
        ASSERT_TRUE(echec);
        EXPECT_TRUE(echec->Texte().contains(u"F9ZZY_DMF.log (c'est un répertoire)")) << echec->Texte().toStdString();
    }
}

TEST(Insere, avant_la_premiere_ligne_du_meme_moment_ou_d_apres)
{
    const auto le = [](const QString &date, const QString &heure, const QString &ind) {
        return QSO({.ind = ind, .date = date, .heure = heure});
    };
    const QString a = le(u"12/05/07"_s, u"14:47"_s, u"A"_s);
    const QString b = le(u"12/05/07"_s, u"14:48"_s, u"B"_s);
    const QString c = le(u"12/05/07"_s, u"14:48"_s, u"C"_s);
    const QString d = le(u"13/05/07"_s, u"00:00"_s, u"D"_s);
    const QString n = le(u"12/05/07"_s, u"14:48"_s, u"N"_s);
    EXPECT_EQ(Texte_Insere(Lignes_Texte(Texte_Log({a, b, c, d})), n), Texte_Log({a, n, b, c, d}));
    EXPECT_EQ(Texte_Insere(Lignes_Texte(Texte_Log({a})), n), Texte_Log({a, n}));
    EXPECT_EQ(Texte_Insere(Lignes_Texte(Texte_Log({d})), n), Texte_Log({n, d}));
    // In a log out of order the first such line counts.
    EXPECT_EQ(Texte_Insere(Lignes_Texte(Texte_Log({d, a, b})), n), Texte_Log({n, d, a, b}));
}

TEST(Insere, un_31_decembre_99_passe_devant_l_an_2000_et_50_est_1950)
{
    const QString an_2000 = QSO({.date = u"01/01/00"_s});
    const QString an_1999 = QSO({.date = u"31/12/99"_s});
    const QString an_1950 = QSO({.date = u"01/01/50"_s});
    const QString an_2049 = QSO({.date = u"31/12/49"_s});
    EXPECT_EQ(Texte_Insere(Lignes_Texte(Texte_Log({an_2000})), an_1999), Texte_Log({an_1999, an_2000}));
    EXPECT_EQ(Texte_Insere(Lignes_Texte(Texte_Log({an_1999})), an_1950), Texte_Log({an_1950, an_1999}));
    EXPECT_EQ(Texte_Insere(Lignes_Texte(Texte_Log({an_2000})), an_2049), Texte_Log({an_2000, an_2049}));
}

TEST(Insere, les_lignes_sans_moment_sont_passees)
{
    const QString avant = QSO({.date = u"01/01/07"_s});
    const QString apres = QSO({.date = u"01/01/09"_s});
    EXPECT_EQ(Texte_Insere(Lignes_Texte(Texte_Log({u""_s, avant, u"abc"_s, apres})), nouvelle),
              Texte_Log({u""_s, avant, u"abc"_s, nouvelle, apres}));
}

TEST(Insere, une_nouvelle_ligne_sans_moment_va_a_la_fin)
{
    const QString avant = QSO({.date = u"01/01/07"_s});
    const QString sans_moment = QSO({.date = u"AB/CD/EF"_s});
    EXPECT_EQ(Texte_Insere(Lignes_Texte(Texte_Log({avant, avant})), sans_moment),
              Texte_Log({avant, avant, sans_moment}));
}

TEST(Remplace, la_premiere_ligne_aux_memes_champs_est_remplacee)
{
    const QString ligne = QSO({.ind = u"F5ABC"_s});
    const QString longue = ligne + u' ';
    const QString autre = QSO({.ind = u"F5ABC"_s, .qsl = u"*"_s});
    EXPECT_EQ(Texte_Remplace(Lignes_Texte(Texte_Log({autre, longue, ligne})), nouvelle, ligne),
              Texte_Log({autre, nouvelle, ligne}));
    EXPECT_EQ(Texte_Supprime(Lignes_Texte(Texte_Log({autre, longue, ligne})), ligne), Texte_Log({autre, ligne}));
}
