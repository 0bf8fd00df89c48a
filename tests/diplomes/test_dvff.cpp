#include "Fiche_Essai.h"
#include "diplomes/ADIF_Ouvrages.h"
#include "diplomes/Charge_Fiche.h"
#include "diplomes/Charge_Liste.h"
#include "diplomes/Sorties_Liste.h"
#include "diplomes/tables/Tables.h"
#include "faux/Attendus.h"
#include "faux/Echec.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

using namespace diplomes;

namespace {

QString Activite(const QString &ref, const QString &qsl)
{
    return QSO({.dpt = u"18"_s, .prenom = u"ANNE"_s, .ref = ref, .nom = u"G. FORÊT "_s + ref, .qsl = qsl});
}

/// Twelve lines, nine of them confirmed.
Lignes_Essai Douze_Lignes()
{
    Lignes_Essai lignes;
    for (int i = 1; i <= 12; ++i)
        lignes.push_back(
            Activite((i % 2 == 0 ? u"GA18%1"_s : u"GVM18%1"_s).arg(i, 3, 10, QChar(u'0')), i % 4 ? u"*"_s : u" "_s));
    return lignes;
}

/// Lines with any sign in the QSL column, and lines that end before it.
Lignes_Essai Lignes_Au_Hasard(unsigned graine)
{
    std::mt19937 hasard(graine);
    Lignes_Essai lignes;
    for (int i = 0; i < 400; ++i) {
        const QString ligne = Activite(u"GA%1"_s.arg(hasard() % 100000), QString(u"* x+"_s[hasard() % 4]));
        lignes.push_back(hasard() % 10 == 0 ? ligne.left(static_cast<qsizetype>(hasard() % 112)) : ligne);
    }
    return lignes;
}

Lignes_Essai Confirmees(const Lignes_Essai &lignes)
{
    Lignes_Essai confirmees;
    for (const QString &ligne : lignes)
        if (ligne.size() > 110 && ligne[110] == u'*')
            confirmees.push_back(ligne);
    return confirmees;
}

struct Poste_DVFF : Poste_Essai {
    explicit Poste_DVFF(const Lignes_Essai &lignes)
    {
        fichiers.Pose(u"F9ZZY_DVFF.log"_s, En_Octets(lignes));
        etat.niveau_liste = u"Niveau 1"_s;
    }
    [[nodiscard]] Etat_Fiche Fiche() const { return Charge_Fiche(poste, fiche_dvff); }
    [[nodiscard]] Etat_Liste Liste() const { return Charge_Liste(poste, liste_dvff); }
};

} // namespace

TEST(Fiche_DVFF, neuf_lignes_confirmees_sur_douze_en_laissent_une_a_trouver)
{
    const Etat_Fiche etat = Poste_DVFF(Douze_Lignes()).Fiche();
    EXPECT_EQ(etat.titre, u"Diplomes DVFF"_s);
    EXPECT_EQ(Texte_De(etat, u"Label4"), u"Vous ne pouvez pas encore obtenir le diplome DVFF de niveau 1"_s);
    EXPECT_EQ(Texte_De(etat, u"Label18"), u"il vous manque 1 DVFF contacté(e)s"_s);
    EXPECT_EQ(Texte_De(etat, u"Label28"), u"il vous manque 491 DVFF contacté(e)s"_s);
    EXPECT_EQ(Boutons_Actifs(etat), QStringList());
}

TEST(Fiche_DVFF, la_meme_reference_confirmee_deux_fois_compte_deux_fois)
{
    const Etat_Fiche etat = Poste_DVFF(Fois(10, Activite(u"GA18001"_s, u"*"_s))).Fiche();
    EXPECT_EQ(Texte_De(etat, u"Label18"), u"avec les QSL des 10 DVFF contacté(e)s"_s);
    EXPECT_EQ(Boutons_Actifs(etat), QStringList{u"N1"_s});
}

TEST(Fiche_DVFF, chaque_niveau_atteint_garde_son_texte_lettre_pour_lettre)
{
    QStringList textes;
    for (const Etat_Niveau &niveau : Poste_DVFF(Fois(500, Activite(u"GA18001"_s, u"*"_s))).Fiche().niveaux)
        textes.push_back(niveau.etat.nom + u' ' + niveau.etat.texte);
    EXPECT_EQ(textes, (QStringList{
                          u"Label4 Bravo vous pouvez obtenir le diplome DVFF de niveau 1"_s,
                          u"Label7 Bravo vous pouvez obtenir le diplome DVFF de niveau 2"_s,
                          u"Label12 Bravo vous pouvez obtenir le diplome DVFFde niveau 3"_s,
                          u"Label15 Bravo vous pouvez obtenir le Diplome DVFF Chasseur"_s,
                          u"Label3 Bravo vous pouvez obtenir le Diplome DVFF Excellence"_s,
                          u"Label1 Bravo vous pouvez obtenir le Diplome DVFF Honneur"_s,
                          u"Label27 Bravo vous pouvez obtenir le Diplome DVFF Maitre d'ouvrage"_s,
                      }));
}

