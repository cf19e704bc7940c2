#include "Rebano.h"

#include "store/BasePropia.h"
#include "store/CopiaDeFilas.h"
#include "store/Esquema.h"
#include "store/Ficheros.h"
#include "store/Literales.h"
#include "store/Recordset.h"

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <QTemporaryDir>

#include <memory>

// Each pair does the same work once through the store and once on the bare C API with a statement prepared beforehand; the report at the
// end of the run prints their ratio.
namespace {

using namespace pastorix;

struct Base {
    QTemporaryDir carpeta;
    std::string fichero = carpeta.filePath(QStringLiteral("banco.mdb")).toStdString();
    Conexion c;
    sqlite3* s = nullptr;

    Base() {
        CrearBase(Ruta(fichero), ClaseDeBase::Principal, kClave);
        c.AbrirFichero(fichero, kClave);
        sqlite3_open(fichero.c_str(), &s);
        InicializarConexion(s);
        EnGrupo(c, [&] {
            Recordset rs(c, "SELECT * FROM T_Cebo");
            for (int i = 0; i < 100000; ++i) {
                rs.AddNew();
                rs["Id_Cebo"] = static_cast<double>(i);
                rs["Id_Ganadero"] = static_cast<double>(i % 40);
                rs["Saneamiento"] = "ES03" + std::to_string(1000000 + i);
                rs["Sexo"] = i % 2 ? "Macho" : "Hembra";
                rs["KgCanal"] = 200 + i % 90 + 0.5;
                rs["AñoRef"] = 2000 + i % 26;
                rs.Update();
            }
        });
    }
    ~Base() { sqlite3_close(s); }
};

Base& LaBase() {
    static Base b;
    return b;
}

void PuntoAlmacen(benchmark::State& estado) {
    auto& b = LaBase();
    int i = 0;
    for (auto _ : estado) {
        i = (i + 7919) % 100000;
        Recordset rs(b.c, "SELECT Saneamiento, KgCanal FROM T_Cebo WHERE Id_Ganadero = " + NumeroSql(i % 40) +
                              " AND Id_Cebo = " + NumeroSql(i));
        benchmark::DoNotOptimize(rs["KgCanal"].Numero());
    }
}
BENCHMARK(PuntoAlmacen);

void PuntoDirecto(benchmark::State& estado) {
    auto& b = LaBase();
    sqlite3_stmt* s = nullptr;
    sqlite3_prepare_v2(b.s, "SELECT Saneamiento, KgCanal FROM T_Cebo WHERE Id_Ganadero = ? AND Id_Cebo = ?",
                       -1, &s, nullptr);
    int i = 0;
    for (auto _ : estado) {
        i = (i + 7919) % 100000;
        sqlite3_bind_int(s, 1, i % 40);
        sqlite3_bind_int(s, 2, i);
        sqlite3_step(s);
        benchmark::DoNotOptimize(sqlite3_column_double(s, 1));
        sqlite3_reset(s);
    }
    sqlite3_finalize(s);
}
BENCHMARK(PuntoDirecto);

void LeerAlmacen(benchmark::State& estado) {
    auto& b = LaBase();
    for (auto _ : estado) {
        Recordset rs(b.c, "SELECT Id_Cebo, Id_Ganadero, Saneamiento, Sexo, KgCanal, AñoRef FROM T_Cebo",
                     Cursor::Keyset, Bloqueo::SoloLectura);
        double suma = 0;
        for (; !rs.Eof(); rs.Siguiente())
            suma += rs["Id_Cebo"].Numero() + rs["Id_Ganadero"].Numero() + rs["KgCanal"].Numero() +
                    rs["AñoRef"].Numero() +
                    static_cast<double>(rs["Saneamiento"].Vista().size() + rs["Sexo"].Vista().size());
        benchmark::DoNotOptimize(suma);
    }
}
BENCHMARK(LeerAlmacen)->Unit(benchmark::kMillisecond);

void LeerDirecto(benchmark::State& estado) {
    auto& b = LaBase();
    sqlite3_stmt* s = nullptr;
    sqlite3_prepare_v2(b.s, "SELECT Id_Cebo, Id_Ganadero, Saneamiento, Sexo, KgCanal, AñoRef FROM T_Cebo", -1,
                       &s, nullptr);
    for (auto _ : estado) {
        double suma = 0;
        while (sqlite3_step(s) == SQLITE_ROW) {
            suma += sqlite3_column_double(s, 0) + sqlite3_column_double(s, 1) + sqlite3_column_double(s, 4) +
                    sqlite3_column_double(s, 5);
            benchmark::DoNotOptimize(sqlite3_column_text(s, 2));
            benchmark::DoNotOptimize(sqlite3_column_text(s, 3));
            suma += sqlite3_column_bytes(s, 2) + sqlite3_column_bytes(s, 3);
        }
        benchmark::DoNotOptimize(suma);
        sqlite3_reset(s);
    }
    sqlite3_finalize(s);
}
BENCHMARK(LeerDirecto)->Unit(benchmark::kMillisecond);

void AñadirAlmacen(benchmark::State& estado) {
    auto& b = LaBase();
    for (auto _ : estado) {
        EnGrupo(b.c, [&] {
            Recordset rs(b.c, "SELECT * FROM X_Temp");
            for (int i = 0; i < 100000; ++i) {
                rs.AddNew();
                rs["C1"] = "Fila de prueba";
                rs["C2"] = "Vaca con un nombre largo";
                rs["N1"] = static_cast<double>(i);
                rs["N2"] = i * 0.5;
                rs["F1"] = Fecha{40000 + i % 5000, 0};
                rs.Update();
            }
        });
        estado.PauseTiming();
        b.c.Execute("DELETE FROM X_Temp");
        estado.ResumeTiming();
    }
}
BENCHMARK(AñadirAlmacen)->Unit(benchmark::kMillisecond);

void AñadirDirecto(benchmark::State& estado) {
    auto& b = LaBase();
    sqlite3_stmt* s = nullptr;
    sqlite3_prepare_v2(b.s, "INSERT INTO X_Temp (C1, C2, N1, N2, F1) VALUES (?, ?, ?, ?, ?)", -1, &s,
                       nullptr);
    for (auto _ : estado) {
        sqlite3_exec(b.s, "BEGIN", nullptr, nullptr, nullptr);
        for (int i = 0; i < 100000; ++i) {
            sqlite3_bind_text(s, 1, "Fila de prueba", -1, SQLITE_TRANSIENT);
            sqlite3_bind_text(s, 2, "Vaca con un nombre largo", -1, SQLITE_TRANSIENT);
            sqlite3_bind_double(s, 3, i);
            sqlite3_bind_double(s, 4, i * 0.5);
            const auto fecha = FechaIso({40000 + i % 5000, 0});
            sqlite3_bind_text(s, 5, fecha.c_str(), -1, SQLITE_TRANSIENT);
            sqlite3_step(s);
            sqlite3_reset(s);
        }
        sqlite3_exec(b.s, "COMMIT", nullptr, nullptr, nullptr);
        estado.PauseTiming();
        sqlite3_exec(b.s, "DELETE FROM X_Temp", nullptr, nullptr, nullptr);
        estado.ResumeTiming();
    }
    sqlite3_finalize(s);
}
BENCHMARK(AñadirDirecto)->Unit(benchmark::kMillisecond);

// Whole tables of the exchange.
struct Otra {
    std::string fichero = LaBase().carpeta.filePath(QStringLiteral("otra.mdb")).toStdString();
    Conexion c;

