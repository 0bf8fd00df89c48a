// A sheet and a list of a log of 200,000 QSOs beside the time to read that file: all lines of the log are confirmed and
// stand in the list.

#include "diplomes/ecrans/Ecran_Fiche.h"
#include "diplomes/ecrans/Ecran_Liste.h"
#include "diplomes/tables/Tables.h"
#include "faux/Poste_Essai.h"
#include "faux/QSO_Essai.h"

#include <QApplication>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;
using namespace diplomes;

namespace {

constexpr int qso = 200'000;

/// A DFCF log, its references in no order.
struct Logbook {
    Poste_Essai essai;

    Logbook()
    {
        QByteArray log;
        for (int rang = 0; rang < qso; ++rang) {
            const QString dpt = QString::number(1 + rang * 31 % 95).rightJustified(2, u'0');
            const QString numero = QString::number(rang * 7919 % 1000).rightJustified(3, u'0');
            log +=
                QSO({.dpt = dpt, .ref = dpt + numero, .nom = u"C. DE LA FORET"_s, .qsl = u"*"_s}).toLatin1() + "\r\n";
        }
        essai.fichiers.Pose(u"F9ZZY_DFCF.log"_s, log);
        essai.etat.bande_liste = u"HF"_s;
        essai.etat.code_categorie = u"de Base"_s;
    }
};

Logbook &Commun()
{
    static Logbook logbook;
    return logbook;
}

/// The bytes alone, and their line ends.
void Lecture_Du_Log(benchmark::State &etat)
{
    for (auto _ : etat)
        benchmark::DoNotOptimize(Commun().essai.fichiers.Octets(u"F9ZZY_DFCF.log"_s).count('\n'));
}

/// As every operation reads it: decoded and cut into lines.
void Lignes_Du_Log(benchmark::State &etat)
{
    for (auto _ : etat)
        benchmark::DoNotOptimize(Commun().essai.dossier.Lit_Lignes(u"F9ZZY_DFCF.log"_s).size());
}

void Ouverture_De_La_Fiche(benchmark::State &etat)
{
    for (auto _ : etat) {
        Ecran_Fiche ecran(Commun().essai.poste, fiche_dfcf);
        ecran.show();
    }
}

void Ouverture_De_La_Liste(benchmark::State &etat)
{
    for (auto _ : etat) {
        Ecran_Liste ecran(Commun().essai.poste, liste_dfcf);
        ecran.show();
    }
}

BENCHMARK(Lecture_Du_Log)->Unit(benchmark::kMillisecond);
BENCHMARK(Lignes_Du_Log)->Unit(benchmark::kMillisecond);
BENCHMARK(Ouverture_De_La_Fiche)->Unit(benchmark::kMillisecond);
BENCHMARK(Ouverture_De_La_Liste)->Unit(benchmark::kMillisecond);

} // namespace

int main(int nombre, char **arguments)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(nombre, arguments);
    benchmark::Initialize(&nombre, arguments);
    benchmark::RunSpecifiedBenchmarks();
}
