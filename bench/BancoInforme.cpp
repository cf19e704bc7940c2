#include "Rebano.h"

#include "registers/datos/Borrados.h"
#include "reports/indices/IndicesTec.h"
#include "reports/indices/IndicesTecnicosTablas.h"
#include "reports/motor/Informe.h"
#include "reports/motor/LectorDeTablas.h"
#include "reports/motor/LectorDisposicion.h"
#include "reports/motor/Pdf.h"
#include "store/Esquema.h"
#include "store/Ficheros.h"

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

// Layout read, tables read, pages made and written as PDF.
void EscribirPdf(benchmark::State& estado) {
    auto& g = LaGranja();
    LlenarIndicesTecnicos(g.c, {12.0}, "2025");
    const LectorDeTablas tablas(g.c);
    for (auto _ : estado) {
        const auto disposicion = LeerDisposicionDeFichero(PASTORIX_LAYOUTS "/IndTecnicos.rpt");
        GuardarPdf(GenerarInforme(disposicion, tablas, {}), g.carpeta.filePath(QStringLiteral("i.pdf")));
    }
}
BENCHMARK(EscribirPdf)->Unit(benchmark::kMillisecond);

// The whole farm with all its cows, as one action on a copy of the file.
void BorrarLaGranja(benchmark::State& estado) {
    auto& g = LaGranja();
    const auto copia = g.carpeta.filePath(QStringLiteral("copia.mdb")).toStdString();
    for (auto _ : estado) {
        estado.PauseTiming();
        CopiarFichero(Ruta(g.c.Fichero()), Ruta(copia));
        Conexion c;
        c.AbrirFichero(copia, kClave);
        estado.ResumeTiming();
        EnGrupo(c, [&] { BorrarGanadero(c, 12); });
        estado.PauseTiming();
        c.Cerrar();
        estado.ResumeTiming();
    }
}
BENCHMARK(BorrarLaGranja)->Unit(benchmark::kMillisecond);

} // namespace
