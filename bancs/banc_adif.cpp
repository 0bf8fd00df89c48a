// Records per second of the ADIF tools, beside a bare scan for "<" and ">" of the same bytes: reading the records, the
// whole import (with its reloads, the removal of doubles and the sort), the export, and both log tools alone.

#include "faux/Poste_Essai.h"
#include "faux/QSO_Essai.h"
#include "outils/Enregistrements_ADIF.h"
#include "outils/Export_ADIF.h"
#include "outils/Import_ADIF.h"
#include "outils/Lignes_ADIF.h"
#include "outils/Supprime_Doubles.h"
#include "outils/Trie_Log.h"
#include "plateforme/Windows_1252.h"

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

/// Records of different references, in an order of time that is not that of the file.
QByteArray Fichier_ADIF(std::int64_t enregistrements)
{
    QByteArray octets("entete\r\n<EOH>\r\n");
    for (std::int64_t i = 0; i < enregistrements; ++i) {
        const QByteArray jour = QByteArray::number(10 + i * 7 % 18);
        octets += "<CALL:5>F5ABC <STATE:2>77 <NAME:4>Jean <SIG:6>" + QByteArray::number(100000 + i) +
                  " <QSO_DATE:8>201509" + jour +
                  " <TIME_ON:4>1405 <MODE:3>SSB <Band:3>20m <RST_RCVD:2>59 "
                  "<RST_SENT:2>57 <SIG_INFO:10>C. de Vaux <QSL_RCVD:1>Y <eor>\r\n";
    }
    return octets;
}

struct Ecran_Muet : Ecran_Import {
    QString chemin;
    std::optional<QString> Choisit_Fichier() override { return chemin; }
    void Avance(std::size_t, std::size_t) override {}
    void Ferme() override {}
};

struct Atelier {
    Poste_Essai essai;
    Ecran_Muet ecran;

    explicit Atelier(std::int64_t enregistrements)
    {
        essai.Ouvre(u"DFCF"_s);
        essai.fichiers.Pose(u"F9ZZY_DFCF.log"_s, "");
        essai.fichiers.Pose(u"F9ZZY_DFCF.adi"_s, Fichier_ADIF(enregistrements));
        ecran.chemin = essai.fichiers.Chemin(u"F9ZZY_DFCF.adi"_s);
    }
    void Importe_Tout() { Importe(essai.poste, {.ajout = false}, ecran); }
};

void Par_Enregistrement(benchmark::State &etat)
{
    etat.SetItemsProcessed(etat.iterations() * etat.range(0));
}

void Balayage(benchmark::State &etat)
{
    const QByteArray octets = Fichier_ADIF(etat.range(0));
    for (auto _ : etat) {
        std::size_t chevrons = 0;
        for (const char octet : octets)
            chevrons += octet == '<' || octet == '>';
        benchmark::DoNotOptimize(chevrons);
    }
    Par_Enregistrement(etat);
}

void Lecture_Des_Enregistrements(benchmark::State &etat)
{
    const QByteArray octets = Fichier_ADIF(etat.range(0));
    for (auto _ : etat) {
        const Lignes_Texte lignes(Majuscules_1252(Decode_1252(octets)));
        Enregistrements_ADIF enregistrements(lignes);
        Lignes_ADIF convertit(Diplome::DFCF, {});
        while (const auto enregistrement = enregistrements.Suivant())
            benchmark::DoNotOptimize(convertit.Lit(*enregistrement));
    }
    Par_Enregistrement(etat);
}

void Import_Complet(benchmark::State &etat)
{
    Atelier atelier(etat.range(0));
    for (auto _ : etat)
        atelier.Importe_Tout();
    Par_Enregistrement(etat);
}

void Export_Complet(benchmark::State &etat)
{
    Atelier atelier(etat.range(0));
    atelier.Importe_Tout();
    for (auto _ : etat)
        Export_ADIF(atelier.essai.poste);
    Par_Enregistrement(etat);
}

void Tri(benchmark::State &etat)
{
    Atelier atelier(etat.range(0));
    atelier.Importe_Tout();
    for (auto _ : etat)
        Trie_Log(atelier.essai.poste);
    Par_Enregistrement(etat);
}

void Doubles(benchmark::State &etat)
{
    Atelier atelier(etat.range(0));
    atelier.Importe_Tout();
    for (auto _ : etat)
        Supprime_Doubles(atelier.essai.poste);
    Par_Enregistrement(etat);
}

BENCHMARK(Balayage)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(Lecture_Des_Enregistrements)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(Import_Complet)->Arg(100000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(Export_Complet)->Arg(100000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(Tri)->Arg(100000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(Doubles)->Arg(100000)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

BENCHMARK_MAIN();
