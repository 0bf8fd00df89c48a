#include "diplomes/regles/Evalue.h"
#include "diplomes/regles/Remplit_Liste.h"
#include "diplomes/tables/Tables.h"
#include "faux/Impression.h"
#include "log/Etat_Commun.h"

#include <QSet>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace diplomes;

namespace {

/// Nothing that a screen shows has a brace left.
void Est_Compose(const QString &texte)
{
    EXPECT_FALSE(texte.contains(u'{')) << texte.toStdString();
}

void Est_Compose(const Etiquette &etiquette)
{
    Est_Compose(etiquette.texte);
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
        const Etat_Fiche etat = Evalue_Fiche(*fiche, {}, {});
        Est_Compose(etat.titre);
        Est_Compose(etat.entete);
        for (const Etat_Niveau &niveau : etat.niveaux) {
            Est_Compose(niveau.etat);
            for (const Etiquette &etiquette : niveau.detail)
                Est_Compose(etiquette);
        }
    }
}

TEST(Tables, chaque_texte_d_une_liste_nomme_des_valeurs_connues)
{
    for (const Liste_Diplome *liste : Listes()) {
        const Etat_Liste etat = Evalue_Liste(*liste, {}, {});
        for (const QString &texte : {etat.titre, etat.entete, etat.compte})
            Est_Compose(texte);
        Valeurs valeurs = Valeurs_De_Liste(*liste, {});
        valeurs.Pose_Jour(QDate(2026, 11, 15), u"15/11/2026"_s);
        Est_Compose(Compose(liste->selecteur, valeurs));
        for (const auto sorties : {liste->fichiers, liste->pages})
            for (const Sortie_De_Liste &sortie : sorties) {
                Est_Compose(Compose(sortie.fichier, valeurs));
                Est_Compose(Compose(sortie.titre, valeurs));
            }
    }
}

TEST(Tables, les_noms_que_tout_texte_peut_nommer_ont_une_valeur)
{
    for (const std::u16string_view nom : noms_communs)
        EXPECT_NE(Valeurs(Etat_Commun()).Cherche(nom), nullptr) << QStringView(nom).toString().toStdString();
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
            const bool de_ses_regles = !fiche->evalue;
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
