#include "ADIF_Essai.h"
#include "log/Chemin_Log.h"
#include "log/Garde_Copie.h"
#include "outils/Collecte_DDFM.h"
#include "outils/Fusion_Activite.h"
#include "outils/Supprime_Doubles.h"
#include "outils/Trie_Log.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class Copies_Des_Outils : public ::testing::Test {
protected:
    void Pose(const QString &nom, const std::vector<QString> &lignes)
    {
        essai.fichiers.Pose(nom, Texte_Log(lignes).toLatin1());
        avant = essai.fichiers.Octets(nom);
    }
    /// The tool kept one copy of that log, as it stood.
    void Attend(const QString &nom, Outil outil)
    {
        const std::vector<Copie> copies = Copies_De(essai.dossier, nom);
        ASSERT_EQ(copies.size(), 1U);
        EXPECT_EQ(copies[0].outil, outil);
        EXPECT_EQ(essai.dossier.Octets(Fichier_De_Copie(copies[0])), avant);
    }
    void Importe_Un_QSO(bool ajout)
    {
        ailleurs.Pose(u"F9ZZY_DFCF.adi"_s, u"entete\r\n<EOH>\r\n"_s.append(ADIF({})).append(u"\r\n").toLatin1());
        ecran.chemin = ailleurs.Chemin(u"F9ZZY_DFCF.adi"_s);
        Importe(essai.poste, {.multi = false, .ajout = ajout}, ecran);
    }
    void SetUp() override
    {
        essai.Ouvre(u"DFCF"_s);
        Pose(u"F9ZZY_DFCF.log"_s, deux);
    }

    Poste_Essai essai;
    Dossier_Temporaire ailleurs;
    Ecran_Import_Faux ecran;
    QByteArray avant;
    const std::vector<QString> deux = {QSO({.ref = u"77002"_s, .date = u"02/01/26"_s}),
                                       QSO({.ref = u"77001"_s, .date = u"01/01/26"_s})};
};

} // namespace

TEST_F(Copies_Des_Outils, tri)
{
    Trie_Log(essai.poste);
    Attend(u"F9ZZY_DFCF.log"_s, Outil::Tri);
}

TEST_F(Copies_Des_Outils, doubles)
{
    Supprime_Doubles(essai.poste);
    Attend(u"F9ZZY_DFCF.log"_s, Outil::Doubles);
}

TEST_F(Copies_Des_Outils, import_qui_ajoute)
{
    Importe_Un_QSO(true);
    Attend(u"F9ZZY_DFCF.log"_s, Outil::Import);
}

TEST_F(Copies_Des_Outils, import_qui_remplace)
{
    Importe_Un_QSO(false);
    Attend(u"F9ZZY_DFCF.log"_s, Outil::Import);
}

TEST_F(Copies_Des_Outils, un_import_sans_copie_et_sans_oui_rend_le_log)
{
    essai.fichiers.Pose(u"Copies"_s, "un fichier");
    for (const bool ajout : {false, true}) {
        essai.boites.reponses = {false};
        Importe_Un_QSO(ajout);
        EXPECT_EQ(essai.fichiers.Octets(u"F9ZZY_DFCF.log"_s), avant);
        EXPECT_FALSE(ecran.ferme) << "the import was given up";
    }
    EXPECT_EQ(essai.boites.questions.size(), 2U);
}

TEST_F(Copies_Des_Outils, collecte)
{
    for (const Diplome diplome : tous_les_diplomes)
        essai.fichiers.Pose(Chemin_Log(u"F9ZZY", diplome), {});
    Pose(u"F9ZZY_DDFM.log"_s, deux);
    Collecte_DDFM(essai.poste);
    Attend(u"F9ZZY_DDFM.log"_s, Outil::Collecte);
}

TEST_F(Copies_Des_Outils, fusion)
{
    essai.Ouvre(u"Ch_DFCF"_s);
    essai.etat.station.annee_ch_dfcf = u"2026"_s;
    Pose(u"F9ZZY_Ch_DFCF_2026.log"_s, {QSO({.ref = u"77009R"_s, .date = u"01/01/26"_s})});
    Fusion_Activite(essai.poste, Diplome::DFCF);
    Attend(u"F9ZZY_Ch_DFCF_2026.log"_s, Outil::Fusion);
}
