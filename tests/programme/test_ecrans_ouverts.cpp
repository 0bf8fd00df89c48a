#include "programme/Programme_Essai.h"

#include "faux/QSO_Essai.h"
#include "qsl/ecrans/Liste_A_Cocher.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>

using namespace Qt::StringLiterals;
using conduite::Fenetre;
using conduite::Trouve;

namespace {

const QString fin = u"\r\n"_s;

/// What becomes of a screen that was left open, in the whole program.
class Ecrans_Ouverts : public Programme_Essai {
protected:
    void Pose_Log(const QString &code, const QString &lignes) const
    {
        fichiers.Pose(u"F9ZZY_"_s + code + u".log", lignes.toLatin1());
    }
    void Commence(const QString &code)
    {
        Installe_Station(code);
        Ouvre();
        Diplome(code);
    }
    void Diplome(const QString &code)
    {
        conduite::Repond({}, [&] {
            Controle_Nomme<QComboBox>(u"Dip_A"_s).setCurrentText(code);
            conduite::Entree(Controle_Nomme(u"Dip_A"_s));
        });
    }
    void Clique_QSO(int rang) { conduite::Clique(Controle_Nomme<QAbstractItemView>(u"Liste_QSO"_s), rang); }
    void Presse(const QString &bouton) { Trouve<QPushButton>(Ecran(), bouton)->click(); }
    void Menu(const QString &nom)
    {
        conduite::Repond({u"Oui"_s}, [&] { Controle_Nomme<QAction>(nom).trigger(); });
    }
    void Station(const QString &indicatif)
    {
        conduite::Pendant_Modal(
            u"Station"_s, [this] { Controle_Nomme<QAction>(u"Mnu_New_Indicatif"_s).trigger(); },
            [&](QWidget &ecran) {
                conduite::Tape(*Trouve(ecran, u"New_Indicatif"_s), indicatif);
                conduite::Entree(*Trouve(ecran, u"New_Indicatif"_s));
                conduite::Entree(*Trouve(ecran, u"Validation"_s));
            });
    }
    void Annee_DFCF(const QString &annee)
    {
        conduite::Pendant_Modal(
            u"Select_Annee"_s, [this] { Controle_Nomme<QAction>(u"Mnu_Année_Ch_DFCF"_s).trigger(); },
            [&](QWidget &choix) {
                Trouve<QLineEdit>(choix, u"New_Annee"_s)->setText(annee);
                Trouve<QPushButton>(choix, u"Validation"_s)->click();
            });
    }
    /// A screen asked for by name, as the buttons do.
    QPointer<QWidget> Montre(const QString &nom)
    {
        conduite::Repond({}, [&] { programme->Les_Ecrans().Montre(nom); });
        return Fenetre(nom);
    }
    static QString Texte(const QString &ecran, const QString &nom)
    {
        if (const auto *champ = Fenetre(ecran)->findChild<QLineEdit *>(nom))
            return champ->text();
        if (const auto *bouton = Fenetre(ecran)->findChild<QAbstractButton *>(nom))
            return bouton->text();
        return Trouve<QLabel>(*Fenetre(ecran), nom)->text();
    }
    static int Ouverts_Sous(const QString &nom)
    {
        int nombre = 0;
        for (const QWidget *fenetre : QApplication::topLevelWidgets())
            nombre += fenetre->objectName() == nom ? 1 : 0;
        return nombre;
    }
};

QString Tour(const QString &ref)
{
    return QSO({.dpt = ref.left(2), .ref = ref}) + fin;
}

} // namespace

TEST_F(Ecrans_Ouverts, fiches_listes_et_details_reviennent_devant_tels_quels_meme_reduits)
{
    Commence(u"DFCF"_s);
    for (const QString &nom : {u"Diplomes_DFCF"_s, u"Diplomes_Ch_DFCF"_s, u"Liste_DFCF"_s, u"Detail_DFCF"_s,
                               u"Detail_FFF"_s, u"Detail_PC"_s, u"Detail_TDC"_s, u"Detail_DPF"_s}) {
        if (nom.contains(u"Ch_"_s))
            fichiers.Pose(u"F9ZZY_Ch_DFCF_2000.log"_s, {});
        const QPointer<QWidget> ecran = Montre(nom);
        ASSERT_TRUE(ecran) << nom.toStdString();
        ecran->showMinimized();
        EXPECT_EQ(Montre(nom), ecran) << nom.toStdString();
        EXPECT_FALSE(ecran->isMinimized()) << nom.toStdString();
        EXPECT_TRUE(ecran->isVisible()) << nom.toStdString();
    }
}

