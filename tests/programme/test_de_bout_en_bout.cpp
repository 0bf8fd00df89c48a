#include "programme/Programme_Essai.h"

#include <QComboBox>
#include <QFile>
#include <QGroupBox>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

class De_Bout_En_Bout : public Programme_Essai {
protected:
    void Cree_Station(const QString &indicatif)
    {
        conduite::Pendant_Modal(
            u"Station"_s, [this] { Controle_Nomme<QAction>(u"Mnu_New_Indicatif"_s).trigger(); },
            [&](QWidget &station) {
                conduite::Tape(*conduite::Trouve(station, u"New_Indicatif"_s), indicatif);
                conduite::Entree(*conduite::Trouve(station, u"New_Indicatif"_s));
                conduite::Entree(*conduite::Trouve(station, u"Validation"_s));
            });
    }

    /// From Ind_A to the question of the commit, with the keys of an operator in real time.
    void Tape_QSO(const QString &indicatif, const QString &prenom, const QString &ref, const QString &nom)
    {
        Saisit(u"Ind_A"_s, indicatif);
        Saisit(u"Prenom_A"_s, prenom);
        Saisit(u"Ref_A"_s, ref);
        Saisit(u"Dpt_A"_s, {});
        Saisit(u"Mode_A"_s, {});
        Saisit(u"RSTR_A"_s, {});
        Saisit(u"RSTE_A"_s, {});
        Saisit(u"Nom_A"_s, nom);
        Saisit(u"QSL_A"_s, {});
    }

    std::vector<QString> Valide()
    {
        return conduite::Repond({u"Oui"_s}, [this] { conduite::Entree(Controle_Nomme(u"Valide_A"_s)); });
    }

    QAbstractItemView &Liste() { return Controle_Nomme<QAbstractItemView>(u"Liste_QSO"_s); }
};

QByteArray Attendu(const QString &nom)
{
    QFile fichier(QStringLiteral(DONNEES_ESSAI "/attendus/") + nom);
    EXPECT_TRUE(fichier.open(QIODevice::ReadOnly)) << nom.toStdString();
    return fichier.readAll();
}

} // namespace

TEST_F(De_Bout_En_Bout, d_une_station_neuve_a_un_log_saisi_modifie_insere_et_efface)
{
    // A first start tells where the backups go, then asks for a call sign.
    const std::vector<QString> au_demarrage = Ouvre();
    ASSERT_EQ(au_demarrage.size(), 2U);
    EXPECT_EQ(au_demarrage[0], u"Configurez le répértoire de sauvegarde hebdomadaire de vos log"_s);
    EXPECT_TRUE(au_demarrage[1].contains(u"Premiere installation"_s));

    Cree_Station(u"f9zzy"_s);
    EXPECT_EQ(Texte(Controle::I_Station), u"F9ZZY"_s);

    // The code is typed over the one that Dip_A shows.
    conduite::Trouve<QComboBox>(Ecran(), u"Dip_A"_s)->lineEdit()->selectAll();
    Saisit(u"Dip_A"_s, u"dfcf"_s);
    EXPECT_EQ(conduite::Trouve<QGroupBox>(Ecran(), u"Frame3"_s)->title(), u"Diplome des Forts et Chateaux de France"_s);
    Saisit(u"Bande_A"_s, {});

    Tape_QSO(u"f5abc/p"_s, u"jean"_s, u"77001"_s, u"de vaux"_s);
    EXPECT_EQ(Valide(), std::vector<QString>{u"Voulez vous enregistrer ces données ?"_s});
    horloge.utc = horloge.utc.addSecs(600);
    QTest::qWait(1100);
    Tape_QSO(u"f6xyz"_s, u"rené"_s, u"89001"_s, u"tanlay"_s);
    Valide();
    Tape_QSO(u"f5abc/p"_s, {}, u"63087"_s, u"murol"_s);
    EXPECT_EQ(Texte(Controle::Prenom_A), u"JEAN"_s) << "the first-name list offers the name of the first QSO";
    Valide();
    EXPECT_EQ(Liste().model()->rowCount(), 3);

    // The second QSO gets another report; the line keeps its place and the last one is selected.
    conduite::Double_Clique(Liste(), 1);
    EXPECT_EQ(Texte(Controle::Mode_Aff), u"Modification QSO"_s);
    conduite::Trouve<QLineEdit>(Ecran(), u"RSTR_A"_s)->selectAll();
    conduite::Tape(Controle_Nomme(u"RSTR_A"_s), u"57"_s);
    Valide();
    EXPECT_EQ(Liste().currentIndex().row(), 2);

    // A QSO that was missed goes between the others by its time.
    conduite::Entree(Controle_Nomme(u"Ajout_QSO"_s));
    Saisit(u"Bande_A"_s, {});
    Saisit(u"Ind_A"_s, u"f1aaa"_s);
    Saisit(u"Prenom_A"_s, u"zoe"_s);
    Saisit(u"Ref_A"_s, u"21001"_s);
    Saisit(u"Dpt_A"_s, {});
    Saisit(u"Date_A"_s, u"15/11/26"_s);
    Saisit(u"Heure_A"_s, u"14:50"_s);
    Saisit(u"Mode_A"_s, {});
    Saisit(u"RSTR_A"_s, {});
    Saisit(u"RSTE_A"_s, {});
    Saisit(u"Nom_A"_s, u"bussy"_s);
    conduite::Tape(Controle_Nomme(u"QSL_A"_s), u" "_s);
    Saisit(u"QSL_A"_s, {});
    Valide();
    EXPECT_EQ(fichiers.Octets(u"F9ZZY_DFCF.log"_s), Attendu(u"quatre_qso.log"_s));

    // The first one goes.
    conduite::Clique(Liste(), 0);
    EXPECT_EQ(conduite::Repond({u"Oui"_s}, [this] { conduite::Entree(Controle_Nomme(u"Annule_Saisie"_s)); }),
              std::vector<QString>{u"Voulez vous Supprimer ce QSO ?"_s});
    EXPECT_EQ(fichiers.Octets(u"F9ZZY_DFCF.log"_s), Attendu(u"trois_qso.log"_s));
    EXPECT_EQ(fichiers.Octets(u"Liste_Prenom.txt"_s), Attendu(u"prenoms.txt"_s));
}
