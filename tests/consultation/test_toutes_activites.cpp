#include "consultation/Toutes_Activites.h"
#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "faux/QSO_Essai.h"
#include "log/Catalogue.h"
#include "log/Etat_Commun.h"
#include "plateforme/Erreur_Execution.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

std::vector<QString> Activites(const std::vector<QString> &log, QStringView texte)
{
    QString lignes;
    for (const QString &ligne : log)
        lignes += ligne + u"\r\n";
    std::vector<QString> entrees;
    std::optional<QString> activateur;
    Ajoute_Activites(entrees, Lignes_Texte(lignes), texte, activateur);
    return entrees;
}

QString Entree(const QString &ligne)
{
    return u"  " + ligne;
}

/// Empty logs of all awards.
void Pose_Logs(const Poste_Essai &essai)
{
    for (const QStringView code : codes_diplome)
        essai.fichiers.Pose(essai.etat.station.Log(Diplome_De(code)), "");
}

const QString d_abc = QSO({.ind = u"F5ABC"_s, .ref = u"77001"_s});
const QString d_xyz = QSO({.ind = u"F5XYZ/P"_s, .ref = u"77002"_s});
const QString d_un_autre = QSO({.ind = u"ON4ZZ"_s});

} // namespace

TEST(Ajoute_Activites, chaque_ligne_avec_le_texte_fixe_l_indicatif)
{
    EXPECT_EQ(Activites({d_un_autre, d_abc, d_un_autre, d_xyz, d_abc}, u"F5"),
              (std::vector{Entree(d_abc), Entree(d_xyz), Entree(d_abc)}));
}

TEST(Ajoute_Activites, un_nom_avec_le_texte_montre_les_lignes_suivantes_de_sa_station)
{
    const QString par_son_nom = QSO({.ind = u"ON4ZZ"_s, .nom = u"C. DE F5ABC"_s});
    EXPECT_EQ(Activites({d_un_autre, par_son_nom, d_un_autre, d_abc, d_un_autre}, u"F5ABC"),
              (std::vector{Entree(par_son_nom), Entree(d_un_autre), Entree(d_abc)}));
}

TEST(Ajoute_Activites, rien_avant_la_premiere_ligne_trouvee)
{
    EXPECT_TRUE(Activites({QSO({.ind = u""_s}), d_un_autre}, u"F5").empty());
}

TEST(Toutes_Activites, un_titre_par_diplome_puis_ses_lignes)
{
    Poste_Essai essai;
    essai.reglages.Ecrit(u"Setup F9ZZY"_s, u"Annee Challenge DFCF"_s, u"2017"_s);
    Pose_Logs(essai);
    essai.fichiers.Pose(u"F9ZZY_Ch_DFCF_2017.log"_s, d_abc.toLatin1());
    essai.fichiers.Pose(u"F9ZZY_WLF.log"_s, d_xyz.toLatin1());
    const std::vector<QString> entrees = Toutes_Activites(essai.poste, u"F5");
    ASSERT_EQ(entrees.size(), 23U);
    EXPECT_EQ(entrees[0], u"Ch_DFCF -----"_s);
    EXPECT_EQ(entrees[1], Entree(d_abc));
    EXPECT_EQ(entrees[2], u"Ch_DMF -----"_s);
    EXPECT_EQ(entrees[21], u"WLF -----"_s);
    EXPECT_EQ(entrees[22], Entree(d_xyz));
}

TEST(Toutes_Activites, un_log_absent_est_un_echec)
{
    Poste_Essai essai;
    Pose_Logs(essai);
    essai.dossier.Supprime(u"F9ZZY_PC.log"_s);
    EXPECT_THROW(Toutes_Activites(essai.poste, u"F5"), Erreur_Execution);
}

TEST(Refus_Activateur, de_un_a_douze_caracteres)
{
    EXPECT_EQ(Refus_Activateur(u""), u"Entrez un indicatif"_s);
    EXPECT_EQ(Refus_Activateur(u"123456789012"), std::nullopt);
    EXPECT_EQ(Refus_Activateur(u"1234567890123"), u"12 caracteres maxi pour l'indicatif"_s);
}
