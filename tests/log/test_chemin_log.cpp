#include "faux/Impression.h"
#include "log/Catalogue.h"
#include "log/Chemin_Log.h"
#include "log/Etat_Commun.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Chemin_Log, un_diplome_a_un_log_par_indicatif)
{
    Etat_Commun etat;
    etat.station.indicatif = u"F9ZZY_P"_s;
    for (const QStringView code : codes_diplome)
        if (!Est_Challenge(Diplome_De(code))) {
            EXPECT_EQ(etat.station.Log(Diplome_De(code)), u"F9ZZY_P_"_s + code + u".log");
        }
}

TEST(Chemin_Log, un_challenge_a_le_log_de_son_annee)
{
    Etat_Commun etat;
    etat.station.indicatif = u"F9ZZY"_s;
    etat.station.annee_ch_dfcf = u"2026"_s;
    etat.station.annee_ch_dmf = u"2025"_s;
    EXPECT_EQ(etat.station.Log(Diplome::Ch_DFCF), u"F9ZZY_Ch_DFCF_2026.log"_s);
    EXPECT_EQ(etat.station.Log(Diplome::Ch_DMF), u"F9ZZY_Ch_DMF_2025.log"_s);
}

TEST(Chemin_Log, une_annee_non_choisie_est_2000)
{
    EXPECT_EQ(Etat_Commun().station.Log(Diplome::Ch_DFCF), u"FXXXX_Ch_DFCF_2000.log"_s);
}

TEST(Chemin_Log, sans_annee_pour_tous_les_codes)
{
    EXPECT_EQ(Chemin_Log(u"F9ZZY", Diplome::Ch_DFCF), u"F9ZZY_Ch_DFCF.log"_s);
    EXPECT_EQ(Chemin_Log(u"F9ZZY", Diplome::DFCF), u"F9ZZY_DFCF.log"_s);
}
