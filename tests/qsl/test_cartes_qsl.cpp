#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "faux/QSO_Essai.h"
#include "plateforme/Erreur_Execution.h"
#include "qsl/Cartes_QSL.h"

#include <ctime>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QByteArray Log(const std::vector<QString> &lignes)
{
    QByteArray octets;
    for (const QString &ligne : lignes)
        octets += ligne.toLatin1() + "\r\n";
    return octets;
}

QString Avec_Carte(QString ligne)
{
    return ligne.replace(110, 1, u"*"_s);
}

const QString du_f9zz = QSO({.ind = u"F9ZZ"_s, .ref = u"77001"_s});
const QString du_f9zzy = QSO({.ind = u"F9ZZY"_s, .ref = u"77002"_s});
const QString d_un_autre = QSO({.ind = u"F6XYZ"_s, .ref = u"77003"_s});
const QString par_son_nom = QSO({.ind = u"F6XYZ"_s, .nom = u"C. DE F9ZZ"_s});

} // namespace

TEST(Sans_Carte, trouve_le_texte_n_importe_ou_dans_la_ligne)
{
    const Lignes_Texte log(QString::fromLatin1(Log({du_f9zz, d_un_autre, du_f9zzy, par_son_nom})));
    EXPECT_EQ(Sans_Carte(log, u"F9ZZ"), (std::vector{du_f9zz, du_f9zzy, par_son_nom}));
}

TEST(Sans_Carte, une_carte_tenue_n_est_jamais_listee)
{
    const Lignes_Texte log(QString::fromLatin1(Log({Avec_Carte(du_f9zz), du_f9zz})));
    EXPECT_EQ(Sans_Carte(log, u"F9ZZ"), std::vector{du_f9zz});
}

TEST(Sans_Carte, un_indicatif_vide_liste_tous_les_QSO_sans_carte)
{
    const Lignes_Texte log(QString::fromLatin1(Log({du_f9zz, u""_s, Avec_Carte(d_un_autre), d_un_autre})));
    EXPECT_EQ(Sans_Carte(log, u""), (std::vector{du_f9zz, d_un_autre}));
}

TEST(Texte_Marque, des_QSO_identiques_recoivent_leur_carte_ensemble)
{
    const Lignes_Texte log(QString::fromLatin1(Log({du_f9zz, d_un_autre, du_f9zz, du_f9zzy})));
    EXPECT_EQ(Texte_Marque(log, {du_f9zz, du_f9zzy}).toLatin1(),
              Log({Avec_Carte(du_f9zz), d_un_autre, Avec_Carte(du_f9zz), Avec_Carte(du_f9zzy)}));
}

TEST(Cartes, se_marquent_dans_un_log_qui_n_est_pas_le_courant)
{
    Poste_Essai essai;
    essai.Ouvre(u"DMF"_s);
    essai.fichiers.Pose(u"F9ZZY_DMF.log"_s, Log({d_un_autre}));
    essai.fichiers.Pose(u"F9ZZY_DFCF.log"_s, Log({du_f9zz, du_f9zzy}));
    const Cartes_Attendues cartes = Cherche_Cartes(essai.poste, Diplome::DFCF, u"F9ZZY");
    EXPECT_EQ(cartes.log, u"F9ZZY_DFCF.log"_s);
    EXPECT_EQ(cartes.lignes, std::vector{du_f9zzy});
    Marque_Cartes(essai.poste, cartes.log, cartes.lignes);
    EXPECT_EQ(essai.fichiers.Octets(u"F9ZZY_DFCF.log"_s), Log({du_f9zz, Avec_Carte(du_f9zzy)}));
    // The main list stays on the current award.
    ASSERT_EQ(essai.ecran.liste.size(), 1U);
    EXPECT_EQ(essai.ecran.liste[0].toString(), d_un_autre);
    EXPECT_EQ(essai.ecran.appels.back(), u"Selectionne_Derniere"_s);
    EXPECT_EQ(essai.fichiers.Fichiers(), (QStringList{u"F9ZZY_DFCF.log"_s, u"F9ZZY_DMF.log"_s}));
}

