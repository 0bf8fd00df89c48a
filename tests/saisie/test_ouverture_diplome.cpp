#include "faux/Echec.h"
#include "faux/Impression.h"
#include "faux/Poste_Saisie.h"
#include "faux/QSO_Essai.h"
#include "log/Notice.h"
#include "saisie/Chaine.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using enum Controle;

class Diplome_Choisi : public ::testing::Test {
protected:
    Diplome_Choisi()
    {
        for (const QStringView code : codes_diplome)
            essai.fichiers.Pose(u"F9ZZY_"_s + code + (Est_Challenge(Diplome_De(code)) ? u"_2026.log" : u".log"), "");
        essai.reglages.vorlain[{u"Setup F9ZZY"_s, u"Annee Challenge DFCF"_s}] = u"2026"_s;
        essai.reglages.vorlain[{u"Setup F9ZZY"_s, u"Annee Challenge DMF"_s}] = u"2026"_s;
        essai.reglages.vorlain[{u"Setup F9ZZY"_s, u"Revision_Liste_WFF"_s}] = u"Rev 017 du 01/01/26"_s;
    }

    Poste_Saisie essai;
    Saisie &saisie = essai.saisie;

    void Ouvre(QStringView code)
    {
        saisie.Ecrit(Dip_A, code.toString());
        Entree(essai.poste, saisie, Dip_A);
    }
    static qsizetype Rang(QStringView code)
    {
        return std::find(codes_diplome.begin(), codes_diplome.end(), code) - codes_diplome.begin();
    }
    [[nodiscard]] QString Reglage(const QString &cle) const
    {
        return essai.reglages.Lit(u"Setup F9ZZY"_s, cle, u"(rien)"_s);
    }
};

} // namespace

TEST_F(Diplome_Choisi, le_log_qu_un_import_coupe_laissa_de_cote_revient_a_l_ouverture)
{
    essai.fichiers.Pose(u"F9ZZY_DLF.bak"_s, QSO({.ref = u"21001"_s}).toLatin1() + "\r\n");
    essai.dossier.Supprime(u"F9ZZY_DLF.log"_s);
    Ouvre(u"DLF");
    EXPECT_EQ(essai.ecran_du_log.Liste_QSO().size(), 1U);
    EXPECT_EQ(
        essai.Messages(),
        std::vector<QString>{u"Une importation précédente a été interrompue, le log F9ZZY_DLF.log a été rétabli"_s});
}

TEST_F(Diplome_Choisi, chaque_code_s_ouvre_sur_la_bande_et_se_retient)
{
    for (std::size_t rang = 0; rang < codes_diplome.size(); ++rang) {
        const QStringView code = codes_diplome[rang];
        SCOPED_TRACE(code.toString().toStdString());
        Ouvre(code);
        EXPECT_EQ(essai.etat.station.diplome, Diplome_De(code));
        EXPECT_EQ(saisie.Texte(Controle::Type_Ref), Notice_De(*Diplome_De(code)).habillage.type_ref.toString());
        EXPECT_EQ(saisie.Texte(Detail), Notice_De(*Diplome_De(code)).habillage.detail.toString());
        EXPECT_EQ(saisie.Texte(Label1), Notice_De(*Diplome_De(code)).habillage.label1.toString());
        const QString annee = Est_Challenge(Diplome_De(code)) ? u"2026"_s : QString();
        EXPECT_EQ(saisie.Texte(Frame3), Notice_De(*Diplome_De(code)).habillage.frame3.toString() + annee);
        EXPECT_EQ(saisie.Focus(), Bande_A);
        EXPECT_TRUE(saisie.Est_Actif(Bande_A));
        EXPECT_TRUE(saisie.Est_Actif(Ind_A));
        EXPECT_EQ(Reglage(u"Diplome Utilise"_s), QString::number(rang));
        EXPECT_EQ(essai.Messages().size(), Est_Challenge(Diplome_De(code)) ? 1U : 0U);
    }
    EXPECT_TRUE(essai.ecrans.modaux.empty());
}

TEST_F(Diplome_Choisi, le_log_s_affiche_et_l_ecran_est_au_repos)
{
    essai.fichiers.Pose(u"F9ZZY_DFCF.log"_s, QSO({.ref = u"77001"_s}).toLatin1() + "\r\n");
    Ouvre(u"DFCF");
    EXPECT_EQ(essai.ecran_du_log.Liste_QSO().size(), 1U);
    EXPECT_EQ(essai.ecran_du_log.QSO_Selectionne(), Ligne_Affichage(1, essai.ecran_du_log.Liste_QSO()[0]));
    EXPECT_EQ(saisie.ligne_selectionnee, essai.ecran_du_log.QSO_Selectionne());
    EXPECT_EQ(saisie.Texte(Ref_A), u""_s);
    EXPECT_FALSE(saisie.qso_affiche);
    EXPECT_EQ(saisie.Texte(Mode_Aff), u"Saisie QSO"_s);
    EXPECT_FALSE(saisie.Est_Actif(Annule_Saisie));
}

TEST_F(Diplome_Choisi, une_modification_en_cours_ne_retient_pas_le_code)
{
    essai.reglages.vorlain[{u"Setup F9ZZY"_s, u"Diplome Utilise"_s}] = u"6"_s;
    saisie.qso_affiche = saisie.qso_en_edition = true;
    Ouvre(u"DMF");
    EXPECT_EQ(Reglage(u"Diplome Utilise"_s), u"6"_s);
    EXPECT_TRUE(saisie.qso_en_edition);
    EXPECT_EQ(essai.etat.station.diplome, Diplome::DMF);
}

