#include "Rebano.h"

#include "registers/datos/Resumen.h"
#include "store/BasePropia.h"
#include "store/Esquema.h"
#include "store/Recordset.h"

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <QTemporaryDir>

#include <string>

// The farm's yearly summary of 14 years over 500 cows, against the counts of its stocking load read through the bare C API: they are nearly all
// of the work. A user waits for it whenever the sub-sheet comes up; 300 ms is what he should at most notice.
namespace {

using namespace pastorix;

constexpr int kPrimerAño = 2013;
constexpr int kUltimoAño = 2026;

struct Finca {
    QTemporaryDir carpeta;
    std::string fichero = carpeta.filePath(QStringLiteral("finca.mdb")).toStdString();
    Conexion c;
    sqlite3* s = nullptr;

    Finca() {
        banco::HacerRebaño(fichero);
        c.AbrirFichero(fichero, kClave);
        EnGrupo(c, [this] {
            for (const char* tabla : {"T_IPR", "T_AbonadoSuperficie", "T_PastosComunales",
                                      "T_AlimentacionInvernal", "T_SistemaProduccion"}) {
                Recordset rs(c, std::string("SELECT * FROM ") + tabla);
                for (int año = kPrimerAño; año <= kUltimoAño; ++año) {
                    rs.AddNew();
                    rs["Id_Ganadero"] = 12.0;
                    rs["AñoNatural"] = año;
                    rs.Update();
                }
            }
            c.Execute("UPDATE T_AbonadoSuperficie SET HasNoCom = 30, HasAbonadas = 10");
        });
        sqlite3_open(fichero.c_str(), &s);
        InicializarConexion(s);
    }
    ~Finca() { sqlite3_close(s); }

    // Reads all rows of a statement whose parameters are the day, the reference year and the one before.
    void Recorrer(const char* sql, const std::string& dia, int año, benchmark::State& estado) const {
        sqlite3_stmt* p = nullptr;
        if (sqlite3_prepare_v2(s, sql, -1, &p, nullptr) != SQLITE_OK) {
            estado.SkipWithError(sqlite3_errmsg(s));
            return;
        }
        sqlite3_bind_text(p, 1, dia.c_str(), -1, SQLITE_TRANSIENT);
        sqlite3_bind_int(p, 2, año);
        while (sqlite3_step(p) == SQLITE_ROW)
            for (int i = 0; i < sqlite3_column_count(p); ++i)
                benchmark::DoNotOptimize(sqlite3_column_text(p, i));
        sqlite3_finalize(p);
    }
};

Finca& LaFinca() {
    static Finca f;
    return f;
}

void ResumenAlmacen(benchmark::State& estado) {
    auto& f = LaFinca();
    for (auto _ : estado)
        benchmark::DoNotOptimize(LeerResumen(f.c, 12));
}
BENCHMARK(ResumenAlmacen)->Unit(benchmark::kMillisecond);

void ResumenDirecto(benchmark::State& estado) {
    auto& f = LaFinca();
    constexpr auto kToros =
        "SELECT Id_Semental, FechaAlta, FechaBaja FROM T_Sementales WHERE Id_Ganadero = 12 "
        "AND (FechaBaja > ?1 OR FechaBaja IS NULL) AND ?2";
    constexpr auto kHembras =
        "SELECT v.Id_Ganadero, v.Crotal, v.NombreC, v.FechaBaja, v.FechaCompra, max(c.Fecha_Parto), "
        "max(c.Año_Ref), max(c.N_Parto) FROM T_Vacas v LEFT JOIN T_Cubriciones c ON v.Id_Vaca = c.Id_Vaca "
        "WHERE c.Fecha_Parto IS NULL OR c.Fecha_Parto < ?1 GROUP BY v.Id_Ganadero, v.Crotal, v.NombreC, "
        "v.FechaBaja, v.FechaCompra HAVING v.Id_Ganadero = 12 AND (v.FechaBaja IS NULL OR v.FechaBaja > ?1) "
        "AND (v.FechaCompra IS NULL OR v.FechaCompra < ?1) AND max(c.Año_Ref) <= ?2 "
        "ORDER BY v.NombreC COLLATE ES";
    constexpr auto kRecria =
        "SELECT p.Fecha_Parto FROM T_Vacas v JOIN T_Partos p ON v.Id_Vaca = p.Id_Vaca WHERE "
        "v.Id_Ganadero = 12 AND (p.Año_Ref = ?2 - 1 OR p.Año_Ref = ?2 - 2) AND "
        "p.DestinoTernero = 'Recría' AND ?1";
    constexpr auto kCebo =
        "SELECT Id_Cebo, FechaCebo FROM T_Cebo WHERE Id_Ganadero = 12 AND FechaCebo < ?1 AND "
        "(FechaSacrif IS NULL OR FechaSacrif > ?1) AND (FechaMuerte IS NULL OR FechaMuerte > "
        "?1) AND ?2 ORDER BY FechaCebo";
    for (auto _ : estado) {
        sqlite3_exec(f.s, "BEGIN", nullptr, nullptr, nullptr);
        for (int año = kPrimerAño; año <= kUltimoAño + 1; ++año) {
            const auto dia = std::to_string(año - 1) + "-12-01";
            for (const char* sql : {kToros, kHembras, kRecria, kCebo})
                f.Recorrer(sql, dia, año, estado);
        }
        sqlite3_exec(f.s, "END", nullptr, nullptr, nullptr);
    }
}
BENCHMARK(ResumenDirecto)->Unit(benchmark::kMillisecond);

} // namespace
