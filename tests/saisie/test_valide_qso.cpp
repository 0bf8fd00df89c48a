#include "faux/Donnees_Essai.h"
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

const QString premiere = QSO({.ind = u"F5AAA"_s, .dpt = u"77"_s, .ref = u"77001"_s, .date = u"12/05/07"_s});
const QString seconde =
    QSO({.ind = u"F5BBB"_s, .dpt = u"05"_s, .ref = u"05012"_s, .date = u"14/05/07"_s, .mode = u"CW"_s});
const QString troisieme = QSO({.ind = u"F5CCC"_s, .dpt = u"2A"_s, .ref = u"2A003"_s, .date = u"16/05/07"_s});

class Validation_QSO : public ::testing::Test {
protected:
    Validation_QSO() { essai.Ouvre_Log(u"DFCF"_s, Octets({premiere, seconde, troisieme})); }

    Poste_Saisie essai;
    Saisie &saisie = essai.saisie;

    static QByteArray Octets(const std::vector<QString> &lignes)
    {
        QByteArray octets;
        for (const QString &ligne : lignes)
            octets += ligne.toLatin1() + "\r\n";
        return octets;
    }
    [[nodiscard]] QByteArray Log() const { return essai.fichiers.Octets(u"F9ZZY_DFCF.log"_s); }
    [[nodiscard]] QString Entree_Liste(std::size_t rang) const
    {
        return Ligne_Affichage(rang + 1, essai.ecran_du_log.Liste_QSO()[rang]);
    }

    /// Fields as the chain leaves them at Valide_A.
    void Remplit(const Champs_QSO &champs)
    {
        saisie.Ecrit(Ind_A, champs.ind);
        saisie.Ecrit(Dpt_A, champs.dpt);
        saisie.Ecrit(Prenom_A, champs.prenom);
        saisie.Ecrit(Ref_A, champs.ref);
        saisie.Ecrit(Date_A, champs.date);
        saisie.Ecrit(Heure_A, champs.heure);
        saisie.Ecrit(Nom_A, champs.nom);
        saisie.Active(Valide_A, true);
        saisie.Donne_Focus(Valide_A);
    }
    void Remplit_Nouveau()
    {
        Remplit({.ind = u"F8NEW"_s,
                 .dpt = u"63"_s,
                 .prenom = u"LÉA"_s,
                 .ref = u"63087"_s,
                 .date = u"13/05/07"_s,
                 .heure = u"14:48"_s,
                 .nom = u"C. DE TOURNOËL"_s});
    }
    [[nodiscard]] static QString Nouveau()
    {
        return QSO({.ind = u"F8NEW"_s,
                    .dpt = u"63"_s,
                    .prenom = u"LÉA"_s,
                    .ref = u"63087"_s,
                    .date = u"13/05/07"_s,
                    .nom = u"C. DE TOURNOËL"_s});
    }
    void Modifie(std::size_t rang)
    {
        Clic_Liste(saisie, Entree_Liste(rang));
        Double_Clic_Liste(essai.poste, saisie, Entree_Liste(rang));
    }
    void Valide() { Valide_QSO(essai.poste, saisie); }
    void Attend_Refus(Controle champ, const QString &message)
    {
        const QByteArray avant = Log();
        const QString texte = saisie.Texte(champ);
        Valide();
        EXPECT_EQ(essai.Messages(), std::vector<QString>{message});
        EXPECT_TRUE(essai.boites.questions.empty());
        EXPECT_EQ(saisie.Focus(), champ);
        EXPECT_EQ(saisie.Texte(champ), texte);
        EXPECT_EQ(Log(), avant);
        EXPECT_EQ(saisie.Texte(Ind_A).isEmpty(), false);
    }
    /// The entry waits for the next QSO.
    void Attend_Le_Suivant()
    {
        for (const Controle champ : {Ind_A, Dpt_A, Prenom_A, Ref_A, Date_A, Heure_A, Nom_A})
            EXPECT_EQ(saisie.Texte(champ), u""_s);
        for (const Controle champ :
             {Dpt_A, Prenom_A, Ref_A, Date_A, Heure_A, Mode_A, RSTR_A, RSTE_A, Nom_A, QSL_A, Valide_A})
            EXPECT_FALSE(saisie.Est_Actif(champ)) << static_cast<int>(champ);
        EXPECT_TRUE(saisie.Est_Actif(Bande_A));
        EXPECT_EQ(saisie.Focus(), Ind_A);
        EXPECT_FALSE(saisie.Est_Coche(QSL_A));
        EXPECT_EQ(saisie.Texte(Mode_Aff), u"Saisie QSO"_s);
        EXPECT_FALSE(saisie.qso_affiche);
        EXPECT_FALSE(saisie.qso_en_edition);
    }
};