TEST_F(Ecrans_Ouverts, un_ecran_agrandi_puis_reduit_revient_agrandi)
{
    Commence(u"DFCF"_s);
    const QPointer<QWidget> fiche = Montre(u"Diplomes_DFCF"_s);
    fiche->setWindowState(Qt::WindowMaximized | Qt::WindowMinimized);
    Montre(u"Diplomes_DFCF"_s);
    EXPECT_EQ(fiche->windowState() & (Qt::WindowMaximized | Qt::WindowMinimized), Qt::WindowMaximized);
}

TEST_F(Ecrans_Ouverts, tous_les_autres_sont_refaits_et_le_premier_est_ferme)
{
    Commence(u"DFCF"_s);
    for (const QStringView code : {u"Ch_DFCF", u"Ch_DMF"})
        Pose_Log(code + u"_2000", {});
    for (const QString &nom : {u"ADIF"_s,
                               u"Liste_References"_s,
                               u"Affichage"_s,
                               u"Reglements"_s,
                               u"Recherche_Indicatif"_s,
                               u"Aff_Contacte"_s,
                               u"Carte_Acti"_s,
                               u"Carte_Detail"_s,
                               u"Affiche_Toutes_Activites"_s,
                               u"Challenge"_s,
                               u"Detail_Activite"_s,
                               u"Sauvegarde_Log"_s,
                               u"Scores_DYLF"_s,
                               u"Multi_QSL"_s,
                               u"Cluster"_s,
                               u"Copies"_s,
                               u"Select_Dip_DAF"_s,
                               u"Select_Dip_DCPF"_s,
                               u"Select_Dip_DDFM"_s,
                               u"Select_Dip_DFF"_s,
                               u"Select_Dip_DOHF"_s,
                               u"Select_Dip_DPF"_s,
                               u"Select_Dip_TDC"_s}) {
        const QPointer<QWidget> premier = Montre(nom);
        ASSERT_TRUE(premier) << nom.toStdString();
        const QPointer<QWidget> second = Montre(nom);
        ASSERT_TRUE(second) << nom.toStdString();
        EXPECT_NE(premier, second) << nom.toStdString();
        EXPECT_TRUE(second->isVisible()) << nom.toStdString();
        EXPECT_TRUE(!premier || !premier->isVisible()) << nom.toStdString();
        EXPECT_EQ(Ouverts_Sous(nom), 1) << nom.toStdString();
        EXPECT_TRUE(QTest::qWaitFor([&] { return !premier; })) << nom.toStdString();
        second->close();
    }
}

