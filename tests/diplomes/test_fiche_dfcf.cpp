#include "Fiche_Essai.h"
#include "diplomes/Charge_Fiche.h"
#include "diplomes/tables/Tables.h"
#include "plateforme/Erreur_Execution.h"

#include <gtest/gtest.h>

using namespace diplomes;

namespace {

const QString confirme = QSO({.dpt = u"77"_s, .ref = u"77001"_s, .qsl = u"*"_s});

Etat_Fiche Etat(const Lignes_Essai &lignes)
{
    return Etat_De(fiche_dfcf, lignes);
}

QString QSO_Du(const QString &dpt)
{
    return QSO({.dpt = dpt, .qsl = u"*"_s});
}

int Departements_Vus(const Lignes_Essai &lignes)
{
    return Compte(fiche_dfcf.regles, En_Texte(lignes), {}).front().d;
}

} // namespace

TEST(Fiche_DFCF, trente_fois_le_meme_chateau_donne_le_diplome_de_base)
{
    const Etat_Fiche etat = Etat(Fois(30, confirme));
    EXPECT_EQ(Texte_De(etat, u"Label4"), u"Bravo vous pouvez obtenir le diplome DFCF de base"_s);
    EXPECT_TRUE(Est_Atteint(etat, u"Label4"));
    EXPECT_EQ(Detail_De(etat.niveaux[0]), u"avec les QSL des|30|Chateaux confirmés"_s);
    EXPECT_EQ(Boutons_Actifs(etat), QStringList{u"HF_Base"_s});
}

TEST(Fiche_DFCF, les_bandes_hors_de_la_liste_HF_ne_comptent_pas)
{
    const Lignes_Essai hors_liste = Fois(40, QSO({.dpt = u"77"_s, .bande = u"144 Mhz"_s, .qsl = u"*"_s})) +
                                    Fois(40, QSO({.dpt = u"77"_s, .bande = u"10 Mhz"_s, .qsl = u"*"_s}));
    const Etat_Fiche etat = Etat(Fois(29, confirme) + hors_liste);
    EXPECT_EQ(Texte_De(etat, u"Label4"), u"Vous ne pouvez pas encore obtenir le diplome DFCF de base"_s);
    EXPECT_FALSE(Est_Atteint(etat, u"Label4"));
    EXPECT_EQ(Detail_De(etat.niveaux[0]), u"il vous manque |1|Chateaux confirmés"_s);
    EXPECT_EQ(Boutons_Actifs(etat), QStringList());
}

TEST(Fiche_DFCF, le_18_MHz_ne_compte_ni_chateau_ni_departement)
{
    const QString ligne = QSO({.dpt = u"77"_s, .bande = u"18 Mhz"_s, .qsl = u"*"_s});
    const Comptes comptes = Compte(fiche_dfcf.regles, En_Texte({ligne}), {}).front();
    EXPECT_EQ(comptes.n, 0);
    EXPECT_EQ(comptes.d, 0);
}

TEST(Fiche_DFCF, honneur_montre_ce_qui_manque_a_chaque_condition)
{
    const Etat_Fiche etat = Etat(Departements_Confirmes(1, 89) + Fois(1411, QSO_Du(u"01"_s)));
    EXPECT_FALSE(Est_Atteint(etat, u"Label7"));
    EXPECT_EQ(Texte_De(etat, u"Label8"), u"0"_s);
    EXPECT_EQ(Texte_De(etat, u"Label10"), u"1"_s);
    EXPECT_EQ(Detail_De(etat.niveaux[1]), u"il vous manque |0|Chateaux confirmés et|1|départements confirmés"_s);
}

TEST(Fiche_DFCF, la_Corse_est_repliee_sans_regard_a_la_casse)
{
    EXPECT_EQ(Departements_Vus({QSO_Du(u"2A"_s), QSO_Du(u"2a"_s)}), 1);
    EXPECT_EQ(Departements_Vus({QSO_Du(u"2A"_s), QSO_Du(u"2B"_s)}), 2);
}

TEST(Fiche_DFCF, le_departement_00_compte_le_chateau_seul)
{
    const Comptes comptes = Compte(fiche_dfcf.regles, En_Texte({QSO_Du(u"00"_s)}), {}).front();
    EXPECT_EQ(comptes.n, 1);
    EXPECT_EQ(comptes.d, 0);
}

TEST(Fiche_DFCF, 97_et_2B_sont_un_seul_departement)
{
    EXPECT_EQ(Departements_Vus({QSO_Du(u"97"_s), QSO_Du(u"2B"_s)}), 1);
}

TEST(Fiche_DFCF, un_trophe_sans_departements_laisse_ouvert_le_seul_bouton_de_base)
{
    const Etat_Fiche etat = Etat(Fois(3000, confirme));
    EXPECT_FALSE(Est_Atteint(etat, u"Label12"));
    EXPECT_EQ(Boutons_Actifs(etat), QStringList{u"HF_Base"_s});
}

TEST(Fiche_DFCF, le_trophe_ouvre_les_boutons_de_base_et_du_trophe)
{
    const Etat_Fiche etat = Etat(Departements_Confirmes(1, 90) + Fois(4910, QSO_Du(u"01"_s)));
    EXPECT_TRUE(Est_Atteint(etat, u"Label12"));
    EXPECT_TRUE(Est_Atteint(etat, u"Label1"));
    // Command1 of the Super Trophée is never enabled.
    EXPECT_EQ(Boutons_Actifs(etat), (QStringList{u"HF_Base"_s, u"HF_Honneur"_s, u"HF_Trophe"_s}));
}

