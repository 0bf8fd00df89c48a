#include "diplomes/ecrans/Ecran_Fiche.h"
#include "diplomes/ecrans/Ecran_Liste.h"
#include "diplomes/ecrans/Scores_DYLF.h"
#include "diplomes/tables/Tables.h"
#include "faux/Conduite.h"
#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "faux/QSO_Essai.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include <gtest/gtest.h>

#include <map>

using namespace Qt::StringLiterals;
using namespace diplomes;

namespace {

QString Texte(const QWidget &ecran, const QString &nom)
{
    return conduite::Trouve<QLabel>(ecran, nom)->text();
}

} // namespace

class DYLF_A_L_Ecran : public ::testing::Test {
protected:
    DYLF_A_L_Ecran()
    {
        QString texte;
        for (const auto &[bande, mode] : std::vector<std::pair<QString, QString>>{{u"14 Mhz"_s, u"CW"_s},
                                                                                  {u"10 Mhz"_s, u"CW"_s},
                                                                                  {u"21 Mhz"_s, u"TTY"_s},
                                                                                  {u"7.0 Mhz"_s, u"PSK"_s},
                                                                                  {u"50 Mhz"_s, u"SSB"_s},
                                                                                  {u"432 Mhz"_s, u"FM"_s}})
            texte += QSO({.mode = mode, .bande = bande}) + fin_de_ligne;
        essai_.fichiers.Pose(u"F9ZZY_DYLF.log"_s, texte.toLatin1());
    }

    Poste_Essai essai_;
};

TEST_F(DYLF_A_L_Ecran, les_scores_sont_sous_leurs_noms)
{
    const Scores_DYLF ecran(essai_.poste);
    EXPECT_EQ(ecran.objectName(), u"Scores_DYLF"_s);
    ASSERT_EQ(ecran.findChildren<QGroupBox *>().size(), 1);
    EXPECT_EQ(ecran.findChildren<QGroupBox *>()[0]->title(), u"Scores par bandes et Modes"_s);
    const std::map<QString, QString> attendus = {
        {u"Nb1"_s, u"0"_s}, {u"Pt1"_s, u"0"_s},   {u"Nb2"_s, u"2"_s},    {u"Pt2"_s, u"200"_s},
        {u"Nb3"_s, u"2"_s}, {u"Pt3"_s, u"100"_s}, {u"Nb4"_s, u"1"_s},    {u"Pt4"_s, u"150"_s},
        {u"Nb5"_s, u"0"_s}, {u"Pt5"_s, u"0"_s},   {u"Nb6"_s, u"0"_s},    {u"Pt6"_s, u"0"_s},
        {u"Nb7"_s, u"1"_s}, {u"Pt7"_s, u"100"_s}, {u"Tot_Nb"_s, u"6"_s}, {u"Tot_Pt"_s, u"550"_s},
    };
    for (const auto &[nom, texte] : attendus)
        EXPECT_EQ(Texte(ecran, nom), texte) << nom.toStdString();
}

TEST_F(DYLF_A_L_Ecran, les_rangees_ont_leurs_mots)
{
    const Scores_DYLF ecran(essai_.poste);
    QStringList mots;
    for (int i = 1; i <= 7; ++i)
        mots.push_back(Texte(ecran, u"Label_%1"_s.arg(i)));
    EXPECT_EQ(mots, (QStringList{u"Bande HF en SSB"_s, u"Bande HF en CW"_s, u"Bande HF en PSK"_s, u"Bande VHF SSB"_s,
                                 u"Bande VHF FM"_s, u"Bande UHF SSB"_s, u"Bande UHF FM"_s}));
    EXPECT_EQ(Texte(ecran, u"Label_Nb"_s), u"Nb"_s);
    EXPECT_EQ(Texte(ecran, u"Label_Pt"_s), u"Points"_s);
    EXPECT_EQ(Texte(ecran, u"Label_Tot"_s), u"Total"_s);
}

TEST_F(DYLF_A_L_Ecran, la_fiche_montre_ses_points_qui_ne_sont_pas_ceux_des_scores)
{
    Ecran_Fiche ecran(essai_.poste, fiche_dylf);
    ecran.show();
    EXPECT_EQ(Texte(ecran, u"Label2"_s), u"Diplomes  DYLF"_s);
    EXPECT_EQ(Texte(ecran, u"Label18"_s), u"avec vos"_s);
    EXPECT_EQ(Texte(ecran, u"Label5"_s), u"450"_s);
    EXPECT_EQ(Texte(ecran, u"Label8"_s), u"150"_s);
    EXPECT_FALSE(conduite::Trouve<QPushButton>(ecran, u"YL_Argent"_s)->isEnabled());
    conduite::Entree(*conduite::Trouve<QPushButton>(ecran, u"YL_Bronze"_s));
    EXPECT_EQ(essai_.ecrans.montres, std::vector<QString>{u"Liste_DYLF"_s});
}

TEST_F(DYLF_A_L_Ecran, les_trois_ecrans_tiennent_dans_un_petit_bureau)
{
    Scores_DYLF scores(essai_.poste);
    Ecran_Fiche fiche(essai_.poste, fiche_dylf);
    Ecran_Liste liste(essai_.poste, liste_dylf);
    for (QWidget *ecran : std::initializer_list<QWidget *>{&scores, &fiche, &liste}) {
        Centre(*ecran);
        EXPECT_LE(ecran->width(), 1366);
        EXPECT_LE(ecran->height(), 768);
    }
}
