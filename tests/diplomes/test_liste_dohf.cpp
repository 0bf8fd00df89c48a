#include "Ouvrages_Essai.h"
#include "diplomes/Charge_Liste.h"
#include "diplomes/Sorties_Liste.h"
#include "diplomes/regles/Remplit_Liste.h"
#include "diplomes/tables/Tables.h"
#include "faux/Attendus.h"
#include "faux/Echec.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

using namespace diplomes;

namespace {

const QStringList categories = {u"BA"_s, u"EC"_s, u"PT"_s, u"AQ"_s, u"MA"_s, u"MI"_s};

const std::map<QString, QString> libelles = {
    {u"BA"_s, u"Barrages"_s}, {u"EC"_s, u"Ecluses / Bassins"_s},       {u"PT"_s, u"Ponts / Ponts Cannaux / Tunnels"_s},
    {u"AQ"_s, u"Aqueducs"_s}, {u"MA"_s, u"Machines / Pentes d'eau"_s}, {u"MI"_s, u"Mixte"_s},
};

void Choisit(Etat_Commun &etat, const QString &categorie)
{
    etat.code_categorie = categorie;
    etat.categorie_liste = categorie;
    etat.libelle_categorie = libelles.at(categorie);
    etat.niveau_liste = u"Niveau 1"_s;
}

Etat_Liste Liste(const QString &categorie, const Lignes_Essai &lignes)
{
    Etat_Commun etat;
    Choisit(etat, categorie);
    return Remplit_Liste(liste_dohf, En_Texte(lignes), etat);
}

/// One work of every kind, out of order.
const Lignes_Essai ouvrages = {
    Ouvrage(u"77XX001"_s),          Ouvrage(u"45EC102"_s, u"*"_s), Ouvrage(u"45BS003"_s), Ouvrage(u"33PT010"_s),
    Ouvrage(u"33PC011"_s),          Ouvrage(u"31TU002"_s),         Ouvrage(u"18AQ001"_s), Ouvrage(u"02MA001"_s),
    Ouvrage(u"02PE001"_s),          Ouvrage(u"2ABA001"_s),         Ouvrage(u"BA102"_s),   Ouvrage(u"45EC102"_s),
    Ouvrage(u"01BA002"_s).left(90),
};

QStringList References(const Etat_Liste &liste)
{
    QStringList references;
    for (const QString &rang : liste.rangs)
        references.push_back(rang.mid(1, 10).trimmed());
    return references;
}

/// The rows as a reader would pick them by hand.
std::vector<QString> Rangs_Lents(const QString &categorie, const Lignes_Essai &lignes)
{
    std::map<QString, QStringList> lettres = {
        {u"BA"_s, {u"BA"_s}}, {u"EC"_s, {u"EC"_s, u"BS"_s}}, {u"PT"_s, {u"PT"_s, u"PC"_s, u"TU"_s}},
        {u"AQ"_s, {u"AQ"_s}}, {u"MA"_s, {u"MA"_s, u"PE"_s}},
    };
    std::vector<QString> rangs;
    for (const QString &ligne : lignes) {
        const QString deux = ligne.mid(36, 2);
        if (categorie != u"MI"_s && !(lettres[categorie] + QStringList{u"BA"_s, u"AQ"_s}).contains(deux))
            continue;
        rangs.push_back(u" "_s + ligne.mid(34, 10) + u"  "_s + ligne.mid(13, 2) + u"  "_s + ligne.mid(79, 30) +
                        u"  "_s + ligne.mid(44, 8) + u"  "_s + ligne.mid(53, 5) + u"  "_s + ligne.mid(0, 12));
    }
    std::stable_sort(rangs.begin(), rangs.end(),
                     [](const QString &a, const QString &b) { return a.toUpper() < b.toUpper(); });
    return rangs;
}

struct Poste_DOHF : Poste_Essai {
    explicit Poste_DOHF(const QString &categorie)
    {
        fichiers.Pose(u"F9ZZY_DOHF.log"_s, En_Octets(ouvrages));
        Choisit(etat, categorie);
    }
    [[nodiscard]] Etat_Liste Liste() const { return Charge_Liste(poste, liste_dohf); }
};

} // namespace