TEST_F(Ecrans_Ouverts, la_page_de_la_seconde_tour_porte_son_titre)
{
    Pose_Log(u"TDC"_s, Tour(u"11-008"_s) + Tour(u"75-001"_s));
    fichiers.Pose(u"Liste_TDC.csv"_s,
                  "Rev;;;;;;;\r\n8;11;41;CARCASSONNE;Narbonne;F;X;\r\n1;75;1;LOUVRE;Paris;F;X;\r\n");
    Commence(u"TDC"_s);
    QStringList titres;
    for (const int rang : {0, 1}) {
        Clique_QSO(rang);
        Presse(u"Detail"_s);
        Trouve<QPushButton>(*Fenetre(u"Detail_TDC"_s), u"Voir_Site"_s)->click();
        titres << Fenetre(u"Affichage"_s)->windowTitle();
        Fenetre(u"Detail_TDC"_s)->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    EXPECT_EQ(titres, (QStringList{u"Site web de la tour 8 CARCASSONNE"_s, u"Site web de la tour 1 LOUVRE"_s}));
}

TEST_F(Ecrans_Ouverts, situer_montre_le_departement_de_l_ouvrage_a_l_ecran)
{
    const QByteArray suite = ";a;b;%1;c;d;e;f;g;h;i;j;k;l;m;n;o;p;q;r\r\n";
    fichiers.Pose(u"Liste_Ouvrages.csv"_s, "Rev;;;;;;;;;;;;;;;;;;;\r\n45EC001" + QByteArray(suite).replace("%1", "45") +
                                               "11EC002" + QByteArray(suite).replace("%1", "11"));
    Pose_Log(u"DOHF"_s, QSO({.dpt = u"45"_s, .ref = u"45EC001"_s}) + fin);
    Commence(u"DOHF"_s);
    Clique_QSO(0);
    Presse(u"Detail"_s);
    QWidget &detail = *Fenetre(u"Detail_Activite"_s);
    Trouve<QPushButton>(detail, u"Situer"_s)->click();
    auto *reference = Trouve<QLineEdit>(detail, u"Reference_I"_s);
    reference->setText(u"11EC002"_s);
    conduite::Entree(*reference);
    Trouve<QPushButton>(detail, u"Situer"_s)->click();
    const auto couleur = [](const QString &dep) {
        return Trouve<QLabel>(*Fenetre(u"Carte_Detail"_s), dep)->palette().color(QPalette::Window);
    };
    EXPECT_EQ(couleur(u"Dep_11"_s), QColor(0x80, 0xFF, 0x80));
    EXPECT_NE(couleur(u"Dep_45"_s), QColor(0x80, 0xFF, 0x80));
}

TEST_F(Ecrans_Ouverts, les_references_sont_celles_du_diplome_en_main)
{
    fichiers.Pose(u"Liste_DPLF.txt"_s, "Planier\r\n1\r\nx\r\n13\r\nx\r\n*\r\n");
    Commence(u"DCF"_s);
    Montre(u"Liste_References"_s);
    EXPECT_EQ(Fenetre(u"Liste_References"_s)->windowTitle(), u"Liste des réferences DCF"_s);
    Diplome(u"DPLF"_s);
    EXPECT_EQ(Fenetre(u"Liste_References"_s)->windowTitle(), u"Liste des réferences DCF"_s) << "it goes on";
    Montre(u"Liste_References"_s);
    EXPECT_EQ(Fenetre(u"Liste_References"_s)->windowTitle(), u"Liste des réferences DPLF"_s);
    EXPECT_TRUE(conduite::Rangees(*Trouve<QAbstractItemView>(*Fenetre(u"Liste_References"_s), u"Liste_Ref"_s))
                    .at(0)
                    .startsWith(u"PB001  13  Planier"_s));
}

TEST_F(Ecrans_Ouverts, la_recherche_nomme_et_fouille_le_log_du_diplome_en_main)
{
    Pose_Log(u"DFCF"_s, QSO({.ind = u"F5ABC"_s, .ref = u"77001"_s}) + fin);
    Pose_Log(u"DMF"_s, QSO({.ind = u"F6XYZ"_s, .ref = u"77002"_s}) + fin);
    Commence(u"DFCF"_s);
    Presse(u"Recherche"_s);
    const QPointer<QWidget> recherche = Fenetre(u"Recherche_Indicatif"_s);
    auto &trouves = *Trouve<QAbstractItemView>(*recherche, u"QSO_Effectues"_s);
    const auto cherche = [&](const QString &indicatif) {
        auto *champ = Trouve<QLineEdit>(*recherche, u"Indica"_s);
        champ->setText(indicatif);
        return conduite::Repond({}, [&] { conduite::Entree(*champ); });
    };
    cherche(u"F5ABC"_s);
    EXPECT_EQ(conduite::Rangees(trouves).size(), 1U);
    Diplome(u"DMF"_s);
    ASSERT_TRUE(recherche);
    EXPECT_EQ(recherche->windowTitle(), u"Rechercher un QSO du log DMF par ..."_s);
    EXPECT_EQ(Texte(u"Recherche_Indicatif"_s, u"Label3"_s), u"Rechercher un QSO du log DMF par ..."_s);
    EXPECT_TRUE(conduite::Rangees(trouves).empty()) << "a hit of the other log leads to a QSO of this one";
    EXPECT_EQ(cherche(u"F5ABC"_s), std::vector<QString>{u"Pas de QSO trouvé"_s});
    cherche(u"F6XYZ"_s);
    EXPECT_EQ(conduite::Rangees(trouves).size(), 1U);
}

TEST_F(Ecrans_Ouverts, l_import_nomme_le_log_qu_il_remplacera)
{
    Commence(u"DFCF"_s);
    Menu(u"Mnu_Import_ADIF"_s);
    const QPointer<QWidget> adif = Fenetre(u"ADIF"_s);
    EXPECT_EQ(Texte(u"ADIF"_s, u"Remplace"_s), u"Remplacer le log DFCF"_s);
    Diplome(u"DMF"_s);
    ASSERT_EQ(Fenetre(u"ADIF"_s), adif);
    EXPECT_EQ(Texte(u"ADIF"_s, u"Label2"_s), u"Importer un log DMF"_s);
    EXPECT_EQ(Texte(u"ADIF"_s, u"Remplace"_s), u"Remplacer le log DMF"_s);
    EXPECT_EQ(Texte(u"ADIF"_s, u"Ajout"_s), u"Ajouter le fichier ADIF au log DMF"_s);
}

TEST_F(Ecrans_Ouverts, carte_et_contactes_gardent_le_diplome_qu_ils_nomment)
{
    Pose_Log(u"DDFM"_s, QSO({.dpt = u"77"_s, .bande = u"1.8 Mhz"_s}) + fin);
    Commence(u"DDFM"_s);
    Menu(u"Mnu_Affiche"_s);
    Menu(u"Mnu_Carte_Contacte"_s);
    Diplome(u"DMF"_s);
    EXPECT_EQ(Texte(u"Carte_Acti"_s, u"Label1"_s), u"activité DDFM"_s);
    EXPECT_EQ(Texte(u"Carte_Acti"_s, u"NB_Dep"_s), u"1"_s);
    EXPECT_EQ(Fenetre(u"Aff_Contacte"_s)->windowTitle(), u"Liste alphanumérique des DDFM contacté(e)s"_s);
    Trouve<QPushButton>(*Fenetre(u"Aff_Contacte"_s), u"Affiche"_s)->click();
    const auto *lignes = Trouve<QAbstractItemView>(*Fenetre(u"Aff_Contacte"_s), u"Liste_Acti_Contacte"_s);
    EXPECT_EQ(conduite::Rangees(*lignes).size(), 1U);
    Menu(u"Mnu_Carte_Contacte"_s);
    EXPECT_EQ(Texte(u"Carte_Acti"_s, u"Label1"_s), u"activité DMF"_s);
}

TEST_F(Ecrans_Ouverts, des_cartes_cochees_et_pas_enregistrees_reviennent_devant)
{
    Pose_Log(u"DFCF"_s, QSO({.ref = u"77001"_s}) + fin);
    Commence(u"DFCF"_s);
    Menu(u"Mnu_QSL"_s);
    const auto cherche = [] {
        Trouve<QComboBox>(*Fenetre(u"Multi_QSL"_s), u"Diplome"_s)->setCurrentText(u"DFCF"_s);
        Trouve<QPushButton>(*Fenetre(u"Multi_QSL"_s), u"Recherche"_s)->click();
        return Trouve<QAbstractItemView>(*Fenetre(u"Multi_QSL"_s), u"Liste_QSO"_s);
    };
    cherche();
    Menu(u"Mnu_QSL"_s);
    auto *liste = cherche();
    liste->model()->setData(liste->model()->index(0, 0), Qt::Checked, Qt::CheckStateRole);
    const QPointer<QWidget> cochee = Fenetre(u"Multi_QSL"_s);
    cochee->showMinimized();
    Menu(u"Mnu_QSL"_s);
    EXPECT_EQ(Fenetre(u"Multi_QSL"_s), cochee);
    EXPECT_FALSE(cochee->isMinimized());
    EXPECT_EQ(Trouve<Liste_A_Cocher>(*cochee, u"Liste_QSO"_s)->Cochees().size(), 1U);
    // Stored, they are no reason to stay any more.
    Trouve<QPushButton>(*cochee, u"Enregistre"_s)->click();
    Menu(u"Mnu_QSL"_s);
    EXPECT_NE(Fenetre(u"Multi_QSL"_s), cochee);
}

TEST_F(Ecrans_Ouverts, une_autre_station_ferme_ce_qui_montre_les_logs_de_la_premiere)
{
    Commence(u"DFCF"_s);
    const QStringList de_la_station = {
        u"Diplomes_DFCF"_s, u"Liste_DFCF"_s, u"Carte_Acti"_s, u"Aff_Contacte"_s,
        u"Scores_DYLF"_s,   u"Challenge"_s,  u"Multi_QSL"_s,  u"Affiche_Toutes_Activites"_s};
    for (const QString &nom : de_la_station)
        Montre(nom);
    const QStringList libres = {u"Detail_DPF"_s, u"ADIF"_s, u"Recherche_Indicatif"_s, u"Select_Dip_DAF"_s};
    for (const QString &nom : libres)
        Montre(nom);
    Station(u"F2NEW"_s);
    for (const QString &nom : de_la_station)
        EXPECT_EQ(Fenetre(nom), nullptr) << nom.toStdString();
    for (const QString &nom : libres)
        EXPECT_NE(Fenetre(nom), nullptr) << nom.toStdString();
}

TEST_F(Ecrans_Ouverts, des_cartes_cochees_avant_une_autre_station_se_marquent_dans_leur_log)
{
    const QString ligne = QSO({.ref = u"77001"_s});
    Pose_Log(u"DFCF"_s, ligne + fin);
    Commence(u"DFCF"_s);
    Menu(u"Mnu_QSL"_s);
    QWidget &qsl = *Fenetre(u"Multi_QSL"_s);
    Trouve<QComboBox>(qsl, u"Diplome"_s)->setCurrentText(u"DFCF"_s);
    Trouve<QPushButton>(qsl, u"Recherche"_s)->click();
    auto *liste = Trouve<QAbstractItemView>(qsl, u"Liste_QSO"_s);
    liste->model()->setData(liste->model()->index(0, 0), Qt::Checked, Qt::CheckStateRole);
    Station(u"F2NEW"_s);
    ASSERT_EQ(Fenetre(u"Multi_QSL"_s), &qsl);
    Trouve<QPushButton>(qsl, u"Enregistre"_s)->click();
    EXPECT_EQ(fichiers.Octets(u"F9ZZY_DFCF.log"_s), (ligne.chopped(1) + u'*' + fin).toLatin1());
    EXPECT_EQ(fichiers.Octets(u"F2NEW_DFCF.log"_s), QByteArray());
}

TEST_F(Ecrans_Ouverts, le_repertoire_de_sauvegarde_est_celui_de_la_station_sauf_s_il_est_en_cours_de_saisie)
{
    Installe_Station(u"DFCF"_s);
    Regle(u"Setup F2OLD"_s, u"Chemin Sauvegarde"_s, u"/de F2OLD"_s);
    fichiers.Pose(u"F2OLD_DFCF.log"_s, {});
    Ouvre();
    Menu(u"Mnu_Sauve_Log"_s);
    EXPECT_EQ(Texte(u"Sauvegarde_Log"_s, u"Le_Chemin"_s), u"/nulle part"_s);
    Station(u"F2OLD"_s);
    EXPECT_EQ(Texte(u"Sauvegarde_Log"_s, u"Le_Chemin"_s), u"/de F2OLD"_s);
    Trouve<QPushButton>(*Fenetre(u"Sauvegarde_Log"_s), u"New_Rep"_s)->click();
    conduite::Tape(*Trouve(*Fenetre(u"Sauvegarde_Log"_s), u"Le_Chemin"_s), u"/neuf"_s);
    Station(u"F9ZZY"_s);
    EXPECT_EQ(Texte(u"Sauvegarde_Log"_s, u"Le_Chemin"_s), u"/neuf"_s);
}

TEST_F(Ecrans_Ouverts, une_autre_annee_vide_les_trouvailles_de_la_recherche)
{
    Regle(section, u"Annee Challenge DFCF"_s, u"2025"_s);
    Pose_Log(u"Ch_DFCF_2025"_s, QSO({.ind = u"F5ABC"_s, .ref = u"77001A"_s}) + fin);
    Commence(u"Ch_DFCF"_s);
    Presse(u"Recherche"_s);
    auto *champ = Trouve<QLineEdit>(*Fenetre(u"Recherche_Indicatif"_s), u"Indica"_s);
    champ->setText(u"F5ABC"_s);
    conduite::Entree(*champ);
    const auto *trouves = Trouve<QAbstractItemView>(*Fenetre(u"Recherche_Indicatif"_s), u"QSO_Effectues"_s);
    EXPECT_EQ(conduite::Rangees(*trouves).size(), 1U);
    Annee_DFCF(u"2026"_s);
    EXPECT_TRUE(conduite::Rangees(*trouves).empty());
}

TEST_F(Ecrans_Ouverts, la_fiche_d_un_challenge_ne_reste_pas_ouverte_sur_l_autre)
{
    for (const QString &code : {u"DFCF"_s, u"DMF"_s}) {
        Regle(section, u"Annee Challenge "_s + code, u"2025"_s);
        Pose_Log(u"Ch_"_s + code + u"_2025", QSO({.ref = u"77001A"_s}) + fin);
    }
    Pose_Log(u"DFCF"_s, QString());
    Commence(u"Ch_DFCF"_s);
    QPointer<QWidget> fiche = Montre(u"Diplomes_Ch_DFCF"_s);
    const QPointer<QWidget> liste = Montre(u"Liste_Ch_DFCF"_s);
    EXPECT_EQ(fiche->windowTitle(), u"Challenge DFCF année 2025"_s);
    Diplome(u"Ch_DMF"_s);
    EXPECT_FALSE(fiche && fiche->isVisible());
    EXPECT_FALSE(liste && liste->isVisible());
    fiche = Montre(u"Diplomes_Ch_DFCF"_s);
    EXPECT_EQ(fiche->windowTitle(), u"Challenge DMF année 2025"_s);
    // The sheet of a single award stays as it stands.
    Diplome(u"DFCF"_s);
    const QPointer<QWidget> chateaux = Montre(u"Diplomes_DFCF"_s);
    Diplome(u"Ch_DMF"_s);
    EXPECT_TRUE(chateaux && chateaux->isVisible());
}

TEST_F(Ecrans_Ouverts, le_cadre_nomme_l_annee_du_challenge_qui_est_a_l_ecran)
{
    Regle(section, u"Annee Challenge DFCF"_s, u"2025"_s);
    Regle(u"Setup F4ABC"_s, u"Annee Challenge DFCF"_s, u"2023"_s);
    Pose_Log(u"Ch_DFCF_2025"_s, QString());
    fichiers.Pose(u"F4ABC_DFCF.log"_s, QByteArray());
    fichiers.Pose(u"F4ABC_Ch_DFCF_2023.log"_s, QByteArray());
    Commence(u"Ch_DFCF"_s);
    const auto cadre = [this] { return Controle_Nomme<QGroupBox>(u"Frame3"_s).title(); };
    EXPECT_EQ(cadre(), u"Challenge DFCF année 2025"_s);
    Annee_DFCF(u"2026"_s);
    EXPECT_EQ(cadre(), u"Challenge DFCF année 2026"_s);
    Station(u"F4ABC"_s);
    EXPECT_EQ(cadre(), u"Challenge DFCF année 2023"_s);
    Diplome(u"DFCF"_s);
    Annee_DFCF(u"2024"_s);
    EXPECT_EQ(cadre(), u"Diplome des Forts et Chateaux de France"_s);
}
