#include "faux/Fils.h"
#include "faux/Impression.h"
#include "faux/Poste_Essai.h"

#include <gtest/gtest.h>

#include <csignal>
#include <ctime>
#include <random>

using namespace Qt::StringLiterals;

namespace {

const QString journal = u"F9ZZY_DFCF.log"_s;

void Patiente(long microsecondes)
{
    const timespec duree{0, microsecondes * 1000};
    ::nanosleep(&duree, nullptr);
}

/// Starts `boucle`, which never ends, and kills it after `microsecondes` of its work.
void Lance_Et_Tue(const std::function<void()> &boucle, long microsecondes)
{
    int tube[2];
    ASSERT_EQ(::pipe(tube), 0);
    const pid_t fils = Lance_Fils([&] {
        const char pret = '.';
        if (::write(tube[1], &pret, 1) == 1)
            boucle();
        return 1;
    });
    char pret = 0;
    ASSERT_EQ(::read(tube[0], &pret, 1), 1);
    Patiente(microsecondes);
    ::kill(fils, SIGKILL);
    EXPECT_EQ(Attend_Fils(fils), 128 + SIGKILL);
    ::close(tube[0]);
    ::close(tube[1]);
}

} // namespace

TEST(Coupure, un_log_reecrit_est_l_ancien_ou_le_nouveau_entier)
{
    const Dossier_Temporaire fichiers;
    Dossier_Disque dossier(fichiers.Chemin());
    const QString court = QString(111, u'a') + fin_de_ligne;
    const QString longue = QString(111, u'b') + fin_de_ligne;
    const QString long_texte = longue.repeated(2000);
    fichiers.Pose(journal, court.toLatin1());

    std::mt19937 hasard(20261115);
    std::uniform_int_distribution<long> delai(0, 20'000);
    int courts = 0;
    int longs = 0;
    for (int essai = 0; essai < 60; ++essai) {
        Lance_Et_Tue(
            [&] {
                for (;;) {
                    dossier.Remplace(journal, long_texte, u"Temporaire.txt"_s);
                    dossier.Remplace(journal, court, u"Temporaire.txt"_s);
                }
            },
            delai(hasard));
        const QString lu = dossier.Lit(journal);
        courts += lu == court;
        longs += lu == long_texte;
        ASSERT_EQ(courts + longs, essai + 1) << "cut after " << lu.size() << " characters";
    }
    // Deaths at one and the same instant would prove nothing.
    EXPECT_GT(courts, 0);
    EXPECT_GT(longs, 0);
}

TEST(Coupure, un_ajout_ne_touche_pas_les_lignes_d_avant)
{
    const Dossier_Temporaire fichiers;
    Dossier_Disque dossier(fichiers.Chemin());
    const QString ligne(111, u'a');
    fichiers.Pose(journal, "");

    std::mt19937 hasard(20261116);
    std::uniform_int_distribution<long> delai(0, 5'000);
    std::size_t avant = 0;
    for (int essai = 0; essai < 40; ++essai) {
        Lance_Et_Tue(
            [&] {
                for (;;)
                    dossier.Ajoute(journal, ligne);
            },
            delai(hasard));
        const Lignes_Texte lignes = dossier.Lit_Lignes(journal);
        ASSERT_GE(lignes.size(), avant);
        avant = lignes.size();
        for (const QStringView lue : lignes)
            ASSERT_EQ(lue, ligne);
    }
    EXPECT_GT(avant, 40U);
}
