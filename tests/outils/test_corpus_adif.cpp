#include "Essai_Import.h"
#include "Log_Essai.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

// What the fuzzer starts from and what it found once: each file is read as the slow reading does.
TEST(Corpus_ADIF, chaque_fichier_se_lit_comme_par_la_lecture_lente)
{
    const QStringList noms = QDir(u"" DONNEES_ESSAI "/donnees/corpus_adif"_s).entryList(QDir::Files);
    EXPECT_GE(noms.size(), 10);
    for (const QString &nom : noms)
        EXPECT_EQ(Defaut_De_L_Import(Octets_Essai(u"donnees/corpus_adif/"_s + nom).toStdString()), "")
            << nom.toStdString();
}

TEST(Corpus_ADIF, une_ligne_d_un_megaoctet_et_des_octets_nuls_se_lisent)
{
    const std::string debut("<EOH>\n<CALL:1>A <STATE:2>77 <SIG:1>1 <QSO_DATE:8>20150926 <TIME_ON:4>1405 <BAND:3>20M ");
    EXPECT_EQ(Defaut_De_L_Import(debut + "<NAME:9>" + std::string(1 << 20, 'x') + "<EOR>\n"), "");
    EXPECT_EQ(Defaut_De_L_Import(debut + "<COMMENT:1>" + std::string(300000, '<') + "<EOR>\n"), "");
    EXPECT_EQ(Defaut_De_L_Import(debut + std::string(1000, '\0') + "<NAME:2>" + std::string(5, '\0') + "<EOR>\n"), "");
}
