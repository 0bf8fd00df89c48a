#include "diplomes/tables/Tables.h"
#include "faux/Impression.h"
#include "log/Etat_Commun.h"

#include <QSet>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The values that every text of the tables may name.
Valeurs Toutes_Les_Valeurs()
{
    Valeurs valeurs{Etat_Commun()};
    valeurs.Pose_Jour(QDate(2026, 11, 15), u"15/11/2026"_s);
    for (const QStringView nom :
         {u"n", u"d", u"c", u"seuil_n", u"reste_n", u"reste_d", u"manque_n", u"manque_d", u"Challenge", u"Annee"})
        valeurs.Pose(nom, 7);
    return valeurs;
}

void Est_Compose(QStringView texte)
{
    EXPECT_FALSE(Compose(texte, Toutes_Les_Valeurs()).contains(u'{')) << texte.toString().toStdString();
}

QSet<QString> Boutons(const Fiche_Diplome &fiche)
{
    QSet<QString> boutons;
    for (const Niveau_Diplome &niveau : fiche.niveaux)
        boutons.insert(niveau.bouton.toString());
    return boutons;
}

} // namespace

TEST(Tables, chaque_texte_d_une_fiche_nomme_des_valeurs_connues)
{
    for (const Fiche_Diplome *fiche : Fiches()) {
        Est_Compose(fiche->titre);
        Est_Compose(fiche->entete);
        for (const Niveau_Diplome &niveau : fiche->niveaux) {
            for (const QStringView texte : {niveau.attente, niveau.atteint, niveau.manque})
                Est_Compose(texte);
            for (const Texte_Detail &detail : niveau.detail)
                for (const QStringView texte : {detail.manque, detail.atteint, detail.inchange})
                    Est_Compose(texte);
        }
    }
}

TEST(Tables, les_noms_d_une_fiche_sont_uniques)
{
    for (const Fiche_Diplome *fiche : Fiches()) {
        QStringList noms{u"Label2"_s};
        for (const Niveau_Diplome &niveau : fiche->niveaux) {
            noms << niveau.etat.toString() << niveau.bouton.toString();
            for (const Texte_Detail &detail : niveau.detail)
                if (!detail.nom.isEmpty())
                    noms << detail.nom.toString();
        }
        noms.removeAll(QString());
        EXPECT_EQ(noms.removeDuplicates(), 0) << fiche->ecran.toString().toStdString();
    }
}

TEST(Tables, un_niveau_n_ouvre_que_des_boutons_de_sa_fiche_et_a_une_regle)
{
    for (const Fiche_Diplome *fiche : Fiches())
        for (const Niveau_Diplome &niveau : fiche->niveaux) {
            const bool de_ses_regles = fiche->charge == Charge_Par_Niveaux;
            EXPECT_TRUE(!de_ses_regles || niveau.regle < qMax(fiche->regles.size(), std::size_t{1}));
            for (const QStringView bouton : niveau.ouvre)
                EXPECT_TRUE(bouton.isEmpty() || Boutons(*fiche).contains(bouton.toString()));
        }
}

TEST(Tables, chaque_ecran_a_son_nom_et_chaque_fiche_sa_liste)
{
    QStringList ecrans;
    QSet<QString> listes;
    for (const Liste_Diplome *liste : Listes()) {
        ecrans << liste->ecran.toString();
        listes.insert(liste->ecran.toString());
    }
    for (const Fiche_Diplome *fiche : Fiches()) {
        ecrans << fiche->ecran.toString();
        EXPECT_TRUE(listes.contains(fiche->liste.toString())) << fiche->ecran.toString().toStdString();
    }
    for (const Choix_Diplome *choix : Choix_De_Diplomes())
        ecrans << choix->ecran.toString();
    EXPECT_EQ(ecrans.removeDuplicates(), 0);
}

TEST(Tables, une_option_montre_une_fiche_de_la_table)
{
    QSet<QString> fiches;
    for (const Fiche_Diplome *fiche : Fiches())
        fiches.insert(fiche->ecran.toString());
    for (const QString &code : {u"DAF"_s, u"DCPF"_s, u"DFF"_s})
        for (const Choix_Diplome *choix : Choix_De_Diplomes())
            if (choix->ecran == QString(u"Select_Dip_"_s + code))
                for (const Groupe_Options &groupe : choix->groupes)
                    for (const Option_Diplome &option : groupe.options) {
                        EXPECT_EQ(option.ecran, QString(u"Diplomes_"_s + code));
                        EXPECT_TRUE(fiches.contains(option.ecran.toString()));
                    }
}

TEST(Compose, met_les_valeurs_a_leur_place_et_ne_regarde_pas_dedans)
{
    Etat_Commun etat;
    etat.bande_liste = u"{Mode_Liste}"_s;
    etat.mode_liste = u"CW"_s;
    EXPECT_EQ(Compose(u"a {Bande_Liste} b {Mode_Liste}", Valeurs(etat)), u"a {Mode_Liste} b CW"_s);
    EXPECT_EQ(Compose(u"{Inconnu} {", Valeurs(etat)), u"{Inconnu} {"_s);
}
