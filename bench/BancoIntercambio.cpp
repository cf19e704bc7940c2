#include "exchange/datos/BasesEnteras.h"
#include "exchange/datos/Comparacion.h"
#include "exchange/datos/ExportarPaquete.h"
#include "exchange/datos/FundirPaquete.h"
#include "exchange/datos/Recorridos.h"
#include "store/BasePropia.h"
#include "store/Esquema.h"
#include "store/Ficheros.h"
#include "store/Instruccion.h"

#include <benchmark/benchmark.h>

#include <QTemporaryDir>

// The routes on a central database of 70 farmers, 20,000 animals and 14 years, of which one veterinarian has ten farmers. The bare work beside each
// is the same rows deleted and inserted through the C API, and the same copies of files.
namespace {

using namespace pastorix;
namespace fs = std::filesystem;

const Progreso kCallado = [](int) {};

// Rows by the running number of their cow: 285 or 286 of each farmer, six years of each.
constexpr const char* kFilas = R"(
WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 20000)
INSERT INTO temp.vaca SELECT i, 100 + i % 70, (100 + i % 70) * 1000 + i / 70, 2013 + i % 9 FROM n;
INSERT INTO T_Veterinarios (Id_Veterinario, NombreVet, Usuario) SELECT v, 'Vet ' || v, 'vet' || v FROM (SELECT DISTINCT g % 7 + 1 AS v FROM temp.vaca);
INSERT INTO T_Ganaderos (Id_Ganadero, Nombre, Apellidos, Id_Veterinario, TorosComun, Id_Direccion) SELECT DISTINCT g, 'Nombre', 'Apellidos', g % 7 + 1, 'No', g FROM temp.vaca;
INSERT INTO T_Direcciones (Id_Direccion, Id_GV, Direccion) SELECT DISTINCT g, g, 'Calle' FROM temp.vaca;
INSERT INTO T_Ganaderos (Id_Ganadero, Nombre, TorosComun) VALUES (1, 'Centro', 'Sí');
INSERT INTO T_Vacas (Id_Vaca, Id_Ganadero, Nombre, NombreC, Crotal, FechaNac, Patologia) SELECT v, g, 'Vaca ' || i, 'Vaca ' || i || '-N', 'ES' || (10000000 + i), (a - 2) || '-03-04', 'nada que decir de ella' FROM temp.vaca;
INSERT INTO T_Mamitis (Id_Vaca, Id_Teto) SELECT v, t FROM temp.vaca, (SELECT 1 AS t UNION SELECT 2 UNION SELECT 3 UNION SELECT 4);
CREATE TEMP TABLE ano AS SELECT 0 AS k UNION SELECT 1 UNION SELECT 2 UNION SELECT 3 UNION SELECT 4 UNION SELECT 5;
INSERT INTO T_Cubriciones (Id_Cubricion, Id_Vaca, Año_Ref, N_Parto, Fecha_Parto, IEPc) SELECT i * 6 + k, v, a + k, k, (a + k) || '-02-03', 370 + i % 60 FROM temp.vaca, ano;
INSERT INTO T_Servicios (Id_Vaca, Año_Ref, N_Parto, N_Servicio, Fecha_Servicio, Id_Semental, Semental) SELECT v, a + k, k, 1, (a + k) || '-05-03', 1000 + i % 20, 'Toro' FROM temp.vaca, ano;
INSERT INTO T_Partos (Id_Parto, Id_Vaca, Año_Ref, N_Parto, Fecha_Parto, Sexo, Muere, GDestete, Id_Semental, Semental) SELECT i * 6 + k, v, a + k, k, (a + k) || '-02-03', 'Macho', 'No', 900, 1000 + i % 20, 'Toro' FROM temp.vaca, ano WHERE k > 0;
INSERT INTO T_CCVacas (Id_Ganadero, Id_Vaca, AñoRef, NumParto) SELECT g, v, a + k, k FROM temp.vaca, ano;
INSERT INTO T_CCNATVACAS (Id_Ganadero, Id_Vaca, AñoNat) SELECT g, v, a + k FROM temp.vaca, ano;
INSERT INTO T_IBRBVD (Id_Ganadero, Id_Vaca, AñoNat) SELECT g, v, a + k FROM temp.vaca, ano;
INSERT INTO T_NEOSPIROSIS (Id_Ganadero, Id_Vaca, AñoNat) SELECT g, v, a + k FROM temp.vaca, ano;
INSERT INTO T_MAMIVACU (Id_Ganadero, Id_Vaca, AñoNat) SELECT g, v, a + k FROM temp.vaca, ano;
INSERT INTO T_Cebo (Id_Cebo, Id_Ganadero, Id_Parto, Sexo, KgCanal) SELECT i, g, i * 6 + 1, 'Macho', 250 FROM temp.vaca;
)";