using Refus_A_La_Validation = Validation_QSO;
using Prenom_Retenu = Validation_QSO;

} // namespace

TEST_F(Validation_QSO, en_temps_reel_le_qso_va_a_la_fin_et_la_liste_le_montre)
{
    Remplit_Nouveau();
    Valide();
    EXPECT_EQ(essai.boites.questions, std::vector<QString>{u"Voulez vous enregistrer ces données ?"_s});
    EXPECT_EQ(Log(), Octets({premiere, seconde, troisieme, Nouveau()}));
    EXPECT_EQ(essai.ecran_du_log.QSO_Selectionne(), Ligne_Affichage(4, Nouveau()));
    EXPECT_EQ(saisie.ligne_selectionnee, essai.ecran_du_log.QSO_Selectionne());
    Attend_Le_Suivant();
    // The click of the selection has opened the deletion of the QSO just stored.
    EXPECT_TRUE(saisie.Est_Actif(Annule_Saisie));
}

TEST_F(Validation_QSO, non_ne_fait_rien)
{
    Remplit_Nouveau();
    essai.boites.reponses = {false};
    Valide();
    EXPECT_EQ(Log(), Octets({premiere, seconde, troisieme}));
    EXPECT_EQ(saisie.Texte(Ref_A), u"63087"_s);
    EXPECT_EQ(saisie.Focus(), Valide_A);
    EXPECT_TRUE(saisie.Est_Actif(Valide_A));
}

TEST_F(Validation_QSO, le_qso_va_au_log_de_dip_a)
{
    essai.fichiers.Pose(u"F9ZZY_DMF.log"_s, "");
    Remplit_Nouveau();
    saisie.Ecrit(Dip_A, u"DMF"_s);
    Valide();
    EXPECT_EQ(Log(), Octets({premiere, seconde, troisieme}));
    EXPECT_EQ(essai.fichiers.Octets(u"F9ZZY_DMF.log"_s), Octets({Nouveau()}));
}

TEST_F(Validation_QSO, les_champs_se_remplissent_une_fois_avant_d_etre_vides)
{
    Remplit_Nouveau();
    QStringList references;
    saisie.Se_Montre([&](Controle controle, Aspect aspect) {
        if (controle == Ref_A && aspect == Aspect::Texte)
            references += saisie.Texte(Ref_A);
    });
    Valide();
    EXPECT_EQ(references, (QStringList{u"63087"_s, u""_s}));
}

TEST_F(Validation_QSO, une_carte_recue_met_l_etoile)
{
    Remplit_Nouveau();
    saisie.Coche(QSL_A, true);
    Valide();
    EXPECT_TRUE(Est_Confirme(essai.ecran_du_log.Liste_QSO()[3]));
}

TEST_F(Validation_QSO, un_nom_de_plus_de_trente_est_coupe)
{
    Remplit_Nouveau();
    saisie.Ecrit(Nom_A, QString(30, u'X') + u"YYYYYYYYYYYYYYYYYYYY");
    Valide();
    EXPECT_EQ(Lit(essai.ecran_du_log.Liste_QSO()[3], colonnes_log::Nom), QString(30, u'X'));
    EXPECT_EQ(essai.ecran_du_log.Liste_QSO()[3].size(), 111);
}

TEST_F(Validation_QSO, une_modification_garde_la_place_et_selectionne_la_derniere)
{
    Modifie(1);
    EXPECT_EQ(saisie.Texte(Ref_A), u"05012"_s);
    saisie.Ecrit(Nom_A, u"C. NOUVEAU"_s);
    Valide();
    EXPECT_EQ(Log(), Octets({premiere,
                             QSO({.ind = u"F5BBB"_s,
                                  .dpt = u"05"_s,
                                  .ref = u"05012"_s,
                                  .date = u"14/05/07"_s,
                                  .mode = u"CW"_s,
                                  .nom = u"C. NOUVEAU"_s}),
                             troisieme}));
    EXPECT_EQ(essai.ecran_du_log.QSO_Selectionne(), Ligne_Affichage(3, troisieme));
    Attend_Le_Suivant();
}

TEST_F(Validation_QSO, un_clic_pendant_une_modification_change_la_cible)
{
    Modifie(1);
    Clic_Liste(saisie, Entree_Liste(0));
    EXPECT_EQ(saisie.Texte(Ref_A), u"05012"_s);
    EXPECT_EQ(saisie.Texte(Mode_Aff), u"Affichage QSO"_s);
    Valide();
    EXPECT_EQ(Log(), Octets({seconde, seconde, troisieme}));
}