TEST(Fiche_DFCF, excellence_ne_demande_que_les_departements)
{
    const Etat_Fiche etat = Etat(Departements_Confirmes(1, 95));
    EXPECT_TRUE(Est_Atteint(etat, u"Label15"));
    EXPECT_EQ(Detail_De(etat.niveaux[4]), u"avec les QSL des|95|Départements confirmés"_s);
    EXPECT_EQ(Boutons_Actifs(etat), (QStringList{u"HF_Base"_s, u"HF_Excellence"_s}));
}

TEST(Fiche_DFCF, un_log_vide_montre_tous_les_seuils)
{
    const Etat_Fiche etat = Etat({});
    EXPECT_EQ(etat.entete, u"Diplomes DFCF bande HF"_s);
    EXPECT_EQ(etat.titre, etat.entete);
    QStringList manques;
    for (const Etat_Niveau &niveau : etat.niveaux) {
        EXPECT_EQ(niveau.etat.teinte, Teinte::Attente);
        EXPECT_EQ(niveau.avancement, 0);
        manques.push_back(niveau.detail[1].texte);
    }
    EXPECT_EQ(manques, (QStringList{u"30"_s, u"1500"_s, u"3000"_s, u"5000"_s, u"95"_s}));
}

TEST(Fiche_DFCF, une_ligne_trop_courte_n_est_pas_confirmee)
{
    EXPECT_EQ(Compte(fiche_dfcf.regles, En_Texte({confirme.left(110), confirme.left(12), u""_s}), {}).front().n, 0);
}

TEST(Fiche_DFCF, un_departement_qui_n_est_pas_un_nombre_est_l_echec_du_type)
{
    for (const QString &dpt : {u""_s, u"FR"_s, u"2C"_s})
        try {
            Etat({QSO_Du(dpt)});
            FAIL() << "no failure for " << dpt.toStdString();
        } catch (const Erreur_Execution &erreur) {
            EXPECT_EQ(erreur.La_Cause(), Cause::Type);
        }
}

TEST(Fiche_DFCF, un_departement_hors_de_la_table_est_l_echec_de_l_indice)
{
    for (const QString &dpt : {u"98"_s, u"-1"_s})
        try {
            Etat({QSO_Du(dpt)});
            FAIL() << "no failure for " << dpt.toStdString();
        } catch (const Erreur_Execution &erreur) {
            EXPECT_EQ(erreur.La_Cause(), Cause::Indice);
        }
}

TEST(Fiche_DFCF, un_departement_illisible_hors_de_la_bande_ou_sans_QSL_passe)
{
    EXPECT_NO_THROW(Etat({QSO({.bande = u"144 Mhz"_s, .qsl = u"*"_s}), QSO({})}));
}

TEST(Charge_Fiche, un_log_absent_est_l_echec_du_fichier)
{
    Poste_Essai essai;
    try {
        Charge_Fiche(essai.poste, fiche_dfcf);
        FAIL();
    } catch (const Erreur_Execution &erreur) {
        EXPECT_EQ(erreur.La_Cause(), Cause::Fichier_Introuvable);
        EXPECT_TRUE(erreur.Texte().contains(u"F9ZZY_DFCF.log"_s));
    }
}

TEST(Charge_Fiche, la_fiche_lit_le_log_sur_le_disque_et_ne_l_ecrit_pas)
{
    Poste_Essai essai;
    const QByteArray octets = En_Octets(Fois(30, confirme));
    essai.fichiers.Pose(u"F9ZZY_DFCF.log"_s, octets);
    EXPECT_TRUE(Est_Atteint(Charge_Fiche(essai.poste, fiche_dfcf), u"Label4"));
    EXPECT_EQ(essai.fichiers.Octets(u"F9ZZY_DFCF.log"_s), octets);
    EXPECT_EQ(essai.fichiers.Fichiers(), QStringList{u"F9ZZY_DFCF.log"_s});
}

TEST(Presse_Bouton, chaque_bouton_donne_sa_bande_et_sa_categorie_et_montre_la_liste)
{
    const std::vector<std::pair<QString, QString>> attendus = {
        {u"HF_Base"_s, u"de Base"_s},
        {u"HF_Honneur"_s, u"Honneur"_s},
        {u"HF_Trophe"_s, u"Trophe"_s},
        {u"HF_Excellence"_s, u"Excellence"_s},
    };
    for (const auto &[bouton, categorie] : attendus) {
        Poste_Essai essai;
        essai.etat.mode_liste = u"CW"_s;
        Presse_Bouton(essai.poste, fiche_dfcf, bouton);
        EXPECT_EQ(essai.etat.bande_liste, u"HF"_s);
        EXPECT_EQ(essai.etat.code_categorie, categorie);
        EXPECT_EQ(essai.etat.mode_liste, u"CW"_s);
        EXPECT_EQ(essai.ecrans.montres, std::vector<QString>{u"Liste_DFCF"_s});
    }
}

TEST(Presse_Bouton, le_bouton_du_super_trophe_n_a_pas_d_action)
{
    Poste_Essai essai;
    Presse_Bouton(essai.poste, fiche_dfcf, u"Command1");
    EXPECT_TRUE(essai.ecrans.montres.empty());
    EXPECT_TRUE(essai.etat.code_categorie.isEmpty());
}
