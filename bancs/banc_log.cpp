// What the operator waits for, beside the time to read the same bytes and find their line ends: the opening of a log,
// and the commit of a QSO (append, sync, reload, select, paint).

#include "faux/Poste_Essai.h"
#include "faux/QSO_Essai.h"
#include "log/Charge_Log.h"
#include "log/Ecran_Principal.h"
#include "log/Ecritures_Log.h"
#include "saisie/ecrans/Main.h"

#include <QApplication>

#include <benchmark/benchmark.h>

#include <cstring>

using namespace Qt::StringLiterals;

namespace {

QByteArray Log(std::int64_t lignes)
{
    QByteArray octets;
    for (std::int64_t i = 0; i < lignes; ++i) {
        const QString ref = QString::number(10000 + i % 90000);
        octets += QSO({.dpt = ref.left(2), .prenom = u"JEAN"_s, .ref = ref, .nom = u"C. DE VAUX"_s}).toLatin1();
        octets += "\r\n";
    }
    return octets;
}

/// The real main screen on a log of that many lines.
struct Logbook {
    Poste_Essai essai;
    Main ecran{essai.poste, essai.etat};

    explicit Logbook(std::int64_t lignes)
    {
        essai.fichiers.Pose(u"F9ZZY_DFCF.log"_s, Log(lignes));
        essai.etat.station.diplome = Diplome::DFCF;
        ecran.La_Saisie().Choisit(Controle::Dip_A, 6);
        ecran.resize(1300, 700);
        ecran.show();
        Charge_Log(ecran.Le_Poste(), Diplome::DFCF);
        QApplication::processEvents();
    }
    [[nodiscard]] QString Chemin() const { return essai.fichiers.Chemin(u"F9ZZY_DFCF.log"_s); }
};

void Lecture_Et_Fins_De_Ligne(benchmark::State &etat)
{
    const Logbook logbook(etat.range(0));
    for (auto _ : etat) {
        QFile fichier(logbook.Chemin());
        if (!fichier.open(QIODevice::ReadOnly))
            etat.SkipWithError("log not readable");
        const QByteArray octets = fichier.readAll();
        std::size_t lignes = 0;
        const char *place = octets.constData();
        const char *fin = place + octets.size();
        while ((place = static_cast<const char *>(std::memchr(place, '\n', static_cast<std::size_t>(fin - place))))) {
            ++lignes;
            ++place;
        }
        benchmark::DoNotOptimize(lignes);
    }
}

void Chargement_Et_Affichage(benchmark::State &etat)
{
    Logbook logbook(etat.range(0));
    for (auto _ : etat) {
        Charge_Log(logbook.ecran.Le_Poste(), Diplome::DFCF);
        logbook.ecran.Le_Poste().ecran.Selectionne_Derniere();
        QApplication::processEvents();
    }
}

void Enregistrement_D_Un_QSO(benchmark::State &etat)
{
    Logbook logbook(etat.range(0));
    const QString ligne = QSO({.dpt = u"77"_s, .ref = u"77001"_s});
    for (auto _ : etat) {
        Ajoute_Ligne(logbook.ecran.Le_Poste(), ligne, Diplome::DFCF);
        QApplication::processEvents();
    }
}

BENCHMARK(Lecture_Et_Fins_De_Ligne)->Arg(1000)->Arg(32767)->Arg(200000)->Unit(benchmark::kMillisecond);
BENCHMARK(Chargement_Et_Affichage)->Arg(1000)->Arg(32767)->Arg(200000)->Unit(benchmark::kMillisecond);
BENCHMARK(Enregistrement_D_Un_QSO)->Arg(1000)->Arg(32767)->Arg(200000)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

int main(int nombre, char **arguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(nombre, arguments);
    benchmark::Initialize(&nombre, arguments);
    benchmark::RunSpecifiedBenchmarks();
}