TEST_F(Validation_QSO, un_qso_disparu_entre_temps_est_garde_a_la_fin)
{
    Modifie(1);
    essai.fichiers.Pose(u"F9ZZY_DFCF.log"_s, Octets({premiere}));
    Valide();
    EXPECT_EQ(Log(), Octets({premiere, seconde}));
    EXPECT_EQ(essai.Messages(),
              std::vector<QString>{u"L'ancien QSO n'est plus dans le log, le QSO modifié a été ajouté à la fin"_s});
    Attend_Le_Suivant();
}

TEST_F(Validation_QSO, une_ligne_qui_deborde_de_ses_colonnes_se_modifie_sans_se_doubler)
{
    const QString deborde = QString(seconde).replace(15, 1, u"1"_s) + u" et la suite";
    essai.Ouvre_Log(u"DFCF"_s, Octets({premiere, deborde, Rogne(troisieme).toString()}));
    Modifie(1);
    Valide();
    EXPECT_EQ(Log(), Octets({premiere, seconde, Rogne(troisieme).toString()}));
    Modifie(2);
    Valide();
    EXPECT_EQ(Log(), Octets({premiere, seconde, troisieme}));
    EXPECT_TRUE(essai.Messages().empty());
}

TEST_F(Validation_QSO, une_modification_va_au_log_ouvert_quel_que_soit_le_texte_de_dip_a)
{
    Modifie(1);
    saisie.Ecrit(Nom_A, u"C. NOUVEAU"_s);
    saisie.Ecrit(Dip_A, u"XYZ"_s);
    Valide();
    EXPECT_TRUE(essai.Messages().empty());
    EXPECT_EQ(essai.ecran_du_log.Liste_QSO().size(), 3U);
    EXPECT_EQ(Lit_Rogne(essai.ecran_du_log.Liste_QSO()[1], colonnes_log::Nom), u"C. NOUVEAU");
    Attend_Le_Suivant();
}

TEST_F(Validation_QSO, une_insertion_va_au_log_ouvert_quel_que_soit_le_texte_de_dip_a)
{
    saisie.saisie_differee = true;
    Remplit_Nouveau();
    saisie.Ecrit(Dip_A, u"XYZ"_s);
    Valide();
    EXPECT_TRUE(essai.Messages().empty());
    EXPECT_EQ(Log(), Octets({premiere, Nouveau(), seconde, troisieme}));
    Attend_Le_Suivant();
}

TEST_F(Validation_QSO, une_modification_d_un_indicatif_de_douze_caracteres_en_perd_deux)
{
    const QString ligne = QSO({.ind = u"TM5CHATEAUX1"_s, .dpt = u"77"_s, .ref = u"77001"_s});
    essai.Ouvre_Log(u"DFCF"_s, Octets({ligne}));
    Modifie(0);
    EXPECT_EQ(saisie.Texte(Ind_A), u"TM5CHATEAU"_s);
    Valide();
    EXPECT_EQ(Log(), Octets({QSO({.ind = u"TM5CHATEAU"_s, .dpt = u"77"_s, .ref = u"77001"_s})}));
}

TEST_F(Validation_QSO, en_differe_le_qso_va_a_sa_place)
{
    saisie.saisie_differee = true;
    Remplit_Nouveau();
    Valide();
    EXPECT_EQ(Log(), Octets({premiere, Nouveau(), seconde, troisieme}));
    EXPECT_EQ(essai.ecran_du_log.QSO_Selectionne(), Ligne_Affichage(4, troisieme));
    Attend_Le_Suivant();
}

TEST_F(Validation_QSO, apres_une_insertion_les_suivants_s_inserent_aussi)
{
    Choisit_Saisie(essai.poste, saisie, false);
    Commence_Insertion(essai.poste, saisie);
    Remplit_Nouveau();
    Valide();
    EXPECT_TRUE(saisie.saisie_differee);
    EXPECT_EQ(saisie.Texte(Label15), u"en temps reél"_s);
    // A repeat passes now, and the QSO goes to its place in time again.
    saisie.Active(Ref_A, true);
    saisie.Ecrit(Ref_A, u"77001"_s);
    essai.fichiers.Pose(u"Liste_DFCF.csv"_s, "");
    Entree(essai.poste, saisie, Ref_A);
    EXPECT_TRUE(essai.Messages().empty());
    EXPECT_EQ(saisie.Focus(), Dpt_A);
    Remplit_Nouveau();
    Valide();
    EXPECT_EQ(Log(), Octets({premiere, Nouveau(), Nouveau(), seconde, troisieme}));
    Choisit_Saisie(essai.poste, saisie, false);
    Remplit_Nouveau();
    Valide();
    EXPECT_EQ(Log(), Octets({premiere, Nouveau(), Nouveau(), seconde, troisieme, Nouveau()}));
}

