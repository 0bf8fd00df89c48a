#include "diplomes/ecrans/Ecran_Liste.h"
#include "diplomes/tables/Tables.h"
#include "ecrans/Liste_Fixe.h"
#include "faux/Conduite.h"
#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "faux/QSO_Essai.h"
#include "plateforme/qt/Boites_Qt.h"

#include <QLabel>
#include <QPointer>
#include <QPushButton>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace diplomes;

class Liste_A_L_Ecran : public ::testing::Test {
protected:
    Liste_A_L_Ecran()
    {
        QString texte;
        for (const QString &ref : {u"77002"_s, u"77001"_s})
            texte += QSO({.dpt = u"77"_s, .ref = ref, .qsl = u"*"_s}) + fin_de_ligne;
        essai_.fichiers.Pose(u"F9ZZY_DFCF.log"_s, texte.toLatin1());
        essai_.etat.bande_liste = u"HF"_s;
        essai_.etat.code_categorie = u"de Base"_s;
    }
    static QString Texte(const QWidget &ecran, const QString &nom)
    {
        return conduite::Trouve<QLabel>(ecran, nom)->text();
    }

    Poste_Essai essai_;
};

TEST_F(Liste_A_L_Ecran, montre_les_rangs_et_leurs_textes)
{
    const Ecran_Liste ecran(essai_.poste, liste_dfcf);
    EXPECT_EQ(ecran.objectName(), u"Liste_DFCF"_s);
    EXPECT_EQ(ecran.windowTitle(), u"Liste DFCF bande HF"_s);
    EXPECT_EQ(Texte(ecran, u"Label4"_s), u"Diplome DFCF HF de Base"_s);
    EXPECT_EQ(Texte(ecran, u"Label2"_s),
              u"   Ref     Dpt        Nom du Chateau              Date   Heure  Indicatif"_s);
    EXPECT_EQ(Texte(ecran, u"Label3"_s), u" 2 Chateaux confirmés"_s);
    const auto *rangs = conduite::Trouve<Liste_Fixe>(ecran, u"Liste_DFCF_Contacte"_s);
    ASSERT_EQ(rangs->Nombre(), 2);
    EXPECT_TRUE(rangs->Entree(0).startsWith(u" 77001 "_s));
    EXPECT_TRUE(rangs->Entree(1).startsWith(u" 77002 "_s));
}

TEST_F(Liste_A_L_Ecran, la_liste_est_jaune_clair_en_petite_police_fixe_et_le_titre_gras)
{
    const Ecran_Liste ecran(essai_.poste, liste_dfcf);
    const auto *rangs = conduite::Trouve<Liste_Fixe>(ecran, u"Liste_DFCF_Contacte"_s);
    EXPECT_EQ(rangs->palette().color(QPalette::Base), QColor(255, 255, 192));
    EXPECT_EQ(rangs->font().pointSize(), 9);
    EXPECT_TRUE(QFontInfo(rangs->font()).fixedPitch());
    EXPECT_EQ(conduite::Trouve<QLabel>(ecran, u"Label2"_s)->font(), rangs->font());
    const QFont titre = conduite::Trouve<QLabel>(ecran, u"Label4"_s)->font();
    EXPECT_TRUE(titre.bold());
    EXPECT_EQ(titre.pointSize(), 12);
}

TEST_F(Liste_A_L_Ecran, enregistrer_ecrit_le_fichier_et_le_dit_dans_une_vraie_boite)
{
    Boites_Qt boites;
    Poste poste{{essai_.dossier, essai_.reglages, essai_.horloge, boites, essai_.ecrans, essai_.imprimante,
                 essai_.telechargement, essai_.vues_web},
                essai_.etat,
                essai_.ecran};
    Ecran_Liste ecran(poste, liste_dfcf);
    ecran.show();
    const std::vector<QString> textes =
        conduite::Repond({u"OK"_s}, [&] { conduite::Entree(*conduite::Trouve<QPushButton>(ecran, u"Enregistrer"_s)); });
    const QString nom = u"F9ZZY_Diplome_DFCF_de_Base_Bande_HF_15_11_26.txt"_s;
    EXPECT_EQ(textes, std::vector<QString>{u"Fichier enregistré sous le nom : "_s + nom});
    EXPECT_EQ(essai_.fichiers.Octets(nom).count('\n'), 8);
}

TEST_F(Liste_A_L_Ecran, imprimer_donne_les_rangs_a_l_imprimante)
{
    const Ecran_Liste ecran(essai_.poste, liste_dfcf);
    conduite::Trouve<QPushButton>(ecran, u"Imprimer"_s)->click();
    ASSERT_EQ(essai_.imprimante.documents.size(), 1U);
    EXPECT_TRUE(essai_.imprimante.documents[0][4].startsWith(u"        1  77001 "_s));
}

TEST_F(Liste_A_L_Ecran, les_boutons_sont_actifs_meme_sans_rang)
{
    essai_.fichiers.Pose(u"F9ZZY_DFCF.log"_s, {});
    const Ecran_Liste ecran(essai_.poste, liste_dfcf);
    for (const QString &nom : {u"Imprimer"_s, u"Enregistrer"_s, u"Command1"_s})
        EXPECT_TRUE(conduite::Trouve<QPushButton>(ecran, nom)->isEnabled());
    EXPECT_EQ(Texte(ecran, u"Label3"_s), u" 0 Chateaux confirmés"_s);
}

TEST_F(Liste_A_L_Ecran, quitter_decharge_l_ecran)
{
    QPointer<Ecran_Liste> ecran = new Ecran_Liste(essai_.poste, liste_dfcf);
    ecran->show();
    auto *quitter = conduite::Trouve<QPushButton>(*ecran, u"Command1"_s);
    EXPECT_EQ(quitter->text(), u"Quitter"_s);
    conduite::Entree(*quitter);
    EXPECT_TRUE(QTest::qWaitFor([&] { return ecran.isNull(); }, 2000));
}

TEST_F(Liste_A_L_Ecran, un_autre_bouton_garde_les_rangs_et_change_le_fichier)
{
    const Ecran_Liste ecran(essai_.poste, liste_dfcf);
    essai_.etat.code_categorie = u"Honneur"_s;
    conduite::Trouve<QPushButton>(ecran, u"Enregistrer"_s)->click();
    EXPECT_TRUE(essai_.fichiers.Existe(u"F9ZZY_Diplome_DFCF_Honneur_Bande_HF_15_11_26.txt"_s));
    EXPECT_EQ(Texte(ecran, u"Label4"_s), u"Diplome DFCF HF de Base"_s);
}
