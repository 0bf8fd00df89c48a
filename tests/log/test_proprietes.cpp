#include "log/Ecritures_Log.h"
#include "log/Ligne_Affichage.h"
#include "log/Migrations.h"
#include "outils/Log_Essai.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// A whole line whose fields hold any characters of the code page, line ends excepted.
QString Ligne_Quelconque(Logs_Au_Hasard &hasard)
{
    QString ligne = QSO({});
    for (const Champ champ : colonnes_log::champs)
        for (qsizetype i = 0; i < champ.largeur; ++i) {
            const auto octet = static_cast<char16_t>(hasard.Nombre(255));
            ligne[champ.colonne - 1 + i] = octet == u'\r' || octet == u'\n' ? u' ' : QChar(octet);
        }
    return ligne;
}

/// The moment of a line as a number, told apart from the program's own reading of it.
long long Instant(const QString &ligne)
{
    const auto nombre = [&](qsizetype debut) { return QStringView(ligne).sliced(debut, 2).toLongLong(); };
    const long long annee = nombre(50) < 50 ? 2000 + nombre(50) : 1900 + nombre(50);
    return (((annee * 100 + nombre(47)) * 100 + nombre(44)) * 100 + nombre(53)) * 100 + nombre(56);
}

bool Avant(const QString &a, const QString &b)
{
    return Instant(a) < Instant(b);
}

} // namespace

TEST(Proprietes, afficher_puis_ranger_est_l_identite)
{
    Logs_Au_Hasard hasard(1);
    for (int i = 0; i < 2000; ++i) {
        const QString ligne = i % 2 ? Ligne_Quelconque(hasard) : hasard.Ligne();
        ASSERT_EQ(ligne.size(), colonnes_log::longueur);
        const auto numero = static_cast<std::size_t>(1 + hasard.Nombre(999'998));
        const QString entree = Ligne_Affichage(numero, ligne);
        ASSERT_EQ(entree.size(), colonnes_affichage::longueur);
        ASSERT_EQ(Ligne_Log_Affichee(entree), ligne);
        ASSERT_EQ(Compose_Ligne_Log(Champs_Log(ligne)), ligne);
        ASSERT_EQ(Recompose(ligne), ligne);
    }
}

TEST(Proprietes, recomposer_est_passer_par_la_liste)
{
    Logs_Au_Hasard hasard(6);
    for (int i = 0; i < 2000; ++i) {
        QString ligne = Ligne_Quelconque(hasard) + u"suite";
        for (QChar &caractere : ligne)
            if (hasard.Nombre(9) == 0)
                caractere = u'#';
        ligne.truncate(hasard.Nombre(116));
        ASSERT_EQ(Recompose(ligne), Ligne_Log_Affichee(Ligne_Affichage(1, ligne))) << ligne.toStdString();
    }
}

TEST(Proprietes, seule_la_suppression_retire_une_ligne_et_une_seule)
{
    Logs_Au_Hasard hasard(2);
    for (int i = 0; i < 300; ++i) {
        const std::vector<QString> lignes = hasard.Log(30);
        const Lignes_Texte log(Texte_Log(lignes));
        const QString nouvelle = hasard.Ligne();
        const QString visee = !lignes.empty() && hasard.Nombre(3) ? lignes[lignes.size() / 2] : hasard.Ligne();
        const auto place = std::find(lignes.begin(), lignes.end(), visee) - lignes.begin();
        const bool presente = static_cast<std::size_t>(place) < lignes.size();

        std::vector<QString> remplacees = lignes;
        std::vector<QString> supprimees = lignes;
        if (presente) {
            remplacees[static_cast<std::size_t>(place)] = nouvelle;
            supprimees.erase(supprimees.begin() + place);
        } else {
            remplacees.push_back(nouvelle);
        }
        ASSERT_EQ(En_Lignes(Texte_Remplace(log, nouvelle, visee)), remplacees);
        ASSERT_EQ(En_Lignes(Texte_Supprime(log, visee)), supprimees);
        ASSERT_EQ(En_Lignes(Texte_Insere(log, nouvelle)).size(), lignes.size() + 1);
    }
}

TEST(Proprietes, inserer_garde_l_ordre_du_temps)
{
    Logs_Au_Hasard hasard(3);
    for (int i = 0; i < 300; ++i) {
        std::vector<QString> lignes = hasard.Log(30);
        std::stable_sort(lignes.begin(), lignes.end(), Avant);
        // Half of the new lines fall on a minute that is there.
        QString nouvelle = hasard.Ligne();
        if (!lignes.empty() && hasard.Nombre(1))
            nouvelle.replace(44, 14, lignes[lignes.size() / 2].sliced(44, 14));

        std::vector<QString> attendues = lignes;
        attendues.insert(std::lower_bound(attendues.begin(), attendues.end(), nouvelle, Avant), nouvelle);
        ASSERT_EQ(En_Lignes(Texte_Insere(Lignes_Texte(Texte_Log(lignes)), nouvelle)), attendues);
    }
}

TEST(Proprietes, inserer_une_a_une_range_tout_un_log)
{
    Logs_Au_Hasard hasard(4);
    const std::vector<QString> lignes = hasard.Log(200);
    QString texte;
    for (const QString &ligne : lignes)
        texte = Texte_Insere(Lignes_Texte(texte), ligne);
    const std::vector<QString> rangees = En_Lignes(texte);
    EXPECT_TRUE(std::is_sorted(rangees.begin(), rangees.end(), Avant));
    EXPECT_TRUE(std::is_permutation(rangees.begin(), rangees.end(), lignes.begin(), lignes.end()));
}

TEST(Proprietes, migrer_ne_touche_que_la_reference)
{
    Logs_Au_Hasard hasard(5);
    const auto liste = [](QStringView) { return std::optional<QString>(u"11-108"_s); };
    const std::vector<QString> anciennes{u"EC102"_s, u"TC01"_s,   u"118"_s, u"1108"_s,
                                         u"CA001"_s, u"PTC001"_s, u"51"_s,  u"0051"_s};
    for (const QStringView code : {u"DOHF", u"TDC", u"DCPF", u"FFF"}) {
        std::vector<QString> lignes = hasard.Log(200);
        for (QString &ligne : lignes)
            ligne.replace(34, 10, Complete(anciennes[static_cast<std::size_t>(hasard.Nombre(7))], 10));
        const auto texte = Migre(Diplome_De(code), Lignes_Texte(Texte_Log(lignes)), liste);
        ASSERT_TRUE(texte);
        ASSERT_TRUE(texte->a_reecrire);
        std::vector<QString> migrees = En_Lignes(texte->texte);
        ASSERT_EQ(migrees.size(), lignes.size());
        for (std::size_t rang = 0; rang < lignes.size(); ++rang) {
            ASSERT_EQ(migrees[rang].size(), colonnes_log::longueur);
            ASSERT_EQ(QString(migrees[rang]).remove(34, 10), QString(lignes[rang]).remove(34, 10));
        }
    }
}