TEST(Liste_DOHF, le_rang_a_la_reference_entiere_et_les_champs_tels_qu_ils_sont)
{
    const Etat_Liste liste = Liste(u"EC"_s, {Ouvrage(u"45EC102"_s)});
    ASSERT_EQ(liste.rangs.size(), 1U);
    EXPECT_EQ(liste.rangs[0], u" 45EC102     45  OUVRAGE 45EC102                 12/05/07  14:48  F5ABC       "_s);
    EXPECT_EQ(liste.colonnes, u"    Ref        Dpt      Nom du Chateau               Date    Heure  Indicatif"_s);
    EXPECT_EQ(liste.entete, u"Diplome Niveau 1 Ecluses / Bassins"_s);
    EXPECT_EQ(liste.compte, u" 1 DOHF contactés"_s);
}

TEST(Liste_DOHF, chaque_categorie_a_son_titre_sauf_les_aqueducs)
{
    EXPECT_EQ(Liste(u"BA"_s, {}).titre, u"Liste DOHF Barrages"_s);
    EXPECT_EQ(Liste(u"EC"_s, {}).titre, u"Liste DOHF Ecluses / Bassins"_s);
    EXPECT_EQ(Liste(u"PT"_s, {}).titre, u"Liste DOHF Ponts / Ponts Canaux / Tunnels"_s);
    EXPECT_EQ(Liste(u"MI"_s, {}).titre, u"Liste DOHF Mixte"_s);
    EXPECT_EQ(Liste(u"MA"_s, {}).titre, u"Liste DOHF Machines / pentes d'eau"_s);
    EXPECT_EQ(Liste(u"AQ"_s, {}).titre, u"Diplôme DOHF"_s);
}

TEST(Liste_DOHF, barrages_et_aqueducs_sont_dans_toutes_les_listes_et_la_Corse_avec_eux)
{
    const QStringList partout = {u"01BA002"_s, u"18AQ001"_s, u"2ABA001"_s};
    EXPECT_EQ(References(Liste(u"BA"_s, ouvrages)), partout);
    EXPECT_EQ(References(Liste(u"AQ"_s, ouvrages)), partout);
    for (const QString &categorie : categories)
        for (const QString &ref : partout)
            EXPECT_TRUE(References(Liste(categorie, ouvrages)).contains(ref)) << categorie.toStdString();
}

TEST(Liste_DOHF, TU_et_PC_sont_avec_les_ponts_PE_avec_les_machines_BS_avec_les_ecluses)
{
    EXPECT_EQ(References(Liste(u"PT"_s, ouvrages)),
              (QStringList{u"01BA002"_s, u"18AQ001"_s, u"2ABA001"_s, u"31TU002"_s, u"33PC011"_s, u"33PT010"_s}));
    EXPECT_EQ(References(Liste(u"MA"_s, ouvrages)),
              (QStringList{u"01BA002"_s, u"02MA001"_s, u"02PE001"_s, u"18AQ001"_s, u"2ABA001"_s}));
    EXPECT_EQ(References(Liste(u"EC"_s, ouvrages)),
              (QStringList{u"01BA002"_s, u"18AQ001"_s, u"2ABA001"_s, u"45BS003"_s, u"45EC102"_s, u"45EC102"_s}));
}

TEST(Liste_DOHF, des_lettres_inconnues_ne_sont_que_dans_mixte)
{
    for (const QString &categorie : categories)
        EXPECT_EQ(References(Liste(categorie, ouvrages)).contains(u"77XX001"_s), categorie == u"MI"_s);
    EXPECT_EQ(Liste(u"MI"_s, ouvrages).rangs.size(), ouvrages.size());
}

