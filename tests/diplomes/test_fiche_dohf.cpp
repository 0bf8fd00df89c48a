#include "Fiche_Essai.h"
#include "Ouvrages_Essai.h"
#include "diplomes/Charge_Fiche.h"
#include "diplomes/tables/Tables.h"
#include "faux/Echec.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

#include <map>

using namespace diplomes;

namespace {

const QStringList categories = {u"BA"_s, u"EC"_s, u"PT"_s, u"AQ"_s, u"MA"_s, u"MI"_s};

Etat_Commun Categorie(const QString &code, const QString &libelle = u"Ecluses / Bassins"_s)
{
    Etat_Commun etat;
    etat.code_categorie = code;
    etat.libelle_categorie = libelle;
    return etat;
}

int Nombre(const QString &code, const Lignes_Essai &lignes)
{
    return Compte(fiche_dohf.regles, En_Texte(lignes), Categorie(code)).front().n;
}

/// The count as a reader would make it by hand.
int Compte_Lent(const QString &code, const Lignes_Essai &lignes)
{
    const std::map<QString, QString> alternatives = {
        {u"BA"_s, u"BA"_s}, {u"EC"_s, u"EC|BS"_s}, {u"PT"_s, u"PT|PC|TU"_s}, {u"AQ"_s, u"AQ"_s}, {u"MA"_s, u"MA|PE"_s},
    };
    int nombre = 0;
    for (QString ref : lignes) {
        ref = ref.mid(34, 5).remove(QRegularExpression(u"[\\x{0}-@]"_s));
        if (code == u"MI"_s || QRegularExpression(u"^(?:"_s + alternatives.at(code) + u")$"_s).match(ref).hasMatch())
            ++nombre;
    }
    return nombre;
}

} // namespace

TEST(Fiche_DOHF, sans_ligne_tout_attend_et_montre_son_seuil)
{
    const Etat_Fiche etat = Etat_De(fiche_dohf, {}, Categorie(u"EC"_s));
    QStringList details;
    for (const Etat_Niveau &niveau : etat.niveaux) {
        EXPECT_EQ(niveau.etat.teinte, Teinte::Attente);
        EXPECT_TRUE(niveau.etat.texte.startsWith(u"Vous ne pouvez pas encore obtenir le diplome DOHF "_s));
        details.push_back(Detail_De(niveau));
    }
    EXPECT_EQ(details, (QStringList{
                           u"il vous manque 10 Ecluses / Bassins contacté(e)s"_s,
                           u"il vous manque 20 Ecluses / Bassins contacté(e)s"_s,
                           u"il vous manque 30 Ecluses / Bassins contacté(e)s"_s,
                           u"il vous manque 50 Ecluses / Bassins contacté(e)s"_s,
                           u"il vous manque 100 Ecluses / Bassins contacté(e)s"_s,
                           u"il vous manque 250 Ecluses / Bassins contacté(e)s"_s,
                           u"il vous manque 500 Ecluses / Bassins contacté(e)s"_s,
                       }));
    EXPECT_EQ(Boutons_Actifs(etat), QStringList());
    EXPECT_EQ(etat.entete, u"Diplome Ecluses / Bassins"_s);
}

TEST(Fiche_DOHF, dix_lignes_d_un_seul_ouvrage_sans_QSL_donnent_le_niveau_1)
{
    const Etat_Fiche etat = Etat_De(fiche_dohf, Fois(10, Ouvrage(u"45EC102"_s)), Categorie(u"EC"_s));
    EXPECT_TRUE(Est_Atteint(etat, u"Label4"));
    EXPECT_EQ(Texte_De(etat, u"Label4"), u"Bravo vous pouvez obtenir le diplome DOHF de nivau 1"_s);
    EXPECT_EQ(Texte_De(etat, u"Label18"), u"avec les QSL des 10 Ecluses / Bassins contacté(e)s"_s);
    EXPECT_FALSE(Est_Atteint(etat, u"Label7"));
    EXPECT_EQ(Texte_De(etat, u"Label19"), u"il vous manque 10 Ecluses / Bassins contacté(e)s"_s);
    EXPECT_EQ(Boutons_Actifs(etat), QStringList{u"N1"_s});
}

TEST(Fiche_DOHF, chaque_niveau_atteint_garde_son_texte_lettre_pour_lettre)
{
    const Etat_Fiche etat = Etat_De(fiche_dohf, Fois(500, Ouvrage(u"45EC102"_s)), Categorie(u"EC"_s));
    QStringList textes;
    for (const Etat_Niveau &niveau : etat.niveaux)
        textes.push_back(niveau.etat.nom + u' ' + niveau.etat.texte);
    EXPECT_EQ(textes, (QStringList{
                          u"Label4 Bravo vous pouvez obtenir le diplome DOHF de nivau 1"_s,
                          u"Label7 Bravo vous pouvez obtenir le diplome DOHF de niveau 2"_s,
                          u"Label12 Bravo vous pouvez obtenir le diplome DOHFde niveau 3"_s,
                          u"Label15 Bravo vous pouvez obtenir le Diplome DOHF Chasseur"_s,
                          u"Label3 Bravo vous pouvez obtenir le Diplome DOHF Excellence"_s,
                          u"Label1 Bravo vous pouvez obtenir le Diplome DOHF Honneur"_s,
                          u"Label27 Bravo vous pouvez obtenir le Diplome DOHF Maitre d'ouvrage"_s,
                      }));
    EXPECT_EQ(Boutons_Actifs(etat),
              (QStringList{u"N1"_s, u"N2"_s, u"N3"_s, u"Chasseur"_s, u"Excellence"_s, u"Honneur"_s, u"Maitre"_s}));
}

