#include "consultation/Contactes.h"
#include "consultation/ecrans/Aff_Contacte.h"
#include "consultation/ecrans/Affiche_Toutes_Activites.h"
#include "consultation/ecrans/Detail_Activite.h"
#include "ecrans/Liste_Fixe.h"
#include "faux/Conduite.h"
#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "faux/QSO_Essai.h"
#include "log/Catalogue.h"
#include "log/Etat_Commun.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;
using conduite::Trouve;

namespace {

void Presse(const QWidget &ecran, const QString &bouton)
{
    QTest::mouseClick(Trouve<QPushButton>(ecran, bouton), Qt::LeftButton);
}

/// Shows a screen that a test holds itself.
void Montre(QWidget &ecran)
{
    ecran.setAttribute(Qt::WA_DeleteOnClose, false);
    ecran.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&ecran));
}

QString Texte(const QWidget &ecran, const QString &nom)
{
    return Trouve<QLineEdit>(ecran, nom)->text();
}

} // namespace

TEST(Ecran_Aff_Contacte, se_remplit_a_l_ouverture_sans_choix_de_bande)
{
    Poste_Essai essai;
    essai.Ouvre(u"DFCF"_s);
    essai.fichiers.Pose(u"F9ZZY_DFCF.log"_s, QSO({.ref = u"77001"_s}).toLatin1());
    Aff_Contacte ecran(essai.poste);
    Montre(ecran);
    EXPECT_EQ(ecran.objectName(), u"Aff_Contacte"_s);
    EXPECT_EQ(Trouve<QLabel>(ecran, u"Label3"_s)->text(), u"Liste alphanumérique des DFCF contacté(e)s"_s);
    EXPECT_EQ(Trouve<QLabel>(ecran, u"Label2"_s)->text(), Entete_Contactes(Diplome::DFCF).toString());
    for (const QString &nom : {u"Label1"_s, u"Bande_A"_s, u"Affiche"_s})
        EXPECT_FALSE(Trouve(ecran, nom)->isVisible());
    EXPECT_EQ(Trouve<Liste_Fixe>(ecran, u"Liste_Acti_Contacte"_s)->Nombre(), 1);
    Presse(ecran, u"Quitter"_s);
    EXPECT_FALSE(ecran.isVisible());
}

TEST(Ecran_Aff_Contacte, DDFM_attend_le_choix_d_une_bande)
{
    Poste_Essai essai;
    essai.Ouvre(u"DDFM"_s);
    essai.fichiers.Pose(u"F9ZZY_DDFM.log"_s, QSO({.dpt = u"77"_s, .bande = u"7.0 Mhz"_s}).toLatin1());
    Aff_Contacte ecran(essai.poste);
    Montre(ecran);
    auto *bande = Trouve<QComboBox>(ecran, u"Bande_A"_s);
    const auto *liste = Trouve<Liste_Fixe>(ecran, u"Liste_Acti_Contacte"_s);
    EXPECT_EQ(bande->count(), 12);
    EXPECT_EQ(bande->itemText(11), u"432 Mhz"_s);
    EXPECT_EQ(Trouve<QLabel>(ecran, u"Label1"_s)->text(), u"bande"_s);
    EXPECT_EQ(Trouve<QPushButton>(ecran, u"Affiche"_s)->text(), u"Afficher"_s);
    EXPECT_TRUE(bande->isVisible());
    EXPECT_EQ(liste->Nombre(), 0);
    EXPECT_FALSE(Trouve(ecran, u"Enregistrer"_s)->isEnabled());
    bande->setCurrentText(u"7.0 Mhz"_s);
    Presse(ecran, u"Affiche"_s);
    EXPECT_EQ(liste->Nombre(), 1);
    bande->setCurrentText(u"14 Mhz"_s);
    Presse(ecran, u"Affiche"_s);
    EXPECT_EQ(liste->Nombre(), 0);
    EXPECT_TRUE(Trouve(ecran, u"Enregistrer"_s)->isEnabled());
}

TEST(Ecran_Aff_Contacte, enregistre_et_imprime_ce_qu_il_montre)
{
    Poste_Essai essai;
    essai.Ouvre(u"DFCF"_s);
    essai.fichiers.Pose(u"F9ZZY_DFCF.log"_s, QSO({.ref = u"77001"_s}).toLatin1());
    Aff_Contacte ecran(essai.poste);
    Montre(ecran);
    // The rows stay those of the award that the screen was opened on.
    essai.Ouvre(u"DMF"_s);
    Presse(ecran, u"Enregistrer"_s);
    EXPECT_TRUE(essai.fichiers.Existe(u"F9ZZY_activations_DFCF_15_11_26.txt"_s));
    Presse(ecran, u"Imprimer"_s);
    ASSERT_EQ(essai.imprimante.documents.size(), 1U);
    EXPECT_TRUE(essai.imprimante.documents[0][4].startsWith(u"   1  77001"));
}