TEST(Liste_DOHF, les_rangs_d_un_log_au_hasard_sont_ceux_tries_a_la_main)
{
    for (const unsigned graine : {11U, 12U, 13U}) {
        const Lignes_Essai lignes = Ouvrages_Au_Hasard(graine, 500);
        for (const QString &categorie : categories) {
            const Etat_Liste liste = Liste(categorie, lignes);
            EXPECT_EQ(liste.rangs, Rangs_Lents(categorie, lignes)) << categorie.toStdString();
            EXPECT_EQ(liste.compte, u" %1 DOHF contactés"_s.arg(liste.rangs.size()));
        }
    }
}

TEST(Liste_DOHF, le_fichier_d_une_categorie_a_son_nom_et_ses_octets)
{
    const std::map<QString, QString> noms = {
        {u"BA"_s, u"F9ZZY Diplome DOHF Barrages BA le 15_11_26.txt"_s},
        {u"EC"_s, u"F9ZZY Diplome DOHF Ecluses Bassins EC le 15_11_26.txt"_s},
        {u"PT"_s, u"F9ZZY Diplome DOHF Ponts PT le 15_11_26.txt"_s},
        {u"MI"_s, u"F9ZZY Diplome DOHF Ouvrages Mixtes MI le 15_11_26.txt"_s},
    };
    for (const auto &[categorie, nom] : noms) {
        Poste_DOHF essai(categorie);
        Enregistre_Liste(essai.poste, liste_dohf, essai.Liste());
        Compare_Attendu(u"liste_dohf_%1.txt"_s.arg(categorie.toLower()), essai.fichiers.Octets(nom));
        EXPECT_EQ(essai.boites.messages, std::vector<QString>{u"Fichier enregistré sous le nom : "_s + nom});
    }
}

TEST(Liste_DOHF, les_aqueducs_n_ont_pas_de_fichier_et_le_nom_des_machines_est_celui_d_un_repertoire)
{
    const std::map<QString, QString> nommes = {
        {u"AQ"_s, QString()},
        {u"MA"_s, u"F9ZZY Diplome DOHF Machines / Pentes d'eau MA le 15_11_26.txt"_s},
    };
    for (const auto &[categorie, nom] : nommes) {
        Poste_DOHF essai(categorie);
        const QStringList avant = essai.fichiers.Fichiers();
        const auto echec = Echec([&] { Enregistre_Liste(essai.poste, liste_dohf, essai.Liste()); });
        ASSERT_TRUE(echec);
        EXPECT_TRUE(echec->Texte().contains(nom.isEmpty() ? essai.fichiers.Chemin() : nom))
            << echec->Texte().toStdString();
        EXPECT_EQ(essai.fichiers.Fichiers(), avant);
        EXPECT_TRUE(essai.boites.messages.empty());
    }
}

TEST(Liste_DOHF, le_fichier_va_par_la_categorie_de_la_fiche_et_non_par_celle_de_la_liste)
{
    Poste_DOHF essai(u"EC"_s);
    const Etat_Liste ecluses = essai.Liste();
    essai.etat.code_categorie = u"PT"_s;
    Enregistre_Liste(essai.poste, liste_dohf, ecluses);
    EXPECT_TRUE(essai.fichiers.Octets(u"F9ZZY Diplome DOHF Ponts PT le 15_11_26.txt"_s).contains(" 45EC102 "));
}

TEST(Liste_DOHF, la_page_de_chaque_categorie_a_ses_lignes)
{
    for (const QString &categorie : categories) {
        Poste_DOHF essai(categorie);
        Imprime_Liste(essai.poste, liste_dohf, essai.Liste());
        ASSERT_EQ(essai.imprimante.documents.size(), 1U);
        Compare_Attendu(u"page_dohf_%1.txt"_s.arg(categorie.toLower()), En_Octets(essai.imprimante.documents[0]));
    }
}
