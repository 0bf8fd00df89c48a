#include "faux/Echec.h"
#include "faux/Impression.h"
#include "faux/Poste_Saisie.h"
#include "faux/QSO_Essai.h"
#include "saisie/Chaine.h"
#include "saisie/Options.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using enum Controle;

class Saisie_En_Chaine : public ::testing::Test {
protected:
    Saisie_En_Chaine() { essai.Ouvre_Log(u"DFCF"_s); }

    Poste_Saisie essai;
    Saisie &saisie = essai.saisie;

    /// Enter on a text: true if the focus went to `suivant`, which is enabled, without a word.
    void Passe_A(Controle champ, const QString &texte, Controle suivant)
    {
        saisie.Ecrit(champ, texte);
        Enter(champ);
        EXPECT_EQ(essai.Messages(), std::vector<QString>());
        EXPECT_EQ(saisie.Focus(), suivant);
        EXPECT_TRUE(saisie.Est_Actif(suivant));
    }
    /// Enter on a text that is refused: it stays, with the focus.
    void Reste(Controle champ, const QString &texte, const QString &message)
    {
        saisie.Ecrit(champ, texte);
        Enter(champ);
        EXPECT_EQ(essai.Messages(), std::vector<QString>{message});
        EXPECT_EQ(saisie.Focus(), champ);
        EXPECT_EQ(saisie.Texte(champ), texte);
    }
    void Enter(Controle champ)
    {
        saisie.Active(champ, true);
        saisie.Donne_Focus(champ);
        Entree(essai.poste, saisie, champ);
    }
    [[nodiscard]] QString Reglage(const QString &cle) const
    {
        return essai.reglages.Lit(u"Setup F9ZZY"_s, cle, u"(rien)"_s);
    }
};

using Automatismes = Saisie_En_Chaine;
using Prenoms = Saisie_En_Chaine;

} // namespace

TEST_F(Saisie_En_Chaine, chaque_champ_passe_au_suivant)
{
    saisie.Active(Ind_A, false);
    Passe_A(Bande_A, u"14 Mhz"_s, Ind_A);
    Passe_A(Ind_A, u"F5ABC"_s, Prenom_A);
    Passe_A(Prenom_A, u""_s, Ref_A);
    Passe_A(Date_A, u"12/05/07"_s, Heure_A);
    Passe_A(Heure_A, u"14:48"_s, Mode_A);
    Passe_A(Mode_A, u"SSB"_s, RSTR_A);
    Passe_A(RSTR_A, u"59"_s, RSTE_A);
    Passe_A(RSTE_A, u"59"_s, Nom_A);
    Passe_A(Nom_A, u"C. DE VAUX"_s, QSL_A);
    Enter(QSL_A);
    EXPECT_EQ(saisie.Focus(), Valide_A);
    EXPECT_TRUE(saisie.Est_Actif(Valide_A));
}

TEST_F(Saisie_En_Chaine, un_champ_refuse_garde_son_texte_et_le_focus)
{
    Reste(Bande_A, u""_s, u"Entrez une QRG"_s);
    Reste(Bande_A, u"14.255 Mhz"_s, u"7 caracteres maxi pour la bande"_s);
    Reste(Ind_A, u""_s, u"Entrez un indicatif"_s);
    Reste(Ind_A, u"F5ABC/P/MM/9Z"_s, u"12 caracteres maxi pour l'indicatif"_s);
    Reste(Dpt_A, u""_s, u"Entrez un Departement"_s);
    Reste(Dpt_A, u"771"_s, u"2 caracteres pour le Departement ex : 05 ou 77"_s);
    Reste(Date_A, u""_s, u"Entrez une date"_s);
    Reste(Date_A, u"120507"_s, u"8 caracteres pour la date ex: 12/05/07"_s);
    Reste(Date_A, u"12-05-07"_s, u"Le format de la date doit etre JJ/MM/AA"_s);
    Reste(Heure_A, u""_s, u"Entrez une Heure"_s);
    Reste(Heure_A, u"1448"_s, u"5 caractereslour l'heure ex 12:48"_s);
    Reste(Heure_A, u"24:00"_s, u"Le format de l'heure doit etre HH:MM"_s);
    Reste(Mode_A, u""_s, u"selectionnez un Mode"_s);
    Reste(Mode_A, u"JT65"_s, u"3 caracteres maxi pour le Mode"_s);
    for (const Controle report : {RSTR_A, RSTE_A}) {
        Reste(report, u""_s, u"Entrez un Report"_s);
        Reste(report, u"5999"_s, u"3 caracteres maxi pour le Report"_s);
        Reste(report, u"659"_s, u"R (de RST)doit etre compris entre 0 et 5"_s);
    }
    Reste(Nom_A, QString(51, u'X'), u"50 caracteres maxi pour le nom de la commune"_s);
}

