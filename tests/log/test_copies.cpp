#include "faux/Impression.h"
#include "log/Copies.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QDateTime maintenant(QDate(2026, 11, 15), QTime(14, 48, 30), Qt::UTC);

Copie Du_Log(int jours, qint64 taille = 100, const QString &nom = u"F9ZZY_DFCF.log"_s)
{
    return {.nom = nom, .moment = maintenant.addDays(-jours), .outil = Outil::Tri, .taille = taille};
}

QStringList Noms(const std::vector<Copie> &copies)
{
    QStringList noms;
    for (const Copie &copie : copies)
        noms << copie.nom.section(u'_', 1).chopped(4) + u' ' + QString::number(copie.moment.daysTo(maintenant));
    noms.sort();
    return noms;
}

} // namespace

TEST(Nom_De_Copie, dit_le_log_le_moment_et_l_outil)
{
    Copie copie = Du_Log(0);
    EXPECT_EQ(Fichier_De_Copie(copie), u"Copies/F9ZZY_DFCF_20261115T144830Z_Tri.log"_s);
    copie.numero = 2;
    copie.outil = Outil::Import;
    EXPECT_EQ(Fichier_De_Copie(copie), u"Copies/F9ZZY_DFCF_20261115T144830Z_Import-2.log"_s);
}

TEST(Nom_De_Copie, se_relit_pour_chaque_outil_et_chaque_fichier)
{
    for (const auto &nom :
         {u"F9ZZY_DFCF.log"_s, u"F9ZZY_P_Ch_DFCF_2026.log"_s, u"Liste_DFCF.csv"_s, u"Liste_DPLF.txt"_s})
        for (int rang = 0; rang <= static_cast<int>(Outil::Retour); ++rang)
            for (const int numero : {1, 12}) {
                const Copie copie{
                    .nom = nom, .moment = maintenant, .outil = static_cast<Outil>(rang), .numero = numero};
                const QString fichier = Fichier_De_Copie(copie);
                const std::optional<Copie> lue = Copie_Nommee(fichier.section(u'/', 1));
                ASSERT_TRUE(lue) << fichier.toStdString();
                EXPECT_EQ(lue->nom, nom);
                EXPECT_EQ(lue->moment, maintenant);
                EXPECT_EQ(lue->outil, copie.outil);
                EXPECT_EQ(lue->numero, numero);
                EXPECT_FALSE(Libelle(copie.outil).isEmpty());
            }
}

TEST(Nom_De_Copie, laisse_ce_qui_n_en_est_pas_un)
{
    for (const auto &nom :
         {u"F9ZZY_DFCF.log"_s, u"F9ZZY_DFCF_20261115T144830Z_Autre.log"_s, u"F9ZZY_DFCF_20261315T144830Z_Tri.log"_s,
          u"F9ZZY_DFCF_20261115T144830Z_Tri.log.tmp.0a1b2c3d"_s, u"lisez moi.txt"_s})
        EXPECT_FALSE(Copie_Nommee(nom)) << nom.toStdString();
}

TEST(Copies_En_Trop, les_vingt_dernieres_restent_si_vieilles_qu_elles_soient)
{
    std::vector<Copie> copies;
    for (int rang = 0; rang < 22; ++rang)
        copies.push_back(Du_Log(200 + rang));
    EXPECT_EQ(Noms(Copies_En_Trop(copies, maintenant)), (QStringList{u"DFCF 220"_s, u"DFCF 221"_s}));
}

TEST(Copies_En_Trop, celles_des_90_derniers_jours_restent_toutes)
{
    std::vector<Copie> copies;
    for (int rang = 0; rang < 50; ++rang)
        copies.push_back(Du_Log(rang));
    copies.push_back(Du_Log(90));
    copies.push_back(Du_Log(91));
    EXPECT_EQ(Noms(Copies_En_Trop(copies, maintenant)), QStringList{u"DFCF 91"_s});
}

TEST(Copies_En_Trop, chaque_log_a_ses_vingt)
{
    std::vector<Copie> copies;
    for (int rang = 0; rang < 21; ++rang) {
        copies.push_back(Du_Log(200 + rang));
        copies.push_back(Du_Log(300 + rang, 100, u"F9ZZY_DMF.log"_s));
    }
    EXPECT_EQ(Noms(Copies_En_Trop(copies, maintenant)), (QStringList{u"DFCF 220"_s, u"DMF 320"_s}));
}

TEST(Copies_En_Trop, au_dela_d_un_giga_octet_les_plus_anciennes_partent_sauf_la_derniere_d_un_log)
{
    const std::vector<Copie> copies = {Du_Log(1, 400'000'000), Du_Log(2, 400'000'000), Du_Log(3, 400'000'000),
                                       Du_Log(4, 1), Du_Log(80, 100'000'000, u"F9ZZY_DMF.log"_s)};
    EXPECT_EQ(Noms(Copies_En_Trop(copies, maintenant)), (QStringList{u"DFCF 3"_s, u"DFCF 4"_s}));
}

TEST(Copies_En_Trop, la_derniere_d_un_log_reste_quelle_que_soit_sa_taille)
{
    const std::vector<Copie> copies = {Du_Log(200, 3'000'000'000), Du_Log(201, 10)};
    EXPECT_EQ(Noms(Copies_En_Trop(copies, maintenant)), QStringList{u"DFCF 201"_s});
}
