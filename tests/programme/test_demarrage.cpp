#include "programme/Programme_Essai.h"

#include "faux/Disque_Qui_Refuse.h"
#include "faux/QSO_Essai.h"

#include <QComboBox>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

class Demarrage : public Programme_Essai {
protected:
    QString Titre_Menu(const QString &nom) { return Controle_Nomme<QAction>(nom).text(); }
    bool Coche(const QString &nom) { return Controle_Nomme<QAction>(nom).isChecked(); }
    int Indice(const QString &nom) { return Controle_Nomme<QComboBox>(nom).currentIndex(); }
};

} // namespace

TEST_F(Demarrage, la_premiere_fois_les_deux_messages_viennent_dans_l_ordre_et_aucun_log_ne_se_charge)
{
    fichiers.Pose(u"FXXXX_Ch_DFCF_2000.log"_s, QSO({.ref = u"77001A"_s}).toLatin1() + "\r\n");
    const std::vector<QString> messages = Ouvre();
    EXPECT_EQ(messages,
              (std::vector<QString>{
                  u"Configurez le répértoire de sauvegarde hebdomadaire de vos log"_s,
                  u"\n         Premiere installation, vous devez entrer votre Indicatif\n\nPour cela dans la barre des "
                  u"menus allez dans 'Station' puis 'Nouvel Indicatif'."_s}));
    EXPECT_TRUE(QSO_Affiches().empty());
    EXPECT_NE(conduite::Fenetre(u"Sauvegarde_Log"_s), nullptr);
}

TEST_F(Demarrage, la_station_reprend_ses_choix_son_log_et_son_titre)
{
    Installe_Station(u"DLF"_s);
    Regle(section, u"bande Utilisee"_s, u"4"_s);
    Regle(section, u"Mode Utilise"_s, u"1"_s);
    EXPECT_TRUE(Ouvre().empty());
    EXPECT_EQ(Ecran().windowTitle(), u"   Vorlain  Revision V1.2.5c"_s);
    EXPECT_EQ(Texte(Controle::Bande_A), u"14 Mhz"_s);
    EXPECT_EQ(Texte(Controle::Mode_A), u"CW"_s);
    EXPECT_EQ(Texte(Controle::RSTR_A), u"599"_s);
    EXPECT_EQ(Texte(Controle::Dip_A), u"DLF"_s);
    EXPECT_EQ(Texte(Controle::Type_Ref), u"DLF"_s);
    EXPECT_EQ(Texte(Controle::Label_Liste_QSO),
              u"   N°   Indicatif     Dpt Prénom         Réference    Date     QTR   Mode   QRG   RstR RstE   Mom "
              u"Activité / Ville         QSL"_s);
    EXPECT_FALSE(Est_Actif(Controle::Annule_Saisie));
    EXPECT_EQ(Reglage(u"Setup "_s, u"Revision"_s), u"V1.2.5c"_s);
    EXPECT_EQ(Reglage(u"Setup "_s, u"Chemin Repertoire"_s), fichiers.Chemin());
}

TEST_F(Demarrage, les_logs_qu_un_import_coupe_laissa_de_cote_reviennent_et_c_est_dit)
{
    Installe_Station(u"PC"_s);
    const QByteArray log = QSO({.ref = u"77001"_s}).toLatin1() + "\r\n";
    std::vector<QString> attendus;
    for (const QStringView code : codes_diplome) {
        const QString nom = u"F9ZZY_"_s + code;
        ASSERT_TRUE(QFile::remove(fichiers.Chemin(nom + u".log")));
        fichiers.Pose(nom + u".bak", log);
        attendus.push_back(u"Une importation précédente a été interrompue, le log "_s + nom + u".log a été rétabli");
    }
    EXPECT_EQ(Ouvre(), attendus);
    for (const QStringView code : codes_diplome) {
        EXPECT_EQ(fichiers.Octets(u"F9ZZY_"_s + code + u".log"), log);
        EXPECT_FALSE(fichiers.Existe(u"F9ZZY_"_s + code + u".bak"));
    }
    EXPECT_EQ(QSO_Affiches().size(), 1U);
}