TEST_F(Saisie_En_Chaine, un_prenom_de_toute_longueur_passe)
{
    Passe_A(Prenom_A, QString(40, u'X'), Ref_A);
}

TEST_F(Saisie_En_Chaine, trois_diplomes_n_ont_pas_de_reference)
{
    for (const QString &code : {u"DPF"_s, u"DDFM"_s, u"DYLF"_s}) {
        essai.Ouvre_Log(code);
        Passe_A(Prenom_A, u""_s, Dpt_A);
        EXPECT_FALSE(saisie.Est_Actif(Ref_A));
    }
}

TEST_F(Saisie_En_Chaine, fff_prend_tout_departement_et_aucun)
{
    essai.Ouvre_Log(u"FFF"_s);
    Passe_A(Dpt_A, u""_s, Mode_A);
    Passe_A(Dpt_A, u"771"_s, Mode_A);
}

TEST_F(Saisie_En_Chaine, sans_indicatif_de_station_la_touche_tombe)
{
    essai.etat.station.indicatif = u"FXXXX"_s;
    essai.fichiers.Pose(u"FXXXX_DFCF.log"_s, "");
    EXPECT_FALSE(Accepte_Touche(essai.poste, saisie, Ind_A));
    EXPECT_EQ(
        essai.Messages(),
        std::vector<QString>{
            u"\n         Premiere installation, vous devez entrer votre Indicatif\n\nPour cela dans la barre des menus allez dans Station puis Nouvel Indicatif."_s});
    EXPECT_FALSE(Accepte_Touche(essai.poste, saisie, Dip_A));
    EXPECT_EQ(
        essai.Messages(),
        std::vector<QString>{
            u"\n         Premiere installation, vous devez entrer votre Indicatif\n\nPour cela dans la barre des menus allez dans 'Station' puis 'Nouvel Indicatif'."_s});
    EXPECT_TRUE(Accepte_Touche(essai.poste, saisie, Bande_A));
    essai.etat.station.indicatif = u"F9ZZY"_s;
    EXPECT_TRUE(Accepte_Touche(essai.poste, saisie, Ind_A));
    EXPECT_TRUE(Accepte_Touche(essai.poste, saisie, Dip_A));
    EXPECT_TRUE(essai.Messages().empty());
}

TEST_F(Saisie_En_Chaine, sans_log_qui_s_ouvre_chaque_champ_demande_un_diplome)
{
    QFile::remove(essai.fichiers.Chemin(u"F9ZZY_DFCF.log"_s));
    for (const Controle champ :
         {Bande_A, Ind_A, Prenom_A, Ref_A, Dpt_A, Date_A, Heure_A, Mode_A, RSTR_A, RSTE_A, Nom_A, QSL_A}) {
        saisie.Active(champ, true);
        saisie.Donne_Focus(champ);
        EXPECT_FALSE(Accepte_Touche(essai.poste, saisie, champ));
        EXPECT_EQ(essai.Messages(), std::vector<QString>{u"Selectionnez un diplome"_s});
        EXPECT_EQ(saisie.Focus(), Dip_A);
    }
    EXPECT_TRUE(Accepte_Touche(essai.poste, saisie, Dip_A));
    EXPECT_TRUE(essai.Messages().empty());
}