TEST_F(Validation_QSO, bande_et_mode_reviennent_aux_retenus)
{
    Modifie(1);
    saisie.Ecrit(Bande_A, u"144 Mhz"_s);
    Valide();
    EXPECT_EQ(saisie.Texte(Bande_A), u"14 Mhz"_s);
    EXPECT_EQ(saisie.Texte(Mode_A), u"SSB"_s);
}

TEST_F(Validation_QSO, une_bande_libre_revient_vide)
{
    saisie.Ecrit(Bande_A, u"7.144"_s);
    Entree(essai.poste, saisie, Bande_A);
    Remplit_Nouveau();
    Valide();
    EXPECT_EQ(Lit_Rogne(essai.ecran_du_log.Liste_QSO()[3], colonnes_log::Bande), u"7.144");
    EXPECT_EQ(saisie.Texte(Bande_A), u""_s);
}

TEST_F(Validation_QSO, un_echec_ne_vide_pas_les_champs)
{
    Modifie(1);
    saisie.prenom_nouveau = true;
    QFile::remove(essai.fichiers.Chemin(u"Liste_Prenom.txt"_s));
    EXPECT_EQ(Echec([&] { Valide(); })->La_Cause(), Cause::Fichier_Introuvable);
    EXPECT_EQ(saisie.Texte(Ref_A), u"05012"_s);
}

TEST_F(Refus_A_La_Validation, un_champ_trop_long_reprend_le_focus_avant_la_question)
{
    const QString long_prenom = u"JEAN-CHRISTOPHE-MARIE"_s;
    for (const auto &[champ, texte, message] : std::vector<std::tuple<Controle, QString, QString>>{
             {Ind_A, u"F5ABC/P/MM/9Z"_s, u"12 caracteres maxi pour l'indicatif"_s},
             {Prenom_A, long_prenom, u"15 caracteres maxi pour le prénom"_s},
             {Ref_A, u"77-001-0001"_s, u"10 caracteres maxi pour la reference (pas de tiret)"_s},
             {Dpt_A, u"771"_s, u"2 caracteres pour le Departement ex : 05 ou 77"_s},
             {Date_A, u""_s, u"Entrez une date"_s},
             {Date_A, u"12/05/2007"_s, u"8 caracteres pour la date ex: 12/05/07"_s},
             {Heure_A, u""_s, u"Entrez une Heure"_s},
             {Heure_A, u"1448"_s, u"5 caractereslour l'heure ex 12:48"_s},
             {Mode_A, u"JT65"_s, u"3 caracteres maxi pour le Mode"_s},
             {Bande_A, u"14.255 Mhz"_s, u"7 caracteres maxi pour la bande"_s},
             {RSTR_A, u"5999"_s, u"3 caracteres maxi pour le Report"_s},
             {RSTE_A, u"5999"_s, u"3 caracteres maxi pour le Report"_s}}) {
        SCOPED_TRACE(message.toStdString());
        Modifie(1);
        saisie.Ecrit(champ, texte);
        Attend_Refus(champ, message);
        // The edit goes on where it was.
        EXPECT_TRUE(saisie.qso_en_edition);
        EXPECT_TRUE(saisie.Est_Actif(Valide_A));
        Efface_Tout(saisie);
    }
}

TEST_F(Refus_A_La_Validation, un_prenom_juste_assez_court_passe)
{
    Remplit_Nouveau();
    saisie.Ecrit(Prenom_A, QString(15, u'X'));
    Valide();
    EXPECT_EQ(essai.ecran_du_log.Liste_QSO()[3].size(), 111);
}

TEST_F(Refus_A_La_Validation, un_prenom_trop_long_en_saisie_ne_va_ni_au_log_ni_a_la_liste)
{
    Remplit_Nouveau();
    saisie.prenom_nouveau = true;
    saisie.Ecrit(Prenom_A, QString(16, u'X'));
    Attend_Refus(Prenom_A, u"15 caracteres maxi pour le prénom"_s);
    EXPECT_TRUE(saisie.Est_Actif(Prenom_A));
    EXPECT_EQ(essai.fichiers.Octets(u"Liste_Prenom.txt"_s), "");
}

