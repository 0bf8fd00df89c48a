#include "Log_Essai.h"
#include "diplomes/Charge_Liste.h"
#include "diplomes/Sorties_Liste.h"
#include "diplomes/tables/Tables.h"
#include "plateforme/Erreur_Execution.h"

#include <gtest/gtest.h>

using namespace diplomes;

namespace {

/// An operating position with a DFCF log of one QSO, and the tier that a button chose.
struct Poste_DFCF : Poste_Essai {
    explicit Poste_DFCF(const QString &categorie = u"de Base"_s)
    {
        fichiers.Pose(u"F9ZZY_DFCF.log"_s, En_Octets({QSO({.ind = u"F5ABC"_s,
                                                           .dpt = u"77"_s,
                                                           .prenom = u"JEAN"_s,
                                                           .ref = u"77001"_s,
                                                           .nom = u"C. FORÊT"_s,
                                                           .qsl = u"*"_s})}));
        Choisit(categorie);
    }
    void Choisit(const QString &categorie)
    {
        etat.bande_liste = u"HF"_s;
        etat.code_categorie = categorie;
    }
    [[nodiscard]] Etat_Liste Liste() const { return Charge_Liste(poste, liste_dfcf); }
};

} // namespace

TEST(Date_Courte, est_celle_du_systeme)
{
    EXPECT_EQ(Date_Courte(QDate(2026, 11, 5)), u"05/11/2026"_s);
}

TEST(Enregistre_Liste, le_fichier_a_son_nom_et_ses_octets)
{
    Poste_DFCF essai;
    Enregistre_Liste(essai.poste, liste_dfcf, essai.Liste());
    const QString nom = u"F9ZZY_Diplome_DFCF_de_Base_Bande_HF_15_11_26.txt"_s;
    EXPECT_EQ(essai.fichiers.Octets(nom),
              QByteArray("   F9ZZY Liste alphanumerique des Chateaux contact\xE9s bande HF au 15/11/2026\r\n"
                         "\r\n"
                         "   N\xB0   Ref      Dpt      Nom du Chateau               Date    Heure  Indicatif\r\n"
                         "\r\n"
                         "    1  77001     77  C. FOR\xCAT                        12/05/07  14:48  F5ABC       \r\n"
                         "\r\n"
                         "                        Vorlain 2026\r\n"));
    EXPECT_EQ(
        essai.boites.messages,
        std::vector<QString>{u"Fichier enregistré sous le nom : F9ZZY_Diplome_DFCF_de_Base_Bande_HF_15_11_26.txt"_s});
    EXPECT_EQ(essai.fichiers.Fichiers(), (QStringList{u"F9ZZY_DFCF.log"_s, nom}));
}

TEST(Enregistre_Liste, un_fichier_du_meme_nom_est_remplace)
{
    Poste_DFCF essai;
    const QString nom = u"F9ZZY_Diplome_DFCF_de_Base_Bande_HF_15_11_26.txt"_s;
    essai.fichiers.Pose(nom, QByteArray(5000, '#'));
    Enregistre_Liste(essai.poste, liste_dfcf, essai.Liste());
    EXPECT_FALSE(essai.fichiers.Octets(nom).contains('#'));
}

TEST(Enregistre_Liste, l_excellence_a_son_titre_et_ses_colonnes)
{
    Poste_DFCF essai(u"Excellence"_s);
    Enregistre_Liste(essai.poste, liste_dfcf, essai.Liste());
    EXPECT_EQ(essai.fichiers.Octets(u"F9ZZY_Diplome_DFCF_Excellence_Bande_HF_15_11_26.txt"_s),
              QByteArray("       F9ZZY Liste des d\xE9partements contact\xE9s bande HF au 15/11/2026\r\n"
                         "\r\n"
                         "   N\xB0 Dpt  Ref   Indicatif    Prenom            Date    Heure   Bande   Mode\r\n"
                         "\r\n"
                         "    1 77  77001       F5ABC        JEAN            12/05/07  14:48  14 Mhz   SSB  \r\n"
                         "\r\n"
                         "                        Vorlain 2026\r\n"));
}

TEST(Enregistre_Liste, une_liste_vide_donne_titre_en_tete_et_signature)
{
    Poste_DFCF essai;
    essai.fichiers.Pose(u"F9ZZY_DFCF.log"_s, {});
    Enregistre_Liste(essai.poste, liste_dfcf, essai.Liste());
    const QByteArray octets = essai.fichiers.Octets(u"F9ZZY_Diplome_DFCF_de_Base_Bande_HF_15_11_26.txt"_s);
    EXPECT_EQ(octets.count('\n'), 6);
    EXPECT_TRUE(octets.endsWith("Indicatif\r\n\r\n\r\n                        Vorlain 2026\r\n"));
}