TEST_F(Demarrage, un_log_de_cote_qui_ne_peut_pas_revenir_n_est_pas_couvert_par_un_log_vide)
{
    Installe_Station(u"DLF"_s);
    ASSERT_TRUE(QFile::remove(fichiers.Chemin(u"F9ZZY_PC.log"_s)));
    // A folder: it bears the name, and nobody reads it.
    ASSERT_TRUE(QDir(fichiers.Chemin()).mkdir(u"F9ZZY_PC.bak"_s));
    const std::vector<QString> messages = Ouvre();
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_TRUE(messages[0].startsWith(u"Une importation précédente a été interrompue, le log F9ZZY_PC.log n'a pas pu "
                                       u"être rétabli :\n"_s))
        << messages[0].toStdString();
    EXPECT_FALSE(fichiers.Existe(u"F9ZZY_PC.log"_s));
}

TEST_F(Demarrage, le_dernier_qso_du_log_donne_bande_et_mode_et_l_ecran_est_au_repos)
{
    Installe_Station(u"DLF"_s);
    fichiers.Pose(u"F9ZZY_DLF.log"_s,
                  QSO({.ref = u"21001"_s, .mode = u"CW"_s, .bande = u"50 Mhz"_s}).toLatin1() + "\r\n");
    Ouvre();
    EXPECT_EQ(QSO_Affiches().size(), 1U);
    EXPECT_EQ(Texte(Controle::Bande_A), u"50 Mhz"_s);
    EXPECT_EQ(Texte(Controle::RSTR_A), u"599"_s);
    EXPECT_EQ(Texte(Controle::Ind_A), u""_s);
    EXPECT_EQ(Texte(Controle::Mode_Aff), u"Saisie QSO"_s);
    EXPECT_EQ(Reglage(section, u"bande Utilisee"_s), u"(absent)"_s);
}

TEST_F(Demarrage, l_indicatif_se_montre_tel_qu_il_est_enregistre)
{
    Installe_Station(u"DFCF"_s);
    Regle(u"Setup "_s, u"Indicatif Station"_s, u"F9ZZY_P"_s);
    Regle(u"Setup F9ZZY_P"_s, u"Chemin Sauvegarde"_s, u"/nulle part"_s);
    Ouvre();
    EXPECT_EQ(Texte(Controle::I_Station), u"F9ZZY_P"_s);
}

TEST_F(Demarrage, a_sept_jours_rien_ne_se_sauve)
{
    Installe_Station(u"DFCF"_s);
    Regle(section, u"Chemin Sauvegarde"_s, fichiers.Chemin(u"copies"_s));
    QDir(fichiers.Chemin()).mkdir(u"copies"_s);
    Regle(section, u"Date_Sauvegarde"_s, u"08/11/2026"_s);
    EXPECT_TRUE(Ouvre().empty());
    EXPECT_TRUE(QDir(fichiers.Chemin(u"copies"_s)).isEmpty());
    EXPECT_EQ(Reglage(section, u"Date_Sauvegarde"_s), u"08/11/2026"_s);
}

TEST_F(Demarrage, a_huit_jours_les_logs_se_sauvent_et_le_message_le_dit)
{
    Installe_Station(u"DFCF"_s);
    const QString copies = fichiers.Chemin(u"copies"_s);
    Regle(section, u"Chemin Sauvegarde"_s, copies);
    QDir().mkpath(copies);
    Regle(section, u"Date_Sauvegarde"_s, u"07/11/2026"_s);
    EXPECT_EQ(Ouvre(), std::vector<QString>{
                           u"Les logs de Vorlain ont été sauvegardés le 15/11/2026\ndans le répertoire "_s + copies});
    EXPECT_TRUE(QFile::exists(copies + u"/F9ZZY_DFCF.log"));
    EXPECT_EQ(Reglage(section, u"Date_Sauvegarde"_s), u"15/11/2026"_s);
}

TEST_F(Demarrage, une_date_de_sauvegarde_jamais_posee_sauve_sans_un_mot)
{
    Installe_Station(u"DFCF"_s);
    const QString copies = fichiers.Chemin(u"copies"_s);
    Regle(section, u"Chemin Sauvegarde"_s, copies);
    QDir().mkpath(copies);
    Regle(section, u"Date_Sauvegarde"_s, u"01/01/2015"_s);
    EXPECT_TRUE(Ouvre().empty());
    EXPECT_TRUE(QFile::exists(copies + u"/F9ZZY_DFCF.log"));
    EXPECT_EQ(Reglage(section, u"Date_Sauvegarde"_s), u"15/11/2026"_s);
}