TEST_F(Automatismes, en_temps_reel_date_et_heure_sont_celles_du_dernier_battement)
{
    Tique(essai.poste, saisie);
    essai.horloge.utc = essai.horloge.utc.addSecs(3600);
    Passe_A(Dpt_A, u"77"_s, Mode_A);
    EXPECT_EQ(saisie.Texte(Date_A), u"15/11/26"_s);
    EXPECT_EQ(saisie.Texte(Heure_A), u"14:48"_s);
    // The next ticks change nothing in the fields.
    Tique(essai.poste, saisie);
    EXPECT_EQ(saisie.Texte(Heure_A), u"14:48"_s);
    EXPECT_FALSE(saisie.Est_Actif(Date_A));
    EXPECT_FALSE(saisie.Est_Actif(Heure_A));
}

TEST_F(Automatismes, en_differe_ou_sur_un_qso_affiche_la_date_se_tape)
{
    Tique(essai.poste, saisie);
    for (bool Saisie::*drapeau : {&Saisie::saisie_differee, &Saisie::qso_affiche, &Saisie::qso_en_edition}) {
        saisie.*drapeau = true;
        Passe_A(Dpt_A, u"77"_s, Date_A);
        EXPECT_EQ(saisie.Texte(Date_A), u""_s);
        EXPECT_EQ(saisie.Texte(Heure_A), u""_s);
        saisie.*drapeau = false;
    }
}

TEST_F(Automatismes, la_date_recoit_ses_barres_avant_le_chiffre)
{
    saisie.separateur_auto = true;
    QString tapee;
    for (const QChar chiffre : u"120507"_s) {
        Avant_Touche(saisie, Date_A, false);
        tapee = saisie.Texte(Date_A) + chiffre;
        saisie.Ecrit(Date_A, tapee);
    }
    EXPECT_EQ(tapee, u"12/05/07"_s);
}

TEST_F(Automatismes, l_heure_recoit_ses_deux_points_une_fois)
{
    saisie.separateur_auto = true;
    QString tapee;
    for (const QChar chiffre : u"14483"_s) {
        Avant_Touche(saisie, Heure_A, false);
        tapee = saisie.Texte(Heure_A) + chiffre;
        saisie.Ecrit(Heure_A, tapee);
    }
    EXPECT_EQ(tapee, u"14:483"_s);
    saisie.Ecrit(Heure_A, u"14:48"_s);
    Avant_Touche(saisie, Heure_A, false);
    EXPECT_EQ(saisie.Texte(Heure_A), u"14:48"_s);
}

TEST_F(Automatismes, le_separateur_met_le_curseur_a_la_fin)
{
    saisie.separateur_auto = true;
    saisie.Ecrit(Date_A, u"12"_s);
    Avant_Touche(saisie, Date_A, false);
    EXPECT_TRUE(saisie.Curseur_De(Date_A) == Curseur::Fin);
}

TEST_F(Automatismes, un_retour_arriere_ne_pose_rien_et_va_a_la_fin)
{
    saisie.separateur_auto = true;
    saisie.Ecrit(Date_A, u"12/05"_s);
    Avant_Touche(saisie, Date_A, true);
    EXPECT_EQ(saisie.Texte(Date_A), u"12/05"_s);
    EXPECT_TRUE(saisie.Curseur_De(Date_A) == Curseur::Fin);
}