TEST_F(Diplome_Choisi, une_autre_touche_retient_le_code_et_laisse_le_diplome)
{
    Ouvre(u"DFCF");
    saisie.Ecrit(Dip_A, u"DMF"_s);
    Apres_Touche(essai.poste, saisie, Dip_A);
    EXPECT_EQ(Reglage(u"Diplome Utilise"_s), u"11"_s);
    EXPECT_EQ(essai.etat.station.diplome, Diplome::DFCF);
    EXPECT_EQ(saisie.Texte(Frame3), u"Diplome des Forts et Chateaux de France"_s);
}

TEST_F(Diplome_Choisi, la_revision_de_la_liste_fff_se_lit_au_cinquieme_caractere)
{
    for (const auto &[revision, prevenu] :
         {std::pair(u"Rev 016 du 01/01/12"_s, true), std::pair(u"Rev 017 du 01/01/12"_s, false),
          std::pair(u"Rev 120 du 01/01/12"_s, false), std::pair(u"Rev 000 du 01/01/12"_s, true),
          std::pair(u"n'importe quoi"_s, true), std::pair(u""_s, true)}) {
        essai.reglages.vorlain[{u"Setup F9ZZY"_s, u"Revision_Liste_WFF"_s}] = revision;
        Ouvre(u"FFF");
        EXPECT_EQ(!essai.Messages().empty(), prevenu) << revision.toStdString();
        EXPECT_EQ(essai.etat.station.diplome, Diplome::FFF);
    }
}

TEST_F(Diplome_Choisi, un_challenge_sans_annee_demande_la_sienne)
{
    essai.reglages.vorlain.erase({u"Setup F9ZZY"_s, u"Annee Challenge DMF"_s});
    essai.ecrans.pendant_modal = [&](const QString &) {
        EXPECT_EQ(essai.etat.challenge, Diplome::Ch_DMF);
        essai.etat.station.annee_ch_dmf = u"2026"_s;
    };
    Ouvre(u"Ch_DMF");
    EXPECT_EQ(essai.ecrans.modaux, std::vector<QString>{u"Select_Annee"_s});
    EXPECT_EQ(saisie.Texte(Frame3), u"Challenge DMF année 2026"_s);
    EXPECT_EQ(essai.Messages(), std::vector<QString>{u" Lettres qui doivent suivent la référence :\n\n"
                                                     u" - A - Activation contactée et validée\n"
                                                     u" - R - Réactivation contactée et validée\n"
                                                     u" - C - Activeur de Moulin validé\n"
                                                     u" - B - Activeur de Moulin réactivé et validé\n"_s});
}

TEST_F(Diplome_Choisi, un_log_absent_est_dit)
{
    QFile::remove(essai.fichiers.Chemin(u"F9ZZY_DMF.log"_s));
    EXPECT_EQ(Echec([&] { Ouvre(u"DMF"); })->La_Cause(), Cause::Fichier_Introuvable);
}

TEST_F(Diplome_Choisi, un_code_tape_sans_sa_casse_s_ouvre_sous_sa_forme)
{
    for (const auto &[tape, code] :
         {std::pair(u"CH_DFCF"_s, u"Ch_DFCF"_s), std::pair(u"ch_dmf"_s, u"Ch_DMF"_s), std::pair(u"dlf"_s, u"DLF"_s)}) {
        Ouvre(tape);
        EXPECT_EQ(essai.etat.station.diplome, Diplome_De(code));
        EXPECT_EQ(saisie.Texte(Dip_A), code);
        EXPECT_EQ(Reglage(u"Diplome Utilise"_s), QString::number(Rang(code)));
    }
}

TEST_F(Diplome_Choisi, un_code_tape_prend_sa_forme_des_sa_derniere_lettre)
{
    Ouvre(u"DFCF");
    saisie.Ecrit(Dip_A, u"CH_DM"_s);
    Apres_Touche(essai.poste, saisie, Dip_A);
    EXPECT_EQ(saisie.Texte(Dip_A), u"CH_DM"_s);
    EXPECT_EQ(Reglage(u"Diplome Utilise"_s), u"-1"_s);
    saisie.Ecrit(Dip_A, u"CH_DMF"_s);
    Apres_Touche(essai.poste, saisie, Dip_A);
    EXPECT_EQ(saisie.Texte(Dip_A), u"Ch_DMF"_s);
    EXPECT_EQ(Reglage(u"Diplome Utilise"_s), u"1"_s);
    EXPECT_TRUE(saisie.Curseur_De(Dip_A) == Curseur::Fin);
    EXPECT_EQ(essai.etat.station.diplome, Diplome::DFCF);
}

TEST_F(Diplome_Choisi, un_choix_d_annee_sans_choix_remet_le_diplome_ouvert_dans_dip_a)
{
    essai.reglages.vorlain.erase({u"Setup F9ZZY"_s, u"Annee Challenge DMF"_s});
    Ouvre(u"DFCF");
    Ouvre(u"Ch_DMF");
    EXPECT_EQ(essai.etat.station.diplome, Diplome::DFCF);
    EXPECT_EQ(saisie.Texte(Dip_A), u"DFCF"_s);
    EXPECT_EQ(saisie.Texte(Frame3), u"Diplome des Forts et Chateaux de France"_s);
}
