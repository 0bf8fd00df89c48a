#include "consultation/Colorie_Carte.h"
#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "faux/QSO_Essai.h"
#include "plateforme/Erreur_Execution.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QString Contact(const QString &dpt)
{
    return QSO({.dpt = dpt});
}

QString Confirmation(const QString &dpt)
{
    return QSO({.dpt = dpt, .qsl = u"*"_s});
}

Couleurs_Carte Couleurs(const std::vector<QString> &log)
{
    QString texte;
    for (const QString &ligne : log)
        texte += ligne + u"\r\n";
    return Colorie(Lignes_Texte(texte));
}

Couleur_Dep Couleur(const Couleurs_Carte &couleurs, std::size_t numero)
{
    return couleurs.at(numero - 1);
}

} // namespace

TEST(Colorie, un_log_vide_laisse_la_carte_jaune)
{
    const Bilan_Carte bilan = Compte(Couleurs({}));
    EXPECT_EQ(bilan.total, 0);
    EXPECT_EQ(bilan.non_confirmes, 0);
    EXPECT_EQ(bilan.confirmes, 0);
    EXPECT_EQ(Non_Contactes(bilan), 96);
}

TEST(Colorie, la_Corse_a_les_cases_96_et_97)
{
    for (const QString &dpt : {u"2A"_s, u"2a"_s}) {
        const Couleurs_Carte couleurs = Couleurs({Contact(dpt)});
        EXPECT_EQ(Couleur(couleurs, 96), Couleur_Dep::Non_Confirme);
        EXPECT_EQ(Compte(couleurs).total, 1);
    }
    EXPECT_EQ(Couleur(Couleurs({Confirmation(u"2B"_s)}), 97), Couleur_Dep::Confirme);
    EXPECT_EQ(Couleur(Couleurs({Confirmation(u"2b"_s)}), 97), Couleur_Dep::Confirme);
}

TEST(Colorie, tout_nombre_jusqu_a_99_peint_sa_case_et_compte)
{
    std::vector<QString> log;
    for (int numero = 1; numero <= 99; ++numero)
        log.push_back(Contact(u"%1"_s.arg(numero, 2, 10, QChar(u'0'))));
    const Couleurs_Carte couleurs = Couleurs(log);
    EXPECT_EQ(Couleur(couleurs, 97), Couleur_Dep::Non_Confirme);
    EXPECT_EQ(Compte(couleurs).total, 99);
    EXPECT_EQ(Non_Contactes(Compte(couleurs)), -3);
}

TEST(Colorie, un_texte_etranger_ou_vide_passe)
{
    EXPECT_EQ(Compte(Couleurs({Contact(u"ON"_s), Contact(u""_s), Contact(u"/7"_s), Contact(u":7"_s)})).total, 0);
}

TEST(Colorie, un_numero_sans_case_est_un_echec)
{
    EXPECT_THROW(Couleurs({Contact(u"00"_s)}), Erreur_Execution);
    EXPECT_THROW(Couleurs({Contact(u"7X"_s)}), Erreur_Execution);
}

TEST(Colorie, une_confirmation_reste_et_l_emporte)
{
    EXPECT_EQ(Couleur(Couleurs({Confirmation(u"77"_s), Contact(u"77"_s)}), 77), Couleur_Dep::Confirme);
    EXPECT_EQ(Couleur(Couleurs({Contact(u"77"_s), Confirmation(u"77"_s)}), 77), Couleur_Dep::Confirme);
}

TEST(Colorie, compte_chaque_departement_une_fois)
{
    const Bilan_Carte bilan =
        Compte(Couleurs({Contact(u"77"_s), Contact(u"77"_s), Contact(u"05"_s), Confirmation(u"01"_s)}));
    EXPECT_EQ(bilan.total, 3);
    EXPECT_EQ(bilan.non_confirmes, 2);
    EXPECT_EQ(bilan.confirmes, 1);
    EXPECT_EQ(Non_Contactes(bilan), 93);
}

TEST(Colorie_Carte, lit_le_log_du_diplome_courant_avec_l_annee)
{
    Poste_Essai essai;
    essai.Ouvre(u"Ch_DFCF"_s);
    EXPECT_THROW(Colorie_Carte(essai.poste), Erreur_Execution);
    essai.etat.station.annee_ch_dfcf = u"2017"_s;
    essai.fichiers.Pose(u"F9ZZY_Ch_DFCF_2017.log"_s, Contact(u"77"_s).toLatin1());
    const Carte_Contactee carte = Colorie_Carte(essai.poste);
    EXPECT_EQ(Couleur(carte.couleurs, 77), Couleur_Dep::Non_Confirme);
    EXPECT_EQ(carte.bilan.total, 1);
}

TEST(Marque_Departement, la_case_du_meme_texte_et_elle_seule)
{
    const Couleurs_Carte couleurs = Marque_Departement(u"2A");
    EXPECT_EQ(Couleur(couleurs, 96), Couleur_Dep::Confirme);
    EXPECT_EQ(Compte(couleurs).total, 1);
    EXPECT_EQ(Couleur(Marque_Departement(u"05"), 5), Couleur_Dep::Confirme);
    for (const QString &aucun : {u"5"_s, u"2a"_s, u""_s, u"ON"_s})
        EXPECT_EQ(Compte(Marque_Departement(aucun)).total, 0);
}