struct Oficina {
    QTemporaryDir carpeta;
    fs::path central = En("central.mdb"), trabajo = En("trabajo.mdb"), paquete = En("vet3.mdb");

    fs::path En(const char* n) const { return Ruta(carpeta.filePath(QString::fromUtf8(n)).toStdString()); }
    Oficina() {
        CrearBase(central, ClaseDeBase::Principal, kClave);
        auto base = AbrirBasePropia(central, Modo::Escritura);
        EjecutarDirecto(base.get(),
                        "BEGIN; CREATE TEMP TABLE vaca (i INTEGER, g INTEGER, v INTEGER, a INTEGER)");
        EjecutarDirecto(base.get(), kFilas);
        EjecutarDirecto(base.get(), "COMMIT");
        base.reset();
        CopiarFichero(central, trabajo);
        ExportarPaquete(trabajo, paquete, "vet3", "CENTRAL", kCallado);
        auto c = AbrirDeTrabajo(paquete); // the station has worked
        c.Execute("UPDATE T_Vacas SET Nombre = 'otro' WHERE Id_Ganadero = 107");
        c.Execute("DELETE FROM T_Servicios WHERE N_Parto = 5");
    }
};

Oficina& LaOficina() {
    static Oficina o;
    return o;
}

// All farmers of the package, and the tables by which they are found.
std::string Suyos(const char* negado) {
    std::string t;
    for (int g = 100; g < 170; ++g)
        if (g % 7 == 2)
            t += (t.empty() ? "" : ", ") + std::to_string(g);
    return std::string(" WHERE Id_Ganadero ") + negado + "IN (" + t + ")";
}

std::vector<double> VacasDirectas(sqlite3* base, const std::string& donde) {
    std::vector<double> vacas;
    Instruccion s(base, "SELECT Id_Vaca FROM T_Vacas" + donde);
    while (s.Fila())
        vacas.push_back(static_cast<double>(s.Entero(0)));
    return vacas;
}

void BorrarDirecto(sqlite3* base, const std::string& donde) {
    const auto vacas = VacasDirectas(base, donde);
    for (const char* tabla : TablasDeVaca()) {
        Instruccion s(base, std::string("DELETE FROM ") + tabla + " WHERE Id_Vaca = ?");
        for (const double v : vacas)
            s.Enlazar(1, v).Correr();
    }
    for (const auto& paso : PasosDeSalida())
        if (paso.clase == ClaseDePaso::Tabla)
            EjecutarDirecto(base, std::string("DELETE FROM ") + paso.tabla + donde);
    EjecutarDirecto(base, "DELETE FROM T_Ganaderos" + donde);
}

void ExportarAlmacen(benchmark::State& estado) {
    auto& o = LaOficina();
    for (auto _ : estado) {
        CopiarFichero(o.central, o.trabajo);
        ExportarPaquete(o.trabajo, o.En("sale.mdb"), "vet3", "CENTRAL", kCallado);
    }
}
BENCHMARK(ExportarAlmacen)->Unit(benchmark::kMillisecond);

void ExportarDirecto(benchmark::State& estado) {
    auto& o = LaOficina();
    for (auto _ : estado) {
        CopiarFichero(o.central, o.trabajo);
        auto base = AbrirBasePropia(o.trabajo, Modo::Escritura);
        EjecutarDirecto(base.get(), "BEGIN");
        BorrarDirecto(base.get(), Suyos("NOT "));
        EjecutarDirecto(base.get(), "COMMIT");
    }
}
BENCHMARK(ExportarDirecto)->Unit(benchmark::kMillisecond);