TEST(Fiche_DOHF, chaque_couple_de_lettres_compte_pour_sa_categorie)
{
    const std::map<QString, QString> attendus = {
        {u"BA"_s, u"BA"_s}, {u"EC"_s, u"EC"_s}, {u"BS"_s, u"EC"_s}, {u"PT"_s, u"PT"_s}, {u"PC"_s, u"PT"_s},
        {u"TU"_s, u"PT"_s}, {u"AQ"_s, u"AQ"_s}, {u"MA"_s, u"MA"_s}, {u"PE"_s, u"MA"_s},
    };
    for (const auto &[lettres, sienne] : attendus)
        for (const QString &categorie : categories)
            EXPECT_EQ(Nombre(categorie, {Ouvrage(u"45"_s + lettres + u"001"_s)}),
                      categorie == sienne || categorie == u"MI"_s ? 1 : 0)
                << lettres.toStdString() << " " << categorie.toStdString();
}

TEST(Fiche_DOHF, des_lettres_inconnues_ne_comptent_que_pour_mixte)
{
    for (const QString &categorie : categories)
        EXPECT_EQ(Nombre(categorie, {Ouvrage(u"77XX001"_s)}), categorie == u"MI"_s ? 1 : 0);
}

TEST(Fiche_DOHF, la_lettre_de_la_Corse_se_joint_aux_autres)
{
    EXPECT_EQ(Nombre(u"EC"_s, {Ouvrage(u"2AEC102"_s), Ouvrage(u"2BEC102"_s)}), 0);
    EXPECT_EQ(Nombre(u"MI"_s, {Ouvrage(u"2AEC102"_s), Ouvrage(u"2BEC102"_s)}), 2);
}

TEST(Fiche_DOHF, un_signe_qui_n_est_pas_une_lettre_est_passe)
{
    EXPECT_EQ(Nombre(u"EC"_s, {Ouvrage(u"45EC@02"_s), Ouvrage(u"4-EC102"_s), Ouvrage(u"45E1C02"_s)}), 3);
    EXPECT_EQ(Nombre(u"EC"_s, {Ouvrage(u"45ECA02"_s), Ouvrage(u"É5EC102"_s)}), 0);
}

TEST(Fiche_DOHF, une_ligne_coupee_ne_compte_que_pour_mixte)
{
    const Lignes_Essai lignes = {Ouvrage(u"45EC102"_s).left(30), u""_s};
    EXPECT_EQ(Nombre(u"EC"_s, lignes), 0);
    EXPECT_EQ(Nombre(u"MI"_s, lignes), 2);
}

TEST(Fiche_DOHF, le_compte_d_un_log_au_hasard_est_celui_fait_a_la_main)
{
    for (const unsigned graine : {1U, 2U, 3U, 4U}) {
        const Lignes_Essai lignes = Ouvrages_Au_Hasard(graine, 700);
        for (const QString &categorie : categories) {
            EXPECT_EQ(Nombre(categorie, lignes), Compte_Lent(categorie, lignes)) << categorie.toStdString();
            EXPECT_GT(Compte_Lent(categorie, lignes), 5);
        }
    }
}

TEST(Fiche_DOHF, un_bouton_donne_le_niveau_et_copie_la_categorie)
{
    const std::map<QString, QString> niveaux = {
        {u"N1"_s, u"Niveau 1"_s},
        {u"N2"_s, u"Niveau 2"_s},
        {u"N3"_s, u"Niveau 3"_s},
        {u"Chasseur"_s, u"Chasseur"_s},
        {u"Excellence"_s, u"Excellence"_s},
        {u"Honneur"_s, u"Honneur"_s},
        {u"Maitre"_s, u"Maitre d'ouvrage"_s},
    };
    for (const auto &[bouton, niveau] : niveaux) {
        Poste_Essai essai;
        essai.etat.code_categorie = u"PT"_s;
        essai.etat.libelle_categorie = u"Ponts / Ponts Cannaux / Tunnels"_s;
        Presse_Bouton(essai.poste, fiche_dohf, bouton);
        EXPECT_EQ(essai.etat.niveau_liste, niveau);
        EXPECT_EQ(essai.etat.categorie_liste, u"PT"_s);
        EXPECT_EQ(essai.etat.code_categorie, u"PT"_s);
        EXPECT_EQ(essai.etat.libelle_categorie, u"Ponts / Ponts Cannaux / Tunnels"_s);
        EXPECT_EQ(essai.ecrans.montres, std::vector<QString>{u"Liste_DOHF"_s});
    }
}

TEST(Fiche_DOHF, un_log_absent_est_l_echec_du_fichier)
{
    Poste_Essai essai;
    const auto echec = Echec([&] { Charge_Fiche(essai.poste, fiche_dohf); });
    ASSERT_TRUE(echec);
    EXPECT_EQ(echec->La_Cause(), Cause::Fichier_Introuvable);
    EXPECT_TRUE(echec->Texte().contains(u"F9ZZY_DOHF.log"_s));
}
