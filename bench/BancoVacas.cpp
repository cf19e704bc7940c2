#include "Rebano.h"

#include "registers/datos/Borrados.h"
#include "registers/vacas/Vacas.h"
#include "store/BasePropia.h"
#include "store/Esquema.h"
#include "store/Recordset.h"

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <QLineEdit>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>

#include <string>

// The cow's sheet on a farm of 500 cows and 14 years: a cow with all her tabs, on the screen, against the rows behind it read through
// the bare C API. Browsing with a held arrow key asks for one every 33 ms; 20 ms leave room.
namespace {

using namespace pastorix;

struct Cuadra {
    QTemporaryDir carpeta;
    std::string fichero = carpeta.filePath(QStringLiteral("vacas.mdb")).toStdString();
    Sesion sesion;
    sqlite3* s = nullptr;

    Cuadra() {
        banco::HacerRebaño(fichero);
        sesion.conexion.AbrirFichero(fichero, kClave);
        auto& c = sesion.conexion;
        EnGrupo(c, [&] {
            for (const char* tabla : {"T_CCNATVACAS", "T_IBRBVD", "T_NEOSPIROSIS", "T_MAMIVACU"}) {
                Recordset rs(c, std::string("SELECT * FROM ") + tabla);
                for (int vaca = 1; vaca <= 500; ++vaca)
                    for (int año = 2013; año <= 2026; ++año) {
                        rs.AddNew();
                        rs["Id_Ganadero"] = 12.0;
                        rs["Id_Vaca"] = 1200000.0 + vaca;
                        rs["AñoNat"] = año;
                        rs.Update();
                    }
            }
            for (const char* tabla : {"T_CCVacas", "T_R_IBRBVD", "T_R_NEOSPIROSIS"}) {
                Recordset rs(c, std::string("SELECT * FROM ") + tabla);
                for (Recordset cub(c, "SELECT Id_Vaca, Año_Ref, N_Parto FROM T_Cubriciones"); !cub.Eof();
                     cub.Siguiente()) {
                    rs.AddNew();
                    rs["Id_Ganadero"] = 12.0;
                    rs["Id_Vaca"] = cub[0].Leer();
                    rs["AñoRef"] = cub[1].Leer();
                    rs["NumParto"] = cub[2].Leer();
                    rs.Update();
                }
            }
            Recordset tetos(c, "SELECT * FROM T_Mamitis");
            for (int vaca = 1; vaca <= 500; ++vaca)
                for (int teto = 1; teto <= 4; ++teto) {
                    tetos.AddNew();
                    tetos["Id_Vaca"] = 1200000.0 + vaca;
                    tetos["Id_Teto"] = double(teto);
                    tetos.Update();
                }
            // Tags that end alike, to browse through.
            c.Execute("UPDATE T_Vacas SET Crotal = 'ES01001234' WHERE Id_Vaca = 1200001");
            c.Execute("UPDATE T_Vacas SET Crotal = 'ES02001234' WHERE Id_Vaca = 1200004");
        });
        sqlite3_open(fichero.c_str(), &s);
        InicializarConexion(s);
    }
    ~Cuadra() { sqlite3_close(s); }
};

Cuadra& LaCuadra() {
    static Cuadra c;
    return c;
}

constexpr double kUna = 1200001; // both with 14 matings and more than 12 calvings
constexpr double kOtra = 1200004;

void CargarVacaAlmacen(benchmark::State& estado) {
    Vacas f(LaCuadra().sesion, {});
    f.show();
    double vaca = kUna;
    for (auto _ : estado) {
        vaca = vaca == kUna ? kOtra : kUna;
        f.CargarFicha(vaca);
    }
}
BENCHMARK(CargarVacaAlmacen)->Unit(benchmark::kMillisecond);

void CargarVacaDirecto(benchmark::State& estado) {
    auto* s = LaCuadra().s;
    double vaca = kUna;
    for (auto _ : estado) {
        vaca = vaca == kUna ? kOtra : kUna;
        for (const char* sql :
             {"SELECT * FROM T_Vacas WHERE Id_Vaca = ?",
              "SELECT * FROM T_Ganaderos WHERE Id_Ganadero = 12 AND ?",
              "SELECT * FROM T_Cubriciones WHERE Id_Vaca = ? ORDER BY Año_Ref DESC, N_Parto DESC",
              "SELECT * FROM T_Partos WHERE Id_Vaca = ? ORDER BY N_Parto DESC",
              "SELECT * FROM T_Servicios WHERE Id_Vaca = ? ORDER BY N_Servicio DESC",
              "SELECT * FROM T_Mamitis WHERE Id_Vaca = ?", "SELECT * FROM T_MAMIVACU WHERE Id_Vaca = ?",
              "SELECT * FROM T_CCVacas WHERE Id_Vaca = ?", "SELECT * FROM T_CCNATVACAS WHERE Id_Vaca = ?",
              "SELECT * FROM T_IBRBVD WHERE Id_Vaca = ?", "SELECT * FROM T_R_IBRBVD WHERE Id_Vaca = ?",
              "SELECT * FROM T_NEOSPIROSIS WHERE Id_Vaca = ?",
              "SELECT * FROM T_R_NEOSPIROSIS WHERE Id_Vaca = ?"}) {
            sqlite3_stmt* p = nullptr;
            if (sqlite3_prepare_v2(s, sql, -1, &p, nullptr) != SQLITE_OK) {
                estado.SkipWithError(sqlite3_errmsg(s));
                return;
            }
            sqlite3_bind_double(p, 1, vaca);
            while (sqlite3_step(p) == SQLITE_ROW)
                for (int i = 0; i < sqlite3_column_count(p); ++i)
                    benchmark::DoNotOptimize(sqlite3_column_text(p, i));
            sqlite3_finalize(p);
        }
    }
}
BENCHMARK(CargarVacaDirecto)->Unit(benchmark::kMillisecond);

// Arrow down and up in the tag, each painted, with the tab of the given place in view.
void HojearVacas(benchmark::State& estado) {
    Vacas f(LaCuadra().sesion, {});
    f.show();
    f.CargarFicha(kUna);
    f.findChild<QTabWidget*>()->setCurrentIndex(static_cast<int>(estado.range(0)));
    auto* crotal = f.findChild<QLineEdit*>(QStringLiteral("CT_Estandar(7)"));
    bool abajo = true;
    for (auto _ : estado) {
        QTest::keyClick(crotal, abajo ? Qt::Key_Down : Qt::Key_Up);
        abajo = !abajo;
        benchmark::DoNotOptimize(f.grab());
    }
}
BENCHMARK(HojearVacas)->Arg(0)->Arg(3)->Arg(4)->Unit(benchmark::kMillisecond);

// A cow with all she has, as one durable unit; each time another one.
void BorrarUnaVaca(benchmark::State& estado) {
    auto& c = LaCuadra().sesion.conexion;
    double vaca = 1200100;
    for (auto _ : estado)
        EnGrupo(c, [&] { BorrarVaca(c, ++vaca, 12); });
}
BENCHMARK(BorrarUnaVaca)->Unit(benchmark::kMillisecond)->Iterations(200);

} // namespace
