// The refresh of names beside the time to read its log and its list and find their line ends: 32,767 QSOs against lists
// of 1,000 and 60,000 records.

#include "faux/Poste_Essai.h"
#include "faux/QSO_Essai.h"
#include "listes/Maj_Noms.h"
#include "listes/Recherches_Liste.h"

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int qso = 32'767;

QString Reference(std::int64_t rang)
{
    return QString::number(rang).rightJustified(5, u'0');
}

/// A DFCF log whose references are spread over the whole list, one in eight unknown to it.
struct Logbook {
    Poste_Essai essai;
    std::int64_t chateaux;

    explicit Logbook(std::int64_t nombre) : chateaux(nombre)
    {
        QByteArray liste = "Rev 017 du 01/01/20;;;;;\r\n";
        for (std::int64_t rang = 0; rang < chateaux; ++rang)
            liste += Reference(rang).insert(2, u'-').toLatin1() + ";Chateau de Vaux;01/01/20;F5ABC;Maincy;77\r\n";
        essai.fichiers.Pose(u"Liste_DFCF.csv"_s, liste);
        QByteArray log;
        for (std::int64_t rang = 0; rang < qso; ++rang)
            log += QSO({.ref = Reference(rang * 7919 % (chateaux * 8 / 7))}).toLatin1() + "\r\n";
        essai.fichiers.Pose(u"F9ZZY_DFCF.log"_s, log);
        essai.Ouvre(u"DFCF"_s);
    }
};

void Lecture_Log_Et_Liste(benchmark::State &etat)
{
    const Logbook logbook(etat.range(0));
    for (auto _ : etat) {
        qsizetype lignes = 0;
        for (const QString &nom : {u"Liste_DFCF.csv"_s, u"F9ZZY_DFCF.log"_s})
            lignes += logbook.essai.fichiers.Octets(nom).count('\n');
        benchmark::DoNotOptimize(lignes);
    }
}

/// As the operator has it: read, look up, write, sync, reload.
void Mise_A_Jour_Des_Noms(benchmark::State &etat)
{
    Logbook logbook(etat.range(0));
    for (auto _ : etat)
        Maj_Noms(logbook.essai.poste, Majs_Nom()[1]);
}

/// One look-up of an unknown reference, as entry makes it.
void Une_Recherche(benchmark::State &etat)
{
    const Logbook logbook(etat.range(0));
    for (auto _ : etat)
        benchmark::DoNotOptimize(Cherche_DFCF(logbook.essai.dossier, u"absent"));
}

BENCHMARK(Lecture_Log_Et_Liste)->Arg(1000)->Arg(60000)->Unit(benchmark::kMillisecond);
BENCHMARK(Mise_A_Jour_Des_Noms)->Arg(1000)->Arg(60000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(Une_Recherche)->Arg(1000)->Arg(60000)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
