#include "faux/Conduite.h"
#include "faux/Impression.h"
#include "programme/Registre.h"

#include <QPointer>

#include <gtest/gtest.h>

#include <optional>

using namespace Qt::StringLiterals;
using conduite::Fenetre;

namespace {

class Ecran_Essai : public Ecran {
public:
    explicit Ecran_Essai(const QString &nom) : Ecran(nom, nom) { setMinimumSize(200, 100); }
    [[nodiscard]] bool Garde_Ouvert() const override { return garde; }
    void Suit_Le_Log() override { ++suivis; }

    bool garde = false;
    int suivis = 0;
};

class Registre_D_Ecrans : public ::testing::Test {
protected:
    Registre_D_Ecrans() : registre(std::in_place) {}
    void Inscrit(const QString &nom, Reouverture reouverture = Reouverture::Refaite, Attache attache = Attache::Libre)
    {
        registre->Inscrit_Ecran({nom, [this, nom] { return dernier = new Ecran_Essai(nom); }, reouverture, attache});
    }
    QPointer<Ecran_Essai> Montre(const QString &nom)
    {
        registre->Montre(nom);
        return dernier;
    }

    std::optional<Registre> registre;
    Ecran_Essai *dernier = nullptr;
};

} // namespace

TEST_F(Registre_D_Ecrans, un_nom_inconnu_n_ouvre_et_n_execute_rien)
{
    Inscrit(u"Un"_s);
    registre->Montre(u"Autre"_s);
    registre->Montre_Modal(u"Autre"_s);
    registre->Execute(u"Autre"_s);
    EXPECT_EQ(dernier, nullptr);
    EXPECT_TRUE(registre->Connait(u"Un"_s));
    EXPECT_FALSE(registre->Connait(u"Autre"_s));
    EXPECT_FALSE(registre->Connait_Commande(u"Un"_s));
}

TEST_F(Registre_D_Ecrans, une_commande_s_execute_sous_son_nom)
{
    int fois = 0;
    registre->Inscrit_Commande(u"Trie"_s, [&] { ++fois; });
    EXPECT_TRUE(registre->Connait_Commande(u"Trie"_s));
    registre->Execute(u"Trie"_s);
    EXPECT_EQ(fois, 1);
}

TEST_F(Registre_D_Ecrans, un_ecran_s_ouvre_au_milieu_du_bureau)
{
    Inscrit(u"Un"_s);
    const QPointer<Ecran_Essai> ecran = Montre(u"Un"_s);
    EXPECT_TRUE(ecran->isVisible());
    EXPECT_EQ(ecran->windowModality(), Qt::NonModal);
    EXPECT_EQ(ecran->pos() + ecran->rect().center(), ecran->screen()->availableGeometry().center());
}

TEST_F(Registre_D_Ecrans, un_ecran_ferme_se_refait_tel_quel_ou_non)
{
    for (const Reouverture reouverture : {Reouverture::Refaite, Reouverture::Telle_Quelle}) {
        Inscrit(u"Un"_s, reouverture);
        const QPointer<Ecran_Essai> premier = Montre(u"Un"_s);
        premier->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_TRUE(premier.isNull());
        EXPECT_TRUE(Montre(u"Un"_s)->isVisible());
    }
}

TEST_F(Registre_D_Ecrans, un_ecran_modal_tient_l_appelant_jusqu_a_sa_fermeture)
{
    Inscrit(u"Un"_s);
    bool vu = false;
    conduite::Pendant_Modal(
        u"Un"_s, [this] { registre->Montre_Modal(u"Un"_s); },
        [&](QWidget &ecran) {
            vu = true;
            EXPECT_EQ(ecran.windowModality(), Qt::ApplicationModal);
            EXPECT_EQ(QApplication::activeModalWidget(), &ecran);
            ecran.close();
        });
    EXPECT_TRUE(vu);
    EXPECT_EQ(Fenetre(u"Un"_s), nullptr);
}

TEST_F(Registre_D_Ecrans, ce_qui_n_est_pas_enregistre_garde_l_ecran_ouvert)
{
    Inscrit(u"Un"_s, Reouverture::Refaite, Attache::Station);
    const QPointer<Ecran_Essai> premier = Montre(u"Un"_s);
    premier->garde = true;
    EXPECT_EQ(Montre(u"Un"_s), premier);
    registre->Suit_La_Station();
    EXPECT_TRUE(premier->isVisible());
    premier->garde = false;
    registre->Suit_La_Station();
    EXPECT_FALSE(premier->isVisible());
}

TEST_F(Registre_D_Ecrans, les_ecrans_ouverts_suivent_le_log_et_la_station)
{
    Inscrit(u"Un"_s);
    Inscrit(u"Deux"_s, Reouverture::Telle_Quelle);
    const QPointer<Ecran_Essai> un = Montre(u"Un"_s);
    const QPointer<Ecran_Essai> deux = Montre(u"Deux"_s);
    registre->Suit_Le_Log();
    registre->Suit_La_Station();
    EXPECT_EQ(un->suivis, 2);
    EXPECT_EQ(deux->suivis, 2);
    EXPECT_TRUE(un->isVisible() && deux->isVisible());
}

TEST_F(Registre_D_Ecrans, ses_ecrans_s_en_vont_avec_lui)
{
    Inscrit(u"Un"_s);
    const QPointer<Ecran_Essai> ecran = Montre(u"Un"_s);
    registre.reset();
    EXPECT_TRUE(ecran.isNull());
}