TEST(Cartes, rien_de_coche_laisse_le_log_inchange)
{
    Poste_Essai essai;
    essai.Ouvre(u"DFCF"_s);
    const QByteArray avant = Log({du_f9zz, Avec_Carte(d_un_autre)});
    essai.fichiers.Pose(u"F9ZZY_DFCF.log"_s, avant);
    Marque_Cartes(essai.poste, u"F9ZZY_DFCF.log"_s, {});
    EXPECT_EQ(essai.fichiers.Octets(u"F9ZZY_DFCF.log"_s), avant);
}

TEST(Cartes, un_QSO_ajoute_depuis_la_recherche_est_garde)
{
    Poste_Essai essai;
    essai.Ouvre(u"DFCF"_s);
    essai.fichiers.Pose(u"F9ZZY_DFCF.log"_s, Log({du_f9zz}));
    const Cartes_Attendues cartes = Cherche_Cartes(essai.poste, Diplome::DFCF, u"F9ZZ");
    essai.fichiers.Pose(u"F9ZZY_DFCF.log"_s, Log({du_f9zz, d_un_autre}));
    Marque_Cartes(essai.poste, cartes.log, cartes.lignes);
    EXPECT_EQ(essai.fichiers.Octets(u"F9ZZY_DFCF.log"_s), Log({Avec_Carte(du_f9zz), d_un_autre}));
}

TEST(Cartes, l_annee_du_challenge_est_relue_a_chaque_recherche)
{
    Poste_Essai essai;
    essai.fichiers.Pose(u"F9ZZY_Ch_DFCF_2000.log"_s, Log({d_un_autre}));
    essai.fichiers.Pose(u"F9ZZY_Ch_DFCF_2017.log"_s, Log({du_f9zz}));
    essai.fichiers.Pose(u"F9ZZY_Ch_DMF_2018.log"_s, Log({du_f9zzy}));
    EXPECT_EQ(Cherche_Cartes(essai.poste, Diplome::Ch_DFCF, u"").lignes, std::vector{d_un_autre});
    essai.reglages.Ecrit(u"Setup F9ZZY"_s, u"Annee Challenge DFCF"_s, u"2017"_s);
    essai.reglages.Ecrit(u"Setup F9ZZY"_s, u"Annee Challenge DMF"_s, u"2018"_s);
    EXPECT_EQ(Cherche_Cartes(essai.poste, Diplome::Ch_DFCF, u"").lignes, std::vector{du_f9zz});
    EXPECT_EQ(Cherche_Cartes(essai.poste, Diplome::Ch_DMF, u"").lignes, std::vector{du_f9zzy});
}

TEST(Cartes, un_log_absent_est_un_echec)
{
    Poste_Essai essai;
    EXPECT_THROW(Cherche_Cartes(essai.poste, Diplome::DFCF, u"F9ZZ"), Erreur_Execution);
}

TEST(Cartes, dix_lignes_de_deux_cent_mille_en_moins_d_une_seconde)
{
    Poste_Essai essai;
    essai.Ouvre(u"DFCF"_s);
    std::vector<QString> lignes;
    for (int i = 0; i < 200'000; ++i)
        lignes.push_back(QSO({.ind = u"F5%1"_s.arg(i), .ref = u"77001"_s}));
    essai.fichiers.Pose(u"F9ZZY_DFCF.log"_s, Log(lignes));
    Cartes_Attendues cartes = Cherche_Cartes(essai.poste, Diplome::DFCF, u"F51999");
    cartes.lignes.resize(10);
    [[maybe_unused]] const std::clock_t debut = std::clock();
    Marque_Cartes(essai.poste, cartes.log, cartes.lignes);
#ifndef __SANITIZE_ADDRESS__
    // The time of the rule itself: a disk that others keep busy is not its fault, nor what the sanitizers add.
    EXPECT_LT((std::clock() - debut) / (CLOCKS_PER_SEC / 1000), 1000);
#endif
    EXPECT_EQ(essai.fichiers.Octets(u"F9ZZY_DFCF.log"_s).count("*\r\n"), 10);
}