void FundirAlmacen(benchmark::State& estado) {
    auto& o = LaOficina();
    const auto destino = o.En("destino.mdb");
    for (auto _ : estado) {
        estado.PauseTiming();
        CopiarFichero(o.central, destino);
        estado.ResumeTiming();
        CopiarFichero(destino, o.trabajo);
        {
            auto copia = AbrirDeTrabajo(o.trabajo);
            auto paquete = AbrirParaLeer(o.paquete);
            ComprobarFusion(copia, paquete, "vet3");
            FundirPaquete(paquete, copia, "vet3", kCallado);
        }
        ReemplazarBase(destino, o.trabajo, {o.En("BackUp"), "DB_PradalC", Fecha{46000, 1}},
                       BaseAnterior::Sana, BaseNueva::SeGasta);
    }
    fs::remove_all(o.En("BackUp"));
}
BENCHMARK(FundirAlmacen)->Unit(benchmark::kMillisecond);

void FundirDirecto(benchmark::State& estado) {
    auto& o = LaOficina();
    for (auto _ : estado) {
        CopiarFichero(o.central, o.trabajo);
        auto base = AbrirBasePropia(o.trabajo, Modo::Escritura);
        EjecutarDirecto(base.get(), "ATTACH '" + TextoDeRuta(o.paquete) + "' AS p; BEGIN");
        const auto donde = Suyos("");
        const auto vacas = VacasDirectas(base.get(), donde);
        BorrarDirecto(base.get(), donde);
        for (const auto& paso : PasosDeEntrada())
            if (*paso.tabla)
                EjecutarDirecto(base.get(), std::string("INSERT INTO main.") + paso.tabla +
                                                " SELECT * FROM p." + paso.tabla + donde);
        for (const char* tabla : TablasDeVaca()) {
            Instruccion s(base.get(), std::string("INSERT INTO main.") + tabla + " SELECT * FROM p." + tabla +
                                          " WHERE Id_Vaca = ?");
            for (const double v : vacas)
                s.Enlazar(1, v).Correr();
        }
        EjecutarDirecto(base.get(), "COMMIT");
    }
}
BENCHMARK(FundirDirecto)->Unit(benchmark::kMillisecond);

void CompararPaquete(benchmark::State& estado) {
    auto& o = LaOficina();
    for (auto _ : estado) {
        auto central = AbrirParaLeer(o.central);
        auto paquete = AbrirParaLeer(o.paquete);
        benchmark::DoNotOptimize(CompararFusion(central, paquete, "vet3").cambian);
    }
}
BENCHMARK(CompararPaquete)->Unit(benchmark::kMillisecond);

void CompararEnteras(benchmark::State& estado) {
    auto& o = LaOficina();
    for (auto _ : estado) {
        auto a = AbrirParaLeer(o.central);
        auto b = AbrirParaLeer(o.central);
        benchmark::DoNotOptimize(CompararReemplazo(a, b).cambian);
    }
}
BENCHMARK(CompararEnteras)->Unit(benchmark::kMillisecond);

void CompactarAlmacen(benchmark::State& estado) {
    auto& o = LaOficina();
    for (auto _ : estado)
        Compactar(o.central, {o.En("BackUp"), "BD_PradalC", Fecha{46000, 1}});
    fs::remove_all(o.En("BackUp"));
}
BENCHMARK(CompactarAlmacen)->Unit(benchmark::kMillisecond);

void CompactarDirecto(benchmark::State& estado) {
    auto& o = LaOficina();
    for (auto _ : estado) {
        fs::remove(o.En("vacio.mdb"));
        auto base = AbrirBasePropia(o.central, Modo::Escritura);
        EjecutarDirecto(base.get(), "VACUUM INTO '" + TextoDeRuta(o.En("vacio.mdb")) + "'");
    }
}
BENCHMARK(CompactarDirecto)->Unit(benchmark::kMillisecond);

} // namespace