    Otra() {
        CrearBase(Ruta(fichero), ClaseDeBase::Principal, kClave);
        c.AbrirFichero(fichero, kClave);
    }
};

Otra& LaOtra() {
    static Otra o;
    return o;
}

void CopiarAlmacen(benchmark::State& estado) {
    auto& origen = LaBase().c;
    auto& destino = LaOtra().c;
    for (auto _ : estado) {
        benchmark::DoNotOptimize(CopiarFilas(origen, "SELECT * FROM T_Cebo", destino, "T_Cebo"));
        estado.PauseTiming();
        destino.Execute("DELETE FROM T_Cebo");
        estado.ResumeTiming();
    }
}
BENCHMARK(CopiarAlmacen)->Unit(benchmark::kMillisecond);

void CopiarDirecto(benchmark::State& estado) {
    auto& b = LaBase();
    auto* destino = LaOtra().c.Manejador();
    sqlite3_stmt* leer = nullptr;
    sqlite3_stmt* poner = nullptr;
    sqlite3_prepare_v2(b.s, "SELECT * FROM T_Cebo", -1, &leer, nullptr);
    const int columnas = sqlite3_column_count(leer);
    std::string sql = "INSERT INTO T_Cebo VALUES (?";
    for (int i = 1; i < columnas; ++i)
        sql += ", ?";
    sqlite3_prepare_v2(destino, (sql + ")").c_str(), -1, &poner, nullptr);
    for (auto _ : estado) {
        sqlite3_exec(destino, "BEGIN", nullptr, nullptr, nullptr);
        while (sqlite3_step(leer) == SQLITE_ROW) {
            for (int i = 0; i < columnas; ++i)
                sqlite3_bind_value(poner, i + 1, sqlite3_column_value(leer, i));
            sqlite3_step(poner);
            sqlite3_reset(poner);
        }
        sqlite3_reset(leer);
        sqlite3_exec(destino, "COMMIT", nullptr, nullptr, nullptr);
        estado.PauseTiming();
        sqlite3_exec(destino, "DELETE FROM T_Cebo", nullptr, nullptr, nullptr);
        estado.ResumeTiming();
    }
    sqlite3_finalize(leer);
    sqlite3_finalize(poner);
}
BENCHMARK(CopiarDirecto)->Unit(benchmark::kMillisecond);

} // namespace
