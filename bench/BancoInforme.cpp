#include "Rebaño.h"

#include "reports/indices/IndicesTec.h"
#include "reports/indices/IndicesTecnicosTablas.h"
#include "reports/motor/Informe.h"
#include "reports/motor/LectorDeTablas.h"
#include "reports/motor/LectorDisposicion.h"
#include "reports/motor/Pdf.h"
#include "store/Esquema.h"

#include <benchmark/benchmark.h>

#include <QTemporaryDir>

// The main job on a farm of 500 cows and 14 years.
namespace {

using namespace pastorix;

struct Granja {
    QTemporaryDir carpeta;
    Conexion c;
    Granja() {
        const auto fichero = carpeta.filePath(QStringLiteral("granja.mdb")).toStdString();
        banco::HacerRebaño(fichero);
        c.AbrirFichero(fichero, kClave);
    }
};

Granja& LaGranja() {
    static Granja g;
    return g;
}

void LlenarTablas(benchmark::State& estado) {
    auto& g = LaGranja();
    for (auto _ : estado)
        LlenarIndicesTecnicos(g.c, {12.0}, "2025");
}
BENCHMARK(LlenarTablas)->Unit(benchmark::kMillisecond);

void CensoMedio(benchmark::State& estado) {
    auto& g = LaGranja();
    for (auto _ : estado)
        benchmark::DoNotOptimize(CensoMedioAño(g.c, "12", 2025));
}
BENCHMARK(CensoMedio)->Unit(benchmark::kMillisecond);

} // namespace
