#include "consultation/ecrans/Detail_DFCF.h"
#include "consultation/ecrans/Detail_FFF.h"
#include "consultation/ecrans/Detail_PC.h"
#include "faux/Conduite.h"
#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "faux/QSO_Essai.h"
#include "log/Ligne_Affichage.h"

#include <QLabel>
#include <QLineEdit>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using conduite::Trouve;

namespace {

void Verifie_Champs(const QWidget &ecran, const std::vector<std::array<QString, 3>> &attendus)
{
    EXPECT_EQ(ecran.findChildren<QLineEdit *>().size(), static_cast<qsizetype>(attendus.size()));
    for (const auto &[nom, etiquette, texte] : attendus) {
        const auto *champ = Trouve<QLineEdit>(ecran, nom);
        EXPECT_EQ(champ->text(), texte);
        EXPECT_TRUE(champ->isReadOnly());
        EXPECT_EQ(Trouve<QLabel>(ecran, u"L_"_s + nom)->text(), etiquette);
    }
}

} // namespace

TEST(Ecran_Detail_DFCF, montre_le_chateau_du_QSO_choisi)
{
    Poste_Essai essai;
    essai.fichiers.Pose(u"Liste_DFCF.csv"_s, "Rev\r\n63-087;Murol;12/05/07;F5ABC;Murol;63790\r\n");
    essai.ecran.ligne_selectionnee = Ligne_Affichage(3, QSO({.ref = u"63087"_s}));
    const Detail_DFCF ecran(essai.poste);
    EXPECT_EQ(ecran.objectName(), u"Detail_DFCF"_s);
    EXPECT_EQ(Trouve<QLabel>(ecran, u"Titre"_s)->text(), u"Detail de la référence"_s);
    Verifie_Champs(ecran, {{u"Ref_I"_s, u"Référence"_s, u"63087"_s},
                           {u"Nom_I"_s, u"Chateau"_s, u"Murol"_s},
                           {u"Date_I"_s, u"Le"_s, u"12/05/07"_s},
                           {u"Act_I"_s, u"Activé par"_s, u"F5ABC"_s},
                           {u"Ville_I"_s, u"Commune"_s, u"63790 Murol"_s}});
}

TEST(Ecran_Detail_DFCF, sans_QSO_choisi_dit_reference_non_trouvee)
{
    Poste_Essai essai;
    essai.fichiers.Pose(u"Liste_DFCF.csv"_s, "Rev\r\n");
    const Detail_DFCF ecran(essai.poste);
    EXPECT_EQ(essai.boites.messages, std::vector{u"Référence non trouvée"_s});
    EXPECT_EQ(Trouve<QLineEdit>(ecran, u"Ref_I"_s)->text(), u""_s);
}

TEST(Ecran_Detail_FFF, montre_le_site_du_QSO_choisi)
{
    Poste_Essai essai;
    essai.fichiers.Pose(u"Liste_FFF.csv"_s, "Rev\r\n2;France;FR;FFF-0051;Parc;;;;;\r\n");
    essai.ecran.ligne_selectionnee = Ligne_Affichage(3, QSO({.ref = u"0051"_s}));
    const Detail_FFF ecran(essai.poste);
    EXPECT_EQ(ecran.objectName(), u"Detail_FFF"_s);
    Verifie_Champs(ecran, {{u"Ref_I"_s, u"Référence"_s, u"FFF-0051"_s},
                           {u"Pays_I"_s, u"Pays"_s, u"FR"_s},
                           {u"Nom_I"_s, u"Nom"_s, u"Parc"_s}});
}

TEST(Ecran_Detail_PC, montre_le_monument_du_QSO_choisi)
{
    Poste_Essai essai;
    essai.fichiers.Pose(u"Liste_PC.csv"_s, "Rev\r\n93-001;Lavoir;x;7;y;93;Montreuil;\r\n");
    essai.ecran.ligne_selectionnee = Ligne_Affichage(3, QSO({.ref = u"93001"_s}));
    const Detail_PC ecran(essai.poste);
    EXPECT_EQ(ecran.objectName(), u"Detail_PC"_s);
    Verifie_Champs(ecran, {{u"Ref_I"_s, u"Référence"_s, u"PC93001"_s},
                           {u"Nom_I"_s, u"Type et nom du monument"_s, u"Lavoir"_s},
                           {u"Num_I"_s, u"Numero de l'ouvrage"_s, u"7"_s},
                           {u"Dpt_I"_s, u"Département"_s, u"93"_s},
                           {u"Ville_I"_s, u"Ville"_s, u"Montreuil"_s}});
}
