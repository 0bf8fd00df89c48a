#include "diplomes/Ecran_Du_Diplome.h"
#include "diplomes/ecrans/Ecran_Choix.h"
#include "diplomes/ecrans/Ecrans_Diplomes.h"
#include "diplomes/tables/Tables.h"
#include "ecrans/Ecran.h"
#include "ecrans/Liste_Fixe.h"
#include "faux/Conduite.h"
#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "faux/QSO_Essai.h"
#include "log/Catalogue.h"

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;
using namespace diplomes;

namespace {

/// A station whose every log holds some confirmed QSOs.
struct Station_Remplie : Poste_Essai {
    Station_Remplie()
    {
        const QByteArray ligne = (QSO({.dpt = u"77"_s, .ref = u"77PT001"_s, .qsl = u"*"_s}) + fin_de_ligne).toLatin1();
        for (const QStringView code : codes_diplome)
            fichiers.Pose(u"F9ZZY_%1.log"_s.arg(code), ligne.repeated(40));
    }
    [[nodiscard]] std::unique_ptr<QWidget> Ouvre_Ecran(const QString &nom)
    {
        for (const Inscription &possible : Ecrans_Diplomes(poste))
            if (possible.nom == nom)
                return std::unique_ptr<QWidget>(possible.fabrique());
        return nullptr;
    }
};

QStringList Codes_Communs()
{
    return {u"DAF"_s, u"DCF"_s, u"DCPF"_s, u"DFCF"_s, u"DFF"_s, u"DIFI"_s, u"DIFM"_s,
            u"DLF"_s, u"DMF"_s, u"DPLF"_s, u"FFF"_s,  u"PC"_s,  u"WLF"_s};
}

} // namespace

TEST(Ecrans_Diplomes, le_menu_trouve_l_ecran_de_chaque_award_commun)
{
    Station_Remplie station;
    for (const QString &code : Codes_Communs()) {
        const QString nom = Ecran_Du_Diplome(Diplome_De(code));
        const std::unique_ptr<QWidget> ecran = station.Ouvre_Ecran(nom);
        ASSERT_NE(ecran, nullptr) << nom.toStdString();
        EXPECT_EQ(ecran->objectName(), nom);
        EXPECT_FALSE(ecran->windowTitle().isEmpty());
    }
}

TEST(Ecrans_Diplomes, chaque_fiche_montre_les_noms_de_sa_table)
{
    Station_Remplie station;
    for (const QString &code : Codes_Communs())
        for (const Fiche_Diplome *fiche : Fiches()) {
            if (Code(fiche->sources.diplome) != code)
                continue;
            const std::unique_ptr<QWidget> ecran = station.Ouvre_Ecran(fiche->ecran.toString());
            EXPECT_EQ(conduite::Trouve<QLabel>(*ecran, u"Label2"_s)->text(), ecran->windowTitle());
            for (const Niveau_Diplome &niveau : fiche->niveaux) {
                conduite::Trouve<QLabel>(*ecran, niveau.etat.toString());
                conduite::Trouve<QPushButton>(*ecran, niveau.bouton.toString());
                for (const Texte_Detail &detail : niveau.detail)
                    if (!detail.nom.isEmpty())
                        conduite::Trouve<QLabel>(*ecran, detail.nom.toString());
            }
        }
}

TEST(Ecrans_Diplomes, chaque_liste_montre_ses_rangs_sans_barre_en_travers)
{
    Station_Remplie station;
    station.etat.bande_liste = u"HF"_s;
    station.etat.code_categorie = u"MI"_s;
    station.etat.mode_liste = u"SSB"_s;
    for (const QString &code : Codes_Communs()) {
        if (code == u"DFF"_s)
            station.etat.code_categorie = u"HF"_s;
        const std::unique_ptr<QWidget> ecran = station.Ouvre_Ecran(u"Liste_"_s + code);
        ASSERT_NE(ecran, nullptr);
        const auto *rangs = conduite::Trouve<Liste_Fixe>(*ecran, u"Liste_%1_Contacte"_s.arg(code));
        EXPECT_EQ(rangs->Nombre(), 40) << code.toStdString();
        station.etat.code_categorie = u"MI"_s;
        Centre(*ecran);
        ecran->show();
        EXPECT_FALSE(rangs->horizontalScrollBar()->isVisible()) << code.toStdString();
        EXPECT_LE(ecran->width(), 1366);
        EXPECT_LE(ecran->height(), 768);
    }
}