TEST(Fiche_DVFF, un_bouton_donne_le_niveau_et_laisse_la_categorie)
{
    Poste_DVFF essai({});
    essai.etat.categorie_liste = u"EC"_s;
    essai.etat.code_categorie = u"PT"_s;
    Presse_Bouton(essai.poste, fiche_dvff, u"Maitre");
    EXPECT_EQ(essai.etat.niveau_liste, u"Maitre d'ouvrage"_s);
    EXPECT_EQ(essai.etat.categorie_liste, u"EC"_s);
    EXPECT_EQ(essai.ecrans.montres, std::vector<QString>{u"Liste_DVFF"_s});
}

TEST(Fiche_DVFF, un_log_absent_est_l_echec_du_fichier)
{
    Poste_Essai essai;
    EXPECT_TRUE(Echec([&] { Charge_Fiche(essai.poste, fiche_dvff); }));
    EXPECT_TRUE(Echec([&] { Charge_Liste(essai.poste, liste_dvff); }));
}

TEST(Liste_DVFF, la_liste_et_la_fiche_ont_le_meme_compte_fait_a_la_main)
{
    for (const unsigned graine : {1U, 2U, 3U, 4U, 5U}) {
        const Lignes_Essai lignes = Lignes_Au_Hasard(graine);
        const std::size_t attendu = Confirmees(lignes).size();
        const Poste_DVFF essai(lignes);
        EXPECT_GT(attendu, 50U);
        EXPECT_EQ(essai.Liste().rangs.size(), attendu);
        EXPECT_EQ(essai.Liste().compte, u" %1 DVFF contactés"_s.arg(attendu));
        EXPECT_EQ(Texte_De(essai.Fiche(), u"Label28"), u"il vous manque %1 DVFF contacté(e)s"_s.arg(500 - attendu));
    }
}

TEST(Liste_DVFF, les_rangs_sont_les_lignes_confirmees_dans_l_ordre_de_leur_texte)
{
    const Lignes_Essai lignes = Lignes_Au_Hasard(6);
    std::vector<QString> rangs;
    for (const QString &ligne : Confirmees(lignes))
        rangs.push_back(u" "_s + ligne.mid(34, 10) + u"  "_s + ligne.mid(13, 2) + u"  "_s + ligne.mid(79, 30) +
                        u"  "_s + ligne.mid(44, 8) + u"  "_s + ligne.mid(53, 5) + u"  "_s + ligne.mid(0, 12));
    std::sort(rangs.begin(), rangs.end());
    EXPECT_EQ(Poste_DVFF(lignes).Liste().rangs, rangs);
}

TEST(Liste_DVFF, les_textes_sont_ceux_du_diplome)
{
    const Etat_Liste liste = Poste_DVFF(Douze_Lignes()).Liste();
    EXPECT_EQ(liste.titre, u"Liste DVFF"_s);
    EXPECT_EQ(liste.entete, u"Diplome DVFF Niveau 1"_s);
    EXPECT_EQ(liste.colonnes, u"    Ref        Dpt      Nom de l'avtivité            Date    Heure  Indicatif"_s);
    EXPECT_EQ(liste.compte, u" 9 DVFF contactés"_s);
}

TEST(Liste_DVFF, le_fichier_a_son_nom_et_ses_octets)
{
    Poste_DVFF essai(Douze_Lignes());
    Enregistre_Liste(essai.poste, liste_dvff, essai.Liste());
    const QString nom = u"F9ZZY Diplome DVFF Niveau 1 le 15_11_26.txt"_s;
    Compare_Attendu(u"liste_dvff.txt"_s, essai.fichiers.Octets(nom));
    EXPECT_EQ(essai.boites.messages, std::vector<QString>{u"Fichier enregistré sous le nom : "_s + nom});
}

TEST(Liste_DVFF, la_page_a_ses_lignes)
{
    Poste_DVFF essai(Douze_Lignes());
    Imprime_Liste(essai.poste, liste_dvff, essai.Liste());
    ASSERT_EQ(essai.imprimante.documents.size(), 1U);
    Compare_Attendu(u"page_dvff.txt"_s, En_Octets(essai.imprimante.documents[0]));
}

TEST(ADIF_DVFF, toutes_les_lignes_sont_ecrites_confirmees_ou_non)
{
    Poste_DVFF essai(Douze_Lignes());
    Etat_Liste liste = essai.Liste();
    ADIF_Ouvrages(essai.poste, liste_dvff, liste);
    const QString nom = u"F9ZZY Diplome DVFF Niveau 1 le 15_11_26.adi"_s;
    const QByteArray octets = essai.fichiers.Octets(nom);
    EXPECT_EQ(liste.rangs.size(), 9U);
    EXPECT_EQ(octets.count("<eor>"), 12);
    Compare_Attendu(u"dvff.adi"_s, octets);
    EXPECT_EQ(essai.boites.messages, std::vector<QString>{u"Le fichier a été enregistré sous le nom : "_s + nom});
}