TEST_F(Refus_A_La_Validation, des_champs_courts_ou_vides_passent_apres_une_modification)
{
    Modifie(1);
    for (const Controle champ : {Dpt_A, Prenom_A, Ref_A, RSTR_A, Nom_A})
        saisie.Ecrit(champ, QString());
    Valide();
    EXPECT_EQ(essai.ecran_du_log.Liste_QSO()[1].size(), 111);
    EXPECT_EQ(Lit_Rogne(essai.ecran_du_log.Liste_QSO()[1], colonnes_log::Ref), u"");
}

TEST_F(Refus_A_La_Validation, un_texte_de_dip_a_qui_n_est_pas_un_code_demande_un_diplome)
{
    for (const QString &texte : {u"XYZ"_s, u""_s}) {
        Remplit_Nouveau();
        saisie.Ecrit(Dip_A, texte);
        Attend_Refus(Dip_A, u"Selectionnez un diplome"_s);
    }
    EXPECT_EQ(essai.fichiers.Fichiers(), (QStringList{u"F9ZZY_DFCF.log"_s, u"Liste_Prenom.txt"_s}));
}

TEST_F(Refus_A_La_Validation, sans_log_qui_s_ouvre_rien_ne_s_ecrit_et_un_diplome_est_demande)
{
    for (const bool differee : {false, true}) {
        Remplit_Nouveau();
        saisie.saisie_differee = differee;
        QFile::remove(essai.fichiers.Chemin(u"F9ZZY_DFCF.log"_s));
        essai.ecran_du_log.Remplit_Liste({});
        Valide();
        EXPECT_EQ(essai.Messages(), std::vector<QString>{u"Selectionnez un diplome"_s});
        EXPECT_EQ(saisie.Focus(), Dip_A);
        EXPECT_TRUE(essai.boites.questions.empty());
        EXPECT_EQ(essai.fichiers.Fichiers(), QStringList{u"Liste_Prenom.txt"_s});
        EXPECT_EQ(saisie.Texte(Ref_A), u"63087"_s);
    }
}

TEST_F(Validation_QSO, un_log_disparu_depuis_qu_il_est_montre_ne_renait_qu_apres_une_question)
{
    Remplit_Nouveau();
    QFile::remove(essai.fichiers.Chemin(u"F9ZZY_DFCF.log"_s));
    essai.boites.reponses = {true, false};
    Valide();
    ASSERT_EQ(essai.boites.questions.size(), 2U);
    EXPECT_TRUE(essai.boites.questions[1].startsWith(u"Le log F9ZZY_DFCF.log n'existe plus."));
    EXPECT_FALSE(essai.fichiers.Existe(u"F9ZZY_DFCF.log"_s));
    EXPECT_EQ(saisie.Texte(Ref_A), u"63087"_s);
    essai.boites.reponses = {true, true};
    Valide();
    EXPECT_EQ(Log(), Octets({Nouveau()}));
    EXPECT_EQ(saisie.Texte(Ref_A), u""_s);
}

TEST_F(Prenom_Retenu, un_prenom_nouveau_va_a_sa_liste_en_capitales)
{
    Remplit_Nouveau();
    saisie.prenom_nouveau = true;
    saisie.Ecrit(Prenom_A, u"Léa"_s);
    Valide();
    EXPECT_EQ(essai.fichiers.Octets(u"Liste_Prenom.txt"_s), "F8NEW        63 L\xC9"
                                                            "A\r\n");
    EXPECT_EQ(Lit_Rogne(essai.ecran_du_log.Liste_QSO()[3], colonnes_log::Prenom), u"LÉA");
    // Nothing clears the flag at a commit.
    EXPECT_TRUE(saisie.prenom_nouveau);
}

TEST_F(Prenom_Retenu, un_prenom_connu_laisse_sa_liste)
{
    essai.fichiers.Pose(u"Liste_Prenom.txt"_s, "F8NEW        63 ANNE\r\n");
    saisie.Active(Ind_A, true);
    saisie.Ecrit(Prenom_A, u"LÉA"_s);
    saisie.Ecrit(Ind_A, u"F8NEW"_s);
    Entree(essai.poste, saisie, Ind_A);
    Remplit_Nouveau();
    Valide();
    EXPECT_EQ(essai.fichiers.Octets(u"Liste_Prenom.txt"_s), "F8NEW        63 ANNE\r\n");
    EXPECT_EQ(Lit_Rogne(essai.ecran_du_log.Liste_QSO()[3], colonnes_log::Prenom), u"LÉA");
}

TEST_F(Prenom_Retenu, non_ne_retient_pas_le_prenom)
{
    Remplit_Nouveau();
    saisie.prenom_nouveau = true;
    essai.boites.reponses = {false};
    Valide();
    EXPECT_EQ(essai.fichiers.Octets(u"Liste_Prenom.txt"_s), "");
}