TEST_F(Automatismes, sans_l_option_rien_ne_vient_et_ailleurs_non_plus)
{
    saisie.Ecrit(Date_A, u"12"_s);
    Avant_Touche(saisie, Date_A, false);
    EXPECT_EQ(saisie.Texte(Date_A), u"12"_s);
    saisie.separateur_auto = true;
    saisie.Ecrit(Ref_A, u"12"_s);
    Avant_Touche(saisie, Ref_A, false);
    EXPECT_EQ(saisie.Texte(Ref_A), u"12"_s);
}

TEST_F(Automatismes, les_reports_suivent_le_mode)
{
    Passe_A(Mode_A, u"CW"_s, RSTR_A);
    EXPECT_EQ(saisie.Texte(RSTR_A), u"599"_s);
    EXPECT_EQ(saisie.Texte(RSTE_A), u"599"_s);
    saisie.Ecrit(Mode_A, u"FT8"_s);
    Apres_Touche(essai.poste, saisie, Mode_A);
    EXPECT_EQ(saisie.Texte(RSTR_A), u"59"_s);
    EXPECT_EQ(saisie.Texte(RSTE_A), u"59"_s);
}

TEST_F(Automatismes, les_reports_suivent_le_mode_aussi_en_modification)
{
    saisie.qso_affiche = saisie.qso_en_edition = true;
    saisie.Ecrit(RSTR_A, u"57"_s);
    saisie.Ecrit(RSTE_A, u"58"_s);
    Passe_A(Mode_A, u"CW"_s, RSTR_A);
    EXPECT_EQ(saisie.Texte(RSTR_A), u"599"_s);
    EXPECT_EQ(saisie.Texte(RSTE_A), u"599"_s);
}

TEST_F(Automatismes, un_mode_refuse_laisse_les_reports)
{
    saisie.Ecrit(RSTR_A, u"57"_s);
    Reste(Mode_A, u"JT65"_s, u"3 caracteres maxi pour le Mode"_s);
    EXPECT_EQ(saisie.Texte(RSTR_A), u"57"_s);
}

TEST_F(Automatismes, bande_et_mode_sont_retenus_a_entree_et_a_chaque_touche)
{
    Passe_A(Bande_A, u"21 Mhz"_s, Ind_A);
    EXPECT_EQ(Reglage(u"bande Utilisee"_s), u"6"_s);
    Passe_A(Mode_A, u"CW"_s, RSTR_A);
    EXPECT_EQ(Reglage(u"Mode Utilise"_s), u"1"_s);
    saisie.Ecrit(Bande_A, u"10 Mhz"_s);
    Apres_Touche(essai.poste, saisie, Bande_A);
    EXPECT_EQ(Reglage(u"bande Utilisee"_s), u"3"_s);
    saisie.Ecrit(Mode_A, u"FM"_s);
    Apres_Touche(essai.poste, saisie, Mode_A);
    EXPECT_EQ(Reglage(u"Mode Utilise"_s), u"4"_s);
}

TEST_F(Automatismes, une_bande_et_un_mode_libres_sont_retenus_moins_un)
{
    Passe_A(Bande_A, u"7.144"_s, Ind_A);
    EXPECT_EQ(Reglage(u"bande Utilisee"_s), u"-1"_s);
    Passe_A(Mode_A, u"FT8"_s, RSTR_A);
    EXPECT_EQ(Reglage(u"Mode Utilise"_s), u"-1"_s);
}

TEST_F(Automatismes, un_qso_affiche_ou_modifie_ne_retient_ni_bande_ni_mode)
{
    for (bool Saisie::*drapeau : {&Saisie::qso_affiche, &Saisie::qso_en_edition}) {
        saisie.*drapeau = true;
        Passe_A(Bande_A, u"21 Mhz"_s, Ind_A);
        Passe_A(Mode_A, u"CW"_s, RSTR_A);
        Apres_Touche(essai.poste, saisie, Bande_A);
        Apres_Touche(essai.poste, saisie, Mode_A);
        EXPECT_EQ(Reglage(u"bande Utilisee"_s), u"4"_s);
        EXPECT_EQ(Reglage(u"Mode Utilise"_s), u"0"_s);
        saisie.*drapeau = false;
    }
}