class Choix_A_L_Ecran : public ::testing::Test {
protected:
    void Choisit(const Ecran_Choix &ecran, int indice)
    {
        auto *option = conduite::Trouve<QRadioButton>(ecran, u"Diplome_%1"_s.arg(indice));
        QTest::mouseClick(option, Qt::LeftButton, {}, QPoint(8, option->height() / 2));
        conduite::Entree(*conduite::Trouve<QPushButton>(ecran, u"Afficher"_s));
    }

    Poste_Essai essai_;
};

TEST_F(Choix_A_L_Ecran, sans_option_afficher_ne_fait_rien)
{
    Ecran_Choix ecran(essai_.poste, choix_dcpf);
    ecran.show();
    for (int i = 1; i <= 4; ++i)
        EXPECT_FALSE(conduite::Trouve<QRadioButton>(ecran, u"Diplome_%1"_s.arg(i))->isChecked());
    conduite::Entree(*conduite::Trouve<QPushButton>(ecran, u"Afficher"_s));
    EXPECT_TRUE(essai_.ecrans.montres.empty());
    EXPECT_TRUE(essai_.etat.libelle_categorie.isEmpty());
}

TEST_F(Choix_A_L_Ecran, afficher_pose_les_textes_de_l_option_et_reste_ouvert)
{
    Ecran_Choix ecran(essai_.poste, choix_dcpf);
    ecran.show();
    EXPECT_EQ(ecran.objectName(), u"Select_Dip_DCPF"_s);
    EXPECT_EQ(conduite::Trouve<QLabel>(ecran, u"Label2"_s)->text(), u"Sélection d'un diplome DCPF"_s);
    Choisit(ecran, 2);
    EXPECT_EQ(essai_.etat.libelle_categorie, u"Tour Isolée ( Pouvant en faire le tour )"_s);
    EXPECT_EQ(essai_.etat.code_categorie, u"PT"_s);
    EXPECT_EQ(essai_.etat.niveau_liste, u"Tour isolée"_s);
    EXPECT_EQ(essai_.ecrans.montres, std::vector<QString>{u"Diplomes_DCPF"_s});
    EXPECT_TRUE(ecran.isVisible());
    Choisit(ecran, 4);
    EXPECT_EQ(essai_.etat.code_categorie, u"MI"_s);
    EXPECT_EQ(essai_.ecrans.montres.size(), 2U);
}

TEST_F(Choix_A_L_Ecran, chaque_option_a_son_texte_et_sa_categorie)
{
    struct Attendu {
        const Choix_Diplome &choix;
        int indice;
        QString texte, categorie;
    };
    const std::vector<Attendu> attendus = {
        {choix_daf, 1, u"Chasseur Mixte"_s, u"Mixte"_s},
        {choix_daf, 2, u"Chasseur Phone"_s, u"Phone"_s},
        {choix_daf, 3, u"Chasseur CW"_s, u"CW"_s},
        {choix_dcpf, 1, u"Atypique ( De construction particuliere )"_s, u"CA"_s},
        {choix_dcpf, 3, u"Accolé ( A une demeure ou à un batiment )"_s, u"PA"_s},
        {choix_dff, 1, u"Diplome HF"_s, u"HF"_s},
        {choix_dff, 2, u"Diplome VHF"_s, u"VHF"_s},
    };
    for (const Attendu &attendu : attendus) {
        Ecran_Choix ecran(essai_.poste, attendu.choix);
        ecran.show();
        Choisit(ecran, attendu.indice);
        EXPECT_EQ(essai_.etat.libelle_categorie, attendu.texte);
        EXPECT_EQ(essai_.etat.code_categorie, attendu.categorie);
    }
}