TEST(Ecran_Toutes_Activites, entree_prepare_le_bouton_qui_montre_les_lignes)
{
    Poste_Essai essai;
    for (const QStringView code : codes_diplome)
        essai.fichiers.Pose(essai.etat.station.Log(Diplome_De(code)), QSO({}).toLatin1());
    Affiche_Toutes_Activites ecran(essai.poste);
    Montre(ecran);
    EXPECT_EQ(ecran.windowTitle(), u"Liste des ativations contactées d'un activeur"_s);
    EXPECT_EQ(Trouve<QLabel>(ecran, u"Label1"_s)->text(), u"Liste des ativations contactées de :"_s);
    auto *indicatif = Trouve<QLineEdit>(ecran, u"Indicatif"_s);
    auto *affiche = Trouve<QPushButton>(ecran, u"Affiche"_s);
    EXPECT_EQ(QApplication::focusWidget(), indicatif);
    conduite::Entree(*indicatif);
    EXPECT_EQ(essai.boites.messages, std::vector{u"Entrez un indicatif"_s});
    EXPECT_FALSE(affiche->isEnabled());
    conduite::Tape(*indicatif, u"f5abc"_s);
    conduite::Entree(*indicatif);
    EXPECT_EQ(QApplication::focusWidget(), affiche);
    conduite::Entree(*affiche);
    const auto *liste = Trouve<Liste_Fixe>(ecran, u"Liste_All_Acti"_s);
    EXPECT_EQ(liste->Nombre(), 42);
    EXPECT_EQ(liste->Entree(41), u"  "_s + QSO({}));
    Presse(ecran, u"Quitter"_s);
    EXPECT_FALSE(ecran.isVisible());
}

namespace {

struct Ecran_Ouvrage : ::testing::Test {
    Poste_Essai essai;
    std::unique_ptr<Detail_Activite> ecran;

    void SetUp() override
    {
        essai.fichiers.Pose(u"Liste_Ouvrages.csv"_s, "Rev;;;;;;;;;;;;;;;;;;;\r\n"
                                                     "45-EC-102;Ecluse;T;45;;;;;;;;;;;;;;;site.test/p;\r\n"
                                                     "2AEC001;Pont;T;2A;;;;;;;;;;;;;;;;\r\n");
        essai.ecran.selection = Ligne_Affichage(1, QSO({.ref = u"45EC102"_s}));
        ecran = std::make_unique<Detail_Activite>(essai.poste);
        Montre(*ecran);
    }
    void Demande(const QString &reference) const
    {
        auto *champ = Trouve<QLineEdit>(*ecran, u"Reference_I"_s);
        champ->clear();
        conduite::Tape(*champ, reference);
        conduite::Entree(*champ);
    }
};

} // namespace

TEST_F(Ecran_Ouvrage, montre_l_ouvrage_de_l_entree_choisie)
{
    EXPECT_EQ(ecran->objectName(), u"Detail_Activite"_s);
    EXPECT_EQ(ecran->windowTitle(), u"Detail d'une référence"_s);
    EXPECT_EQ(Texte(*ecran, u"Reference_I"_s), u"45EC102"_s);
    EXPECT_EQ(Texte(*ecran, u"Ref_I"_s), u"45-EC-102"_s);
    EXPECT_EQ(Texte(*ecran, u"Nom_I"_s), u"Ecluse"_s);
    EXPECT_EQ(Texte(*ecran, u"Rem_I"_s), u""_s);
    EXPECT_EQ(Texte(*ecran, u"Large_Pieg_I"_s), u""_s);
    EXPECT_TRUE(Trouve<QLineEdit>(*ecran, u"Historique_I"_s)->isReadOnly());
    EXPECT_EQ(Trouve<QLabel>(*ecran, u"L_Reference_I"_s)->text(), u"Ou nouvelle Référence :"_s);
    EXPECT_EQ(Trouve<QPushButton>(*ecran, u"Situer"_s)->text(), u"Situer sur la carte"_s);
}

TEST_F(Ecran_Ouvrage, entree_cherche_une_autre_reference)
{
    Demande(u"2aec001"_s);
    EXPECT_EQ(Texte(*ecran, u"Nom_I"_s), u"Pont"_s);
    EXPECT_EQ(Texte(*ecran, u"Internet_I"_s), u""_s);
    EXPECT_FALSE(Trouve(*ecran, u"Ouvre_Lien"_s)->isEnabled());
    EXPECT_TRUE(essai.boites.messages.empty());
}

TEST_F(Ecran_Ouvrage, une_reference_inconnue_laisse_les_anciennes_donnees)
{
    Demande(u"45EC999"_s);
    EXPECT_EQ(essai.boites.messages, std::vector{u"Référence non trouvée"_s});
    EXPECT_EQ(Texte(*ecran, u"Ref_I"_s), u"45EC999"_s);
    EXPECT_EQ(Texte(*ecran, u"Nom_I"_s), u"Ecluse"_s);
}

TEST_F(Ecran_Ouvrage, entree_veut_sept_caracteres_et_le_bouton_non)
{
    Demande(u"45EC1"_s);
    EXPECT_EQ(essai.boites.messages, std::vector{u"7 caracteres pour la reference ex: 45EC001"_s});
    EXPECT_EQ(Texte(*ecran, u"Ref_I"_s), u"45-EC-102"_s);
    Presse(*ecran, u"Afficher"_s);
    EXPECT_EQ(essai.boites.messages.back(), u"Référence non trouvée"_s);
    EXPECT_EQ(Texte(*ecran, u"Ref_I"_s), u"45EC1"_s);
}

TEST_F(Ecran_Ouvrage, situer_ouvre_la_carte_sur_le_departement)
{
    Presse(*ecran, u"Situer"_s);
    EXPECT_EQ(essai.etat.departement_carte, u"45"_s);
    EXPECT_EQ(essai.ecrans.montres, std::vector{u"Carte_Detail"_s});
}

TEST_F(Ecran_Ouvrage, le_lien_ouvre_sa_page)
{
    Presse(*ecran, u"Ouvre_Lien"_s);
    EXPECT_EQ(essai.etat.adresse_page, u"site.test/p"_s);
    EXPECT_EQ(essai.ecrans.montres, std::vector{u"Affichage"_s});
}