TEST_F(Demarrage, un_log_qui_manque_est_cree_vide_et_les_autres_restent)
{
    Installe_Station(u"DFCF"_s);
    fichiers.Pose(u"F9ZZY_WLF.log"_s, "un log\r\n");
    QFile::remove(fichiers.Chemin(u"F9ZZY_PC.log"_s));
    QFile::remove(fichiers.Chemin(u"F9ZZY_DMF.log"_s));
    Ouvre();
    EXPECT_EQ(fichiers.Octets(u"F9ZZY_PC.log"_s), QByteArray());
    EXPECT_EQ(fichiers.Octets(u"F9ZZY_WLF.log"_s), QByteArray("un log\r\n"));
    EXPECT_FALSE(fichiers.Existe(u"F9ZZY_DMF.log"_s)) << "only the seven later awards are carried over";
}

TEST_F(Demarrage, les_sept_logs_venus_avec_les_versions_sont_crees_vides)
{
    Installe_Station(u"DFCF"_s);
    for (const QStringView code : codes_diplome)
        if (code != u"DFCF")
            QFile::remove(fichiers.Chemin(u"F9ZZY_"_s + code + u".log"));
    Ouvre();
    for (const QString &nom : {u"F9ZZY_DFF.log"_s, u"F9ZZY_DVFF.log"_s, u"F9ZZY_WLF.log"_s, u"F9ZZY_DYLF.log"_s,
                               u"F9ZZY_DDFM.log"_s, u"F9ZZY_DPF.log"_s, u"F9ZZY_PC.log"_s}) {
        ASSERT_TRUE(fichiers.Existe(nom)) << nom.toStdString();
        EXPECT_EQ(fichiers.Octets(nom), QByteArray()) << nom.toStdString();
    }
    EXPECT_EQ(QDir(fichiers.Chemin()).entryList({u"*.log"_s}).size(), 8);
}

TEST_F(Demarrage, un_log_de_depart_absent_laisse_la_liste_vide)
{
    Installe_Station(u"DFCF"_s);
    QFile::remove(fichiers.Chemin(u"F9ZZY_DFCF.log"_s));
    EXPECT_TRUE(Ouvre().empty());
    EXPECT_TRUE(QSO_Affiches().empty());
    EXPECT_TRUE(Ecran().isVisible());
}

TEST_F(Demarrage, un_log_migre_qui_ne_peut_pas_etre_reecrit_est_a_l_ecran)
{
    Installe_Station(u"FFF"_s);
    const QByteArray octets = QSO({.ref = u"51"_s}).toLatin1() + "\r\n";
    fichiers.Pose(u"F9ZZY_FFF.log"_s, octets);
    programme.emplace(fichiers.Chemin(), horloge);
    {
        const Disque_Qui_Refuse disque;
        EXPECT_TRUE(conduite::Repond({}, [this] { programme->Ouvre(); }).empty());
    }
    ASSERT_EQ(QSO_Affiches().size(), 1U);
    EXPECT_TRUE(QSO_Affiches()[0].contains(u" 0051  "_s));
    EXPECT_EQ(fichiers.Octets(u"F9ZZY_FFF.log"_s), octets);
}

TEST_F(Demarrage, un_indice_hors_de_sa_liste_laisse_le_choix_comme_il_est)
{
    Installe_Station(u"DFCF"_s);
    Regle(section, u"Diplome Utilise"_s, u"21"_s);
    Regle(section, u"bande Utilisee"_s, u"-7"_s);
    Regle(section, u"Mode Utilise"_s, u"abc"_s);
    Ouvre();
    EXPECT_EQ(Indice(u"Dip_A"_s), 0);
    EXPECT_EQ(Indice(u"Bande_A"_s), 0);
    EXPECT_EQ(Indice(u"Mode_A"_s), 0);
}