TEST(Enregistre_Liste, un_autre_bouton_change_le_nom_et_le_titre_mais_pas_les_rangs)
{
    Poste_DFCF essai;
    const Etat_Liste de_base = essai.Liste();
    essai.Choisit(u"Excellence"_s);
    Enregistre_Liste(essai.poste, liste_dfcf, de_base);
    const QByteArray octets = essai.fichiers.Octets(u"F9ZZY_Diplome_DFCF_Excellence_Bande_HF_15_11_26.txt"_s);
    EXPECT_TRUE(octets.startsWith("       F9ZZY Liste des d\xE9partements"));
    EXPECT_TRUE(octets.contains("    1  77001     77  C. FOR\xCAT "));
}

TEST(Enregistre_Liste, un_choix_sans_ligne_dans_la_table_est_l_echec_du_fichier)
{
    Poste_DFCF essai(u"Bronze"_s);
    const QStringList avant = essai.fichiers.Fichiers();
    try {
        Enregistre_Liste(essai.poste, liste_dfcf, essai.Liste());
        FAIL();
    } catch (const Erreur_Execution &erreur) {
        EXPECT_EQ(erreur.La_Cause(), Cause::Fichier_Refuse);
        EXPECT_TRUE(erreur.Texte().contains(essai.fichiers.Chemin())) << erreur.Texte().toStdString();
    }
    EXPECT_EQ(essai.fichiers.Fichiers(), avant);
    EXPECT_TRUE(essai.boites.messages.empty());
}

TEST(Enregistre_Liste, un_nom_que_le_disque_refuse_est_l_echec_du_fichier)
{
    Poste_DFCF essai;
    const Etat_Liste liste = essai.Liste();
    essai.etat.station.indicatif = u"F9ZZY/P"_s;
    const QStringList avant = essai.fichiers.Fichiers();
    try {
        Enregistre_Liste(essai.poste, liste_dfcf, liste);
        FAIL();
    } catch (const Erreur_Execution &erreur) {
        EXPECT_TRUE(erreur.Texte().contains(u"F9ZZY/P_Diplome_DFCF_de_Base"_s)) << erreur.Texte().toStdString();
    }
    EXPECT_EQ(essai.fichiers.Fichiers(), avant);
}

TEST(Enregistre_Liste, le_numero_a_cinq_colonnes_puis_deborde_entier)
{
    EXPECT_EQ(Numero_De_Rang(7), u"    7"_s);
    EXPECT_EQ(Numero_De_Rang(99999), u"99999"_s);
    EXPECT_EQ(Numero_De_Rang(200000), u"200000"_s);
}

TEST(Imprime_Liste, les_lignes_vont_a_l_imprimante_dans_leur_ordre)
{
    Poste_DFCF essai;
    Imprime_Liste(essai.poste, liste_dfcf, essai.Liste());
    EXPECT_EQ(essai.imprimante.titres, std::vector<QString>{u"Liste DFCF bande HF"_s});
    ASSERT_EQ(essai.imprimante.documents.size(), 1U);
    EXPECT_EQ(essai.imprimante.documents[0],
              (std::vector<QString>{
                  u"                 F9ZZY Diplome DFCF de Base bande HF au 15/11/2026"_s,
                  QString(),
                  u"       N°   Ref      Dpt      Nom du Chateau               Date    Heure  Indicatif"_s,
                  QString(),
                  u"        1  77001     77  C. FORÊT                        12/05/07  14:48  F5ABC       "_s,
                  QString(),
                  QString(),
                  u"                     Vorlain 2026"_s,
              }));
    EXPECT_TRUE(essai.boites.messages.empty());
}

TEST(Imprime_Liste, un_choix_sans_ligne_dans_la_table_commence_par_quatre_lignes_vides)
{
    Poste_DFCF essai(u"Bronze"_s);
    Imprime_Liste(essai.poste, liste_dfcf, essai.Liste());
    const std::vector<QString> &lignes = essai.imprimante.documents.at(0);
    ASSERT_EQ(lignes.size(), 8U);
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_EQ(lignes[i], QString());
    EXPECT_TRUE(lignes[4].contains(u"77001"_s));
}

TEST(Imprime_Liste, sans_imprimante_les_mots_sont_montres)
{
    Poste_DFCF essai;
    essai.imprimante.refus = u"rien n'a été imprimé"_s;
    Imprime_Liste(essai.poste, liste_dfcf, essai.Liste());
    EXPECT_EQ(essai.boites.messages, std::vector<QString>{u"rien n'a été imprimé"_s});
}
