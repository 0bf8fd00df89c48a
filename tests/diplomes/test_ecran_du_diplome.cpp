#include "diplomes/Ecran_Du_Diplome.h"
#include "faux/Impression.h"
#include "log/Catalogue.h"

#include <gtest/gtest.h>

#include <map>

using namespace Qt::StringLiterals;
using namespace diplomes;

TEST(Ecran_Du_Diplome, chaque_code_a_sa_fiche_ou_son_choix)
{
    const std::map<QString, QString> attendus = {
        {u"Ch_DFCF"_s, u"Diplomes_Ch_DFCF"_s}, {u"Ch_DMF"_s, u"Diplomes_Ch_DFCF"_s}, {u"DAF"_s, u"Select_Dip_DAF"_s},
        {u"DCF"_s, u"Diplomes_DCF"_s},         {u"DCPF"_s, u"Select_Dip_DCPF"_s},    {u"DDFM"_s, u"Select_Dip_DDFM"_s},
        {u"DFCF"_s, u"Diplomes_DFCF"_s},       {u"DFF"_s, u"Select_Dip_DFF"_s},      {u"DIFI"_s, u"Diplomes_DIFI"_s},
        {u"DIFM"_s, u"Diplomes_DIFM"_s},       {u"DLF"_s, u"Diplomes_DLF"_s},        {u"DMF"_s, u"Diplomes_DMF_HF"_s},
        {u"DOHF"_s, u"Select_Dip_DOHF"_s},     {u"DPF"_s, u"Select_Dip_DPF"_s},      {u"DPLF"_s, u"Diplomes_DPLF"_s},
        {u"DVFF"_s, u"Diplomes_DVFF"_s},       {u"DYLF"_s, u"Diplomes_DYLF"_s},      {u"FFF"_s, u"Diplomes_FFF"_s},
        {u"PC"_s, u"Diplomes_PC"_s},           {u"TDC"_s, u"Select_Dip_TDC"_s},      {u"WLF"_s, u"Diplomes_WLF"_s},
    };
    EXPECT_EQ(attendus.size(), codes_diplome.size());
    for (const QStringView code : codes_diplome)
        EXPECT_EQ(Ecran_Du_Diplome(Diplome_De(code)), attendus.at(code.toString())) << code.toString().toStdString();
}

TEST(Ecran_Du_Diplome, un_texte_qui_n_est_pas_un_code_n_ouvre_rien)
{
    for (const QString &texte : {u""_s, u"DFCF "_s, u"DMF_HF"_s})
        EXPECT_EQ(Ecran_Du_Diplome(Diplome_De(texte)), QString()) << texte.toStdString();
}