TEST_F(Demarrage, une_date_de_sauvegarde_absurde_ne_sauve_rien_et_n_arrete_rien)
{
    Installe_Station(u"DFCF"_s);
    Regle(section, u"Date_Sauvegarde"_s, u"hier"_s);
    EXPECT_TRUE(Ouvre().empty());
    EXPECT_EQ(Reglage(section, u"Date_Sauvegarde"_s), u"hier"_s);
}

TEST_F(Demarrage, en_differe_choisi_la_fois_d_avant_commence_en_temps_reel)
{
    Installe_Station(u"DFCF"_s);
    Ouvre();
    Controle_Nomme<QAction>(u"Mnu_Date_Auto_Non"_s).trigger();
    EXPECT_EQ(Texte(Controle::Label15), u"en differé"_s);
    EXPECT_TRUE(Coche(u"Mnu_Date_Auto_Non"_s));
    EXPECT_EQ(Reglage(section, u"Date Auto"_s), u"Non"_s);
    programme.reset();
    Ouvre();
    EXPECT_TRUE(Coche(u"Mnu_Date_Auto_Oui"_s));
    EXPECT_FALSE(Coche(u"Mnu_Date_Auto_Non"_s));
    EXPECT_EQ(Texte(Controle::Label15), u"En temps réel"_s);
    Controle_Nomme<QAction>(u"Mnu_Date_Auto_Oui"_s).trigger();
    EXPECT_EQ(Texte(Controle::Label15), u"en temps reél"_s);
    EXPECT_TRUE(Coche(u"Mnu_Date_Auto_Oui"_s));
}

TEST_F(Demarrage, les_separateurs_reprennent_leur_reglage)
{
    Installe_Station(u"DFCF"_s);
    Regle(section, u"Separateur Auto"_s, u"Oui"_s);
    Ouvre();
    EXPECT_TRUE(Coche(u"Mnu_Sep_Oui"_s));
    EXPECT_FALSE(Coche(u"Mnu_Sep_Non"_s));
    Controle_Nomme<QAction>(u"Mnu_Sep_Non"_s).trigger();
    EXPECT_EQ(Reglage(section, u"Separateur Auto"_s), u"Non"_s);
}

TEST_F(Demarrage, les_horloges_suivent_le_systeme)
{
    Installe_Station(u"DFCF"_s);
    Ouvre();
    EXPECT_EQ(Texte(Controle::Label37), u"14:48 Utc"_s);
    EXPECT_EQ(Texte(Controle::Label34), u"15:48 Loc"_s);
    EXPECT_EQ(Texte(Controle::Label33), u"15/11/26"_s);
    horloge.utc = QDateTime(QDate(2026, 12, 31), QTime(23, 59, 59), Qt::UTC);
    QTest::qWait(1100);
    EXPECT_EQ(Texte(Controle::Label37), u"23:59 Utc"_s);
    EXPECT_EQ(Texte(Controle::Label33), u"31/12/26"_s);
}

TEST_F(Demarrage, l_historique_et_la_boite_a_propos)
{
    Installe_Station(u"DFCF"_s);
    Ouvre();
    const std::vector<QString> a_propos =
        conduite::Repond({}, [this] { Controle_Nomme<QAction>(u"Mnu_A_Propos"_s).trigger(); });
    ASSERT_EQ(a_propos.size(), 1U);
    EXPECT_TRUE(a_propos[0].startsWith(u"Vorlain Revision V1.2.5c\n\n"_s));
    const std::vector<QString> historique =
        conduite::Repond({}, [this] { Controle_Nomme<QAction>(u"Mnu_Historique"_s).trigger(); });
    ASSERT_EQ(historique.size(), 1U);
    EXPECT_TRUE(historique[0].startsWith(u"\nV1.0.0   le 15/09/2014 création\nV1.1.0   le 26/02/2015 "_s));
    EXPECT_TRUE(historique[0].endsWith(u"\nV1.2.5   le 21/11/2017 Maj Challenges DFCF et DMF via Vorlain_Trelune"_s));
    EXPECT_EQ(historique[0].count(u'\n'), 17);
}

TEST_F(Demarrage, quitter_ferme_l_ecran_principal)
{
    Installe_Station(u"DFCF"_s);
    Ouvre();
    Controle_Nomme<QAction>(u"Mnu_Quitter"_s).trigger();
    EXPECT_FALSE(Ecran().isVisible());
}
