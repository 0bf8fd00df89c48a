#include "Listes_Essai.h"
#include "listes/Fichiers_De_Depart.h"
#include "listes/Index_Liste.h"
#include "listes/Recherches_Liste.h"
#include "listes/References.h"
#include "listes/Table_Recherches.h"
#include "log/Ancienne_Ref_TDC.h"
#include "log/Ligne_Liste.h"

using namespace Qt::StringLiterals;

namespace {

struct Depart : ::testing::Test {
    Poste_Essai essai;
    Depart() { Depose_Fichiers_De_Depart(essai.dossier); }
};

} // namespace

TEST_F(Depart, pose_les_sept_listes_et_les_prenoms)
{
    EXPECT_EQ(essai.fichiers.Fichiers(),
              (QStringList{u"Liste_DCF.csv"_s, u"Liste_DFCF.csv"_s, u"Liste_DPLF.txt"_s, u"Liste_FFF.csv"_s,
                           u"Liste_Ouvrages.csv"_s, u"Liste_PC.csv"_s, u"Liste_Prenom.txt"_s, u"Liste_TDC.csv"_s}));
    EXPECT_EQ(essai.fichiers.Octets(u"Liste_Prenom.txt"_s), "");
    EXPECT_EQ(essai.fichiers.Octets(u"Liste_DPLF.txt"_s), "*\r\n");
    EXPECT_EQ(essai.fichiers.Octets(u"Liste_TDC.csv"_s), "Rev 000 01/01/12;;;;;;;\r\n");
    EXPECT_EQ(essai.fichiers.Octets(u"Liste_FFF.csv"_s), "Rev 000 du 01/01/12;;;;;;;;;\r\n;;;;;;;;;\r\n;;;;;;;;;\r\n");
}

TEST_F(Depart, chaque_recherche_ne_trouve_rien_et_n_echoue_pas)
{
    const QStringList references = {u"77001"_s, u"001"_s, u"001B"_s, u"0051"_s,  u"PB001"_s, u"11-008"_s,
                                    u"11-8"_s,  u"-"_s,   u""_s,     u"45EC1"_s, u"93001"_s, u"TC118"_s};
    for (const Recherche *recherche :
         {&recherches::Cherche_DFCF, &recherches::Cherche_DCF, &recherches::Cherche_FFF, &recherches::Cherche_DPLF,
          &recherches::Cherche_TDC, &recherches::Ligne_TDC, &recherches::Cherche_Ouvrage, &recherches::Cherche_PC,
          &recherches::Nom_Ouvrage, &recherches::Nom_DFCF, &recherches::Nom_DPLF, &recherches::Nom_FFF}) {
        const Lignes_Texte lignes = essai.dossier.Lit_Lignes(recherche->lecture.fichier.toString());
        for (const QString &ref : references) {
            const QString ou = recherche->lecture.fichier + u' ' + ref;
            EXPECT_NO_THROW(EXPECT_FALSE(Balaie(*recherche, lignes, ref).trouvee)) << ou.toStdString();
        }
    }
    for (const QString &ref : references)
        EXPECT_NO_THROW(EXPECT_EQ(Ancienne_Ref_TDC(essai.dossier, ref), std::nullopt)) << ref.toStdString();
}

TEST_F(Depart, une_reference_inconnue_a_ses_textes_de_repli)
{
    EXPECT_EQ(Cherche_DFCF(essai.dossier, u"77001"), u"C."_s);
    EXPECT_EQ(Cherche_Ouvrage(essai.dossier, u"45EC102"), (Reference_Trouvee{u"EC"_s, u"45"_s}));
    EXPECT_EQ(Cherche_TDC(essai.dossier, essai.boites, u"11-008"), Reference_Trouvee{});
    EXPECT_TRUE(Lit_References(essai.dossier, Diplome::DPLF).entrees.empty());
    EXPECT_EQ(Lit_References(essai.dossier, Diplome::DCF).entrees.size(), 1U) << "the first line is an entry too";
}

TEST_F(Depart, les_en_tetes_ont_les_separateurs_des_lecteurs_les_plus_exigeants)
{
    for (const QStringView ligne : essai.dossier.Lit_Lignes(u"Liste_FFF.csv"_s))
        EXPECT_NO_THROW(Champs_Liste<9>(ligne));
    EXPECT_NO_THROW(Champs_Liste<19>(essai.dossier.Lit_Lignes(u"Liste_Ouvrages.csv"_s)[0]));
    EXPECT_NO_THROW(Champs_Liste<7>(essai.dossier.Lit_Lignes(u"Liste_PC.csv"_s)[0]));
}

TEST(Fichiers_De_Depart, un_fichier_present_reste_ce_qu_il_est)
{
    Poste_Essai essai;
    essai.fichiers.Pose(u"Liste_PC.csv"_s, "\r\n");
    essai.fichiers.Pose(u"Liste_TDC.csv"_s, "Rev 012 01/01/20;\xE9;");
    essai.fichiers.Pose(u"Liste_Prenom.txt"_s, "F5ABC        77 JEAN\r\n");
    QFile::setPermissions(essai.fichiers.Chemin(u"Liste_TDC.csv"_s), {});
    Depose_Fichiers_De_Depart(essai.dossier);
    QFile::setPermissions(essai.fichiers.Chemin(u"Liste_TDC.csv"_s), QFile::ReadOwner);
    EXPECT_EQ(essai.fichiers.Octets(u"Liste_PC.csv"_s), "\r\n");
    EXPECT_EQ(essai.fichiers.Octets(u"Liste_TDC.csv"_s), "Rev 012 01/01/20;\xE9;");
    EXPECT_EQ(essai.fichiers.Octets(u"Liste_Prenom.txt"_s), "F5ABC        77 JEAN\r\n");
    EXPECT_TRUE(essai.fichiers.Existe(u"Liste_DCF.csv"_s));
}

TEST(Fichiers_De_Depart, une_liste_vide_laissee_par_une_coupure_est_completee)
{
    Poste_Essai essai;
    essai.fichiers.Pose(u"Liste_DPLF.txt"_s, "");
    Depose_Fichiers_De_Depart(essai.dossier);
    EXPECT_EQ(essai.fichiers.Octets(u"Liste_DPLF.txt"_s), "*\r\n");
}