TEST_F(Automatismes, dpf_et_ddfm_refusent_un_departement_deja_contacte)
{
    const QByteArray log = QSO({.dpt = u"05"_s, .date = u"12/05/07"_s}).toLatin1() + "\r\n";
    for (const QString &code : {u"DPF"_s, u"DDFM"_s}) {
        essai.Ouvre_Log(code, log);
        saisie.Ecrit(Dpt_A, u"05"_s);
        saisie.Ecrit(Bande_A, u"14 Mhz"_s);
        Reste(Mode_A, u"SSB"_s, u"Deja contacté le 12/05/07"_s);
        Passe_A(Mode_A, u"CW"_s, RSTR_A);
        saisie.Ecrit(Bande_A, u"7.0 Mhz"_s);
        Passe_A(Mode_A, u"SSB"_s, RSTR_A);
    }
}

TEST_F(Automatismes, un_qso_affiche_et_les_autres_diplomes_ne_le_refusent_pas)
{
    const QByteArray log = QSO({.dpt = u"05"_s}).toLatin1() + "\r\n";
    essai.Ouvre_Log(u"DYLF"_s, log);
    saisie.Ecrit(Dpt_A, u"05"_s);
    saisie.Ecrit(Bande_A, u"14 Mhz"_s);
    Passe_A(Mode_A, u"SSB"_s, RSTR_A);
    essai.Ouvre_Log(u"DPF"_s, log);
    saisie.Ecrit(Dpt_A, u"05"_s);
    for (bool Saisie::*drapeau : {&Saisie::qso_affiche, &Saisie::qso_en_edition}) {
        saisie.*drapeau = true;
        Passe_A(Mode_A, u"SSB"_s, RSTR_A);
        saisie.*drapeau = false;
    }
    // Deferred entry is not spared it.
    saisie.saisie_differee = true;
    Reste(Mode_A, u"SSB"_s, u"Deja contacté le 12/05/07"_s);
}

TEST_F(Prenoms, un_indicatif_connu_donne_son_prenom_en_capitales)
{
    essai.fichiers.Pose(u"Liste_Prenom.txt"_s, "F5ABC        77 Ren\xE9\r\n");
    Passe_A(Ind_A, u"F5ABC"_s, Prenom_A);
    EXPECT_EQ(saisie.Texte(Prenom_A), u"RENÉ"_s);
    EXPECT_EQ(saisie.Texte(Dpt_A), u""_s);
    EXPECT_FALSE(saisie.prenom_nouveau);
}

TEST_F(Prenoms, un_prenom_tape_reste_et_ne_sera_pas_retenu)
{
    essai.fichiers.Pose(u"Liste_Prenom.txt"_s, "F5ABC        77 RENE\r\n");
    saisie.Ecrit(Prenom_A, u"JEAN"_s);
    Passe_A(Ind_A, u"F5ABC"_s, Prenom_A);
    EXPECT_EQ(saisie.Texte(Prenom_A), u"JEAN"_s);
    EXPECT_FALSE(saisie.prenom_nouveau);
}

TEST_F(Prenoms, un_indicatif_inconnu_sera_retenu)
{
    Passe_A(Ind_A, u"F5ABC"_s, Prenom_A);
    EXPECT_EQ(saisie.Texte(Prenom_A), u""_s);
    EXPECT_TRUE(saisie.prenom_nouveau);
}

TEST_F(Prenoms, sans_leur_liste_l_entree_echoue)
{
    QFile::remove(essai.fichiers.Chemin(u"Liste_Prenom.txt"_s));
    saisie.Ecrit(Ind_A, u"F5ABC"_s);
    EXPECT_EQ(Echec([&] { Enter(Ind_A); })->La_Cause(), Cause::Fichier_Introuvable);
}
