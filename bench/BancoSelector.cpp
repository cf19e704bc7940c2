#include "frame/selector/GridSelector.h"
#include "frame/selector/Selector.h"
#include "frame/selector/SentenciasSelector.h"
#include "store/BasePropia.h"
#include "store/Esquema.h"
#include "store/Ficheros.h"
#include "store/Recordset.h"

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <QLineEdit>
#include <QTemporaryDir>

#include <string>

// The list of a whole province's cows, from the key that opens or filters it to the rows painted, against the same rows read through the bare
// C API. What a user feels as immediate is 100 ms.
namespace {

using namespace pastorix;

constexpr int kVacas = 20000;
constexpr int kGanaderos = 400;

struct Provincia {
    QTemporaryDir carpeta;
    std::string fichero = carpeta.filePath(QStringLiteral("selector.mdb")).toStdString();
    Conexion c;
    sqlite3* s = nullptr;

    Provincia() {
        CrearBase(Ruta(fichero), ClaseDeBase::Principal, kClave);
        c.AbrirFichero(fichero, kClave);
        sqlite3_open(fichero.c_str(), &s);
        InicializarConexion(s);
        EnGrupo(c, [&] {
            Recordset g(c, "SELECT * FROM T_Ganaderos");
            for (int i = 0; i < kGanaderos; ++i) {
                g.AddNew();
                g["Id_Ganadero"] = 10.0 + i;
                g["Nombre"] = "Nicolás";
                g["Apellidos"] = "Álvarez Suárez";
                g["Apodo"] = "Casa " + std::to_string(i * 7919 % kGanaderos);
                g.Update();
            }
            Recordset v(c, "SELECT * FROM T_Vacas");
            for (int i = 0; i < kVacas; ++i) {
                v.AddNew();
                v["Id_Vaca"] = 1000000.0 + i;
                v["Id_Ganadero"] = 10.0 + i % kGanaderos;
                v["Nombre"] = "Estrella " + std::to_string(i * 31 % 900);
                v["NombreC"] = "Estrella " + std::to_string(i * 31 % 900) + "-Culón";
                v["RegGenealogico"] = "AV" + std::to_string(100000 + i);
                v["RegSaneam"] = std::to_string(1200000000 + i);
                v["Crotal"] = "ES03" + std::to_string(10000000 + i);
                v.Update();
            }
        });
    }
    ~Provincia() { sqlite3_close(s); }
};

Provincia& LaProvincia() {
    static Provincia p;
    return p;
}

ListaSelector Lista() {
    return PrepararSelector(LaProvincia().c, TipoSelector::Vacas, SentenciaVacas().Completa());
}

void Leer(benchmark::State& estado, const char* filtro) {
    auto& p = LaProvincia();
    const std::string sql =
        std::string("SELECT v.Id_Ganadero, g.Apellidos, g.Nombre, g.Apodo, v.Id_Vaca, v.RegGenealogico, "
                    "v.RegSaneam, v.Nombre, v.Crotal, v.CrotalANT, v.NombreC, v.FechaDesecho FROM T_Vacas v, "
                    "T_Ganaderos g WHERE v.Id_Ganadero = g.Id_Ganadero") +
        filtro + " ORDER BY g.Apodo COLLATE ES, v.Nombre COLLATE ES";
    sqlite3_stmt* s = nullptr;
    if (sqlite3_prepare_v2(p.s, sql.c_str(), -1, &s, nullptr) != SQLITE_OK) {
        estado.SkipWithError(sqlite3_errmsg(p.s));
        return;
    }
    for (auto _ : estado) {
        std::size_t bytes = 0;
        while (sqlite3_step(s) == SQLITE_ROW)
            for (int i = 0; i < 12; ++i) {
                benchmark::DoNotOptimize(sqlite3_column_text(s, i));
                bytes += static_cast<std::size_t>(sqlite3_column_bytes(s, i));
            }
        benchmark::DoNotOptimize(bytes);
        sqlite3_reset(s);
    }
    sqlite3_finalize(s);
}

void SelectorAbrirAlmacen(benchmark::State& estado) {
    LaProvincia();
    for (auto _ : estado) {
        Selector s(LaProvincia().c, Lista());
        s.show();
        benchmark::DoNotOptimize(s.grab());
    }
}
BENCHMARK(SelectorAbrirAlmacen)->Unit(benchmark::kMillisecond);

void SelectorAbrirDirecto(benchmark::State& estado) {
    Leer(estado, "");
}
BENCHMARK(SelectorAbrirDirecto)->Unit(benchmark::kMillisecond);

// A filter that leaves a tenth of the cows.
void SelectorFiltrarAlmacen(benchmark::State& estado) {
    Selector s(LaProvincia().c, Lista());
    s.show();
    auto* crotal = s.findChild<QLineEdit*>(QStringLiteral("CTexto(8)"));
    crotal->setText(QStringLiteral("7"));
    for (auto _ : estado) {
        Q_EMIT crotal->returnPressed();
        benchmark::DoNotOptimize(s.grab());
    }
}
BENCHMARK(SelectorFiltrarAlmacen)->Unit(benchmark::kMillisecond);

void SelectorFiltrarDirecto(benchmark::State& estado) {
    Leer(estado, " AND v.Crotal LIKE '%7'");
}
BENCHMARK(SelectorFiltrarDirecto)->Unit(benchmark::kMillisecond);

// A word typed into the search box, painted at every key; with the first one all rows are read.
void SelectorBuscar(benchmark::State& estado) {
    Selector s(LaProvincia().c, Lista());
    s.show();
    auto* busca = s.findChild<QLineEdit*>(QStringLiteral("Buscar"));
    const QString palabra = QStringLiteral("estrella 89");
    for (auto _ : estado)
        for (int letras = 1; letras <= palabra.size(); ++letras) {
            busca->setText(palabra.left(letras));
            benchmark::DoNotOptimize(s.grab());
        }
}
BENCHMARK(SelectorBuscar)->Unit(benchmark::kMillisecond);

// The first key of a search alone.
void SelectorPrimeraTecla(benchmark::State& estado) {
    for (auto _ : estado) {
        estado.PauseTiming();
        Selector s(LaProvincia().c, Lista());
        s.show();
        s.grab();
        estado.ResumeTiming();
        s.findChild<QLineEdit*>(QStringLiteral("Buscar"))->setText(QStringLiteral("e"));
        benchmark::DoNotOptimize(s.grab());
    }
}
BENCHMARK(SelectorPrimeraTecla)->Unit(benchmark::kMillisecond)->Iterations(10);

// To the last row and back to the first, painted each time: the walk from the start that a jump back costs.
void SelectorSaltar(benchmark::State& estado) {
    Selector s(LaProvincia().c, Lista());
    s.show();
    auto* rejilla = s.findChild<GridSelector*>(QStringLiteral("GridSelector"));
    for (auto _ : estado)
        for (const bool fin : {true, false}) {
            fin ? rejilla->scrollToBottom() : rejilla->scrollToTop();
            benchmark::DoNotOptimize(rejilla->viewport()->grab());
        }
}
BENCHMARK(SelectorSaltar)->Unit(benchmark::kMillisecond);

} // namespace
