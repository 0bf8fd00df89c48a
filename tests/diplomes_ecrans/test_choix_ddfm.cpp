#include "diplomes/ecrans/Ecran_Choix.h"
#include "diplomes/tables/Tables.h"
#include "faux/Conduite.h"
#include "faux/Impression.h"
#include "faux/Poste_Essai.h"

#include <QComboBox>
#include <QPushButton>
#include <QRadioButton>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace diplomes;

class Choix_DDFM_A_L_Ecran : public ::testing::Test {
protected:
    Choix_DDFM_A_L_Ecran() { ecran_.show(); }
    void Choisit(const QString &nom) { conduite::Trouve<QRadioButton>(ecran_, nom)->click(); }
    void Affiche() { conduite::Entree(*conduite::Trouve<QPushButton>(ecran_, u"Afficher"_s)); }
    [[nodiscard]] QStringList Visibles() const
    {
        QStringList noms;
        for (const QComboBox *bandes : {bande_hf_, bande_thf_})
            if (bandes->isVisible())
                noms << bandes->objectName();
        return noms;
    }

    Poste_Essai essai_;
    Ecran_Choix ecran_{essai_.poste, choix_ddfm};
    QComboBox *bande_hf_ = conduite::Trouve<QComboBox>(ecran_, u"Bande_HF"_s);
    QComboBox *bande_thf_ = conduite::Trouve<QComboBox>(ecran_, u"Bande_THF"_s);
};

TEST_F(Choix_DDFM_A_L_Ecran, s_ouvre_sans_option_sur_les_bandes_HF)
{
    EXPECT_EQ(ecran_.windowTitle(), u"Selection diplome DDFM"_s);
    EXPECT_EQ(Visibles(), QStringList{u"Bande_HF"_s});
    EXPECT_EQ(bande_hf_->currentText(), u"1.8 Mhz"_s);
    EXPECT_EQ(bande_hf_->count(), 9);
    EXPECT_EQ(bande_thf_->currentText(), u"50 Mhz"_s);
    EXPECT_EQ(bande_thf_->count(), 3);
    Affiche();
    EXPECT_TRUE(essai_.ecrans.montres.empty());
}

TEST_F(Choix_DDFM_A_L_Ecran, chaque_option_montre_ses_bandes)
{
    Choisit(u"Diplome_2"_s);
    EXPECT_EQ(Visibles(), QStringList{u"Bande_THF"_s});
    Choisit(u"Diplome_3"_s);
    EXPECT_EQ(Visibles(), QStringList{u"Bande_THF"_s});
    Choisit(u"Diplome_1"_s);
    EXPECT_EQ(Visibles(), QStringList{u"Bande_HF"_s});
}

TEST_F(Choix_DDFM_A_L_Ecran, afficher_prend_la_bande_choisie)
{
    Choisit(u"Diplome_2"_s);
    QTest::keyClick(bande_thf_, Qt::Key_Down);
    Affiche();
    EXPECT_EQ(essai_.etat.bande_liste, u"144 Mhz"_s);
    EXPECT_EQ(essai_.etat.code_categorie, u"THF"_s);
    EXPECT_EQ(essai_.ecrans.montres, std::vector<QString>{u"Diplomes_DDFM"_s});
}
