#include "Rebano.h"

#include "registers/datos/Borrados.h"
#include "reports/TablasDeInformes.h"
#include "reports/figuras/Explicaciones.h"
#include "reports/figuras/Figuras.h"
#include "reports/indices/IndicesTec.h"
#include "reports/motor/DisposicionesIncluidas.h"
#include "reports/motor/Informe.h"
#include "reports/motor/Pdf.h"
#include "store/Esquema.h"
#include "store/Ficheros.h"

#include <benchmark/benchmark.h>

#include <QFile>
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
        LlenarIndicesTecnicos(g.c, {{12.0}, "2025"});
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
    LlenarIndicesTecnicos(g.c, {{12.0}, "2025"});
    const TablasDeInformes tablas(g.c);
    for (auto _ : estado) {
        const auto disposicion = LeerDisposicionDeFichero(PASTORIX_LAYOUTS "/IndTecnicos.rpt");
        GuardarPdf(GenerarInforme(disposicion, tablas, {}), g.carpeta.filePath(QStringLiteral("i.pdf")));
    }
}
BENCHMARK(EscribirPdf)->Unit(benchmark::kMillisecond);

// Megabytes that the process holds.
double Ocupado() {
    QFile estado(QStringLiteral("/proc/self/statm"));
    if (!estado.open(QIODevice::ReadOnly))
        return 0;
    constexpr double kPagina = 4096.0 / 1'000'000;
    return estado.readAll().split(' ').value(1).toDouble() * kPagina;
}

// A district: the report of each of 70 farmers with 20,000 animals, as PDF, and what that leaves in memory from the tenth on.
void TodosLosGanaderos(benchmark::State& estado) {
    constexpr int kGanaderos = 70;
    QTemporaryDir carpeta;
    const auto fichero = carpeta.filePath(QStringLiteral("comarca.mdb")).toStdString();
    banco::HacerRebaño(fichero, kGanaderos, 286);
    Conexion c;
    c.AbrirFichero(fichero, kClave);
    const TablasDeInformes tablas(c);
    double alPrincipio = 0;
    for (auto _ : estado) {
        for (int k = 0; k < kGanaderos; ++k) {
            LlenarIndicesTecnicos(c, {{12.0 + k}, "2025"});
            const auto disposicion = LeerDisposicionDeFichero(PASTORIX_LAYOUTS "/IndTecnicos.rpt");
            GuardarPdf(GenerarInforme(disposicion, tablas, {}),
                       carpeta.filePath(QStringLiteral("%1.pdf").arg(k)));
            if (k == 9 && alPrincipio == 0)
                alPrincipio = Ocupado();
        }
    }
    estado.counters["MB_10"] = alPrincipio;
    estado.counters["MB_fin"] = Ocupado();
}
BENCHMARK(TodosLosGanaderos)->Unit(benchmark::kMillisecond)->Iterations(1);

// Where a share comes from, with all who are in its divisor.
void Explicar(benchmark::State& estado) {
    auto& g = LaGranja();
    for (auto _ : estado)
        benchmark::DoNotOptimize(ExplicarFigura(g.c, "Mortalidad;12;2025;Total"));
}
BENCHMARK(Explicar)->Unit(benchmark::kMillisecond);

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
