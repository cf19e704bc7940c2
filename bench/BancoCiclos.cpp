#include "Rebano.h"

#include "frame/Principal.h"
#include "frame/Sesion.h"
#include "reproduction/Cubriciones.h"
#include "reproduction/Partos.h"
#include "reproduction/datos/Cubricion.h"
#include "reproduction/datos/Servicios.h"
#include "store/BasePropia.h"
#include "store/Esquema.h"
#include "store/Recordset.h"

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <QLineEdit>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

#include <string>

// The sheets of a cow's cycles on a farm of 500 cows and 14 years: from the cow to the painted sheet, from one cycle to the next and a service
// accepted, with their durable writes; and the rows behind a cycle against the same rows read through the bare C API.
namespace {

using namespace pastorix;

struct Cuadra {
    QTemporaryDir carpeta;
    std::string fichero = carpeta.filePath(QStringLiteral("ciclos.mdb")).toStdString();
    Sesion sesion;
    Principal marco{sesion};
    VacaEnMano vaca;
    sqlite3* s = nullptr;

    Cuadra() {
        banco::HacerRebaño(fichero);
        sesion.conexion.AbrirFichero(fichero, kClave);
        vaca.idVaca = 1200001;
        vaca.idGanadero = 12;
        sqlite3_open(fichero.c_str(), &s);
        InicializarConexion(s);
    }
    ~Cuadra() { sqlite3_close(s); }
};

Cuadra& LaCuadra() {
    static Cuadra c;
    return c;
}

// The cycles of the cow, the latest first.
const std::vector<CicloDeVaca>& Ciclos() {
    static const auto ciclos = CubricionesDeVaca(LaCuadra().sesion.conexion, LaCuadra().vaca.idVaca);
    return ciclos;
}

void LeerCicloAlmacen(benchmark::State& estado) {
    auto& c = LaCuadra().sesion.conexion;
    std::size_t i = 0;
    for (auto _ : estado) {
        const auto& ciclo = Ciclos()[++i % Ciclos().size()];
        Recordset rs(c, SentenciaCubricion(ciclo));
        for (int campo = 0; !rs.Eof() && campo < rs.Campos(); ++campo)
            benchmark::DoNotOptimize(rs[campo].Leer());
        benchmark::DoNotOptimize(LeerServicios(c, ciclo));
        benchmark::DoNotOptimize(LeerSanidadDeCiclo(c, ciclo));
        benchmark::DoNotOptimize(FechaSecadoDeCiclo(c, ciclo));
        benchmark::DoNotOptimize(DificultadDeCiclo(c, ciclo));
    }
}
BENCHMARK(LeerCicloAlmacen)->Unit(benchmark::kMicrosecond);

void LeerCicloDirecto(benchmark::State& estado) {
    auto* s = LaCuadra().s;
    std::size_t i = 0;
    for (auto _ : estado) {
        const auto& ciclo = Ciclos()[++i % Ciclos().size()];
        for (const char* sql :
             {"SELECT * FROM T_Cubriciones WHERE Id_Vaca = ? AND Año_Ref = ? AND N_Parto = ?",
              "SELECT * FROM T_Servicios WHERE Id_Vaca = ? AND Año_Ref = ? AND N_Parto = ? ORDER BY "
              "N_Servicio",
              "SELECT * FROM T_R_IBRBVD WHERE Id_Vaca = ? AND AñoRef = ? AND NumParto = ?",
              "SELECT * FROM T_CCVacas WHERE Id_Vaca = ? AND AñoRef = ? AND NumParto = ?",
              "SELECT * FROM T_R_NEOSPIROSIS WHERE Id_Vaca = ? AND AñoRef = ? AND NumParto = ?",
              "SELECT FechaSecado FROM T_Partos WHERE Id_Vaca = ? AND Año_Ref = ? AND N_Parto = ?",
              "SELECT DifParto FROM T_Partos WHERE Id_Vaca = ? AND Año_Ref = ? AND N_Parto = ?"}) {
            sqlite3_stmt* p = nullptr;
            if (sqlite3_prepare_v2(s, sql, -1, &p, nullptr) != SQLITE_OK) {
                estado.SkipWithError(sqlite3_errmsg(s));
                return;
            }
            sqlite3_bind_double(p, 1, ciclo.idVaca);
            sqlite3_bind_int(p, 2, ciclo.añoRef.value_or(0));
            sqlite3_bind_int(p, 3, ciclo.nParto.value_or(0));
            while (sqlite3_step(p) == SQLITE_ROW)
                for (int campo = 0; campo < sqlite3_column_count(p); ++campo)
                    benchmark::DoNotOptimize(sqlite3_column_text(p, campo));
            sqlite3_finalize(p);
        }
    }
}
BENCHMARK(LeerCicloDirecto)->Unit(benchmark::kMicrosecond);

// A sheet made, filled and painted.
template <typename Hoja>
void Abrir(benchmark::State& estado, bool (Hoja::*cargar)()) {
    auto& c = LaCuadra();
    std::size_t i = 0;
    for (auto _ : estado) {
        Hoja f(c.marco, c.vaca, Ciclos()[1 + ++i % (Ciclos().size() - 1)]);
        (f.*cargar)();
        f.show();
        benchmark::DoNotOptimize(f.grab());
    }
}
void AbrirCubricion(benchmark::State& estado) {
    Abrir(estado, &Cubriciones::CargarCubricion);
}
BENCHMARK(AbrirCubricion)->Unit(benchmark::kMillisecond);
void AbrirParto(benchmark::State& estado) {
    Abrir(estado, &Partos::CargarParto);
}
BENCHMARK(AbrirParto)->Unit(benchmark::kMillisecond);

void SiguienteCubricion(benchmark::State& estado) {
    Cubriciones f(LaCuadra().marco, LaCuadra().vaca, Ciclos()[3]);
    f.CargarCubricion();
    f.show();
    bool adelante = true;
    for (auto _ : estado) {
        f.findChild<QAbstractButton*>(adelante ? QStringLiteral("B_Siguiente") : QStringLiteral("B_Anterior"))
            ->click();
        adelante = !adelante;
        benchmark::DoNotOptimize(f.grab());
    }
}
BENCHMARK(SiguienteCubricion)->Unit(benchmark::kMillisecond);

// The last service again and again: the set rewritten, the record saved and loaded.
void AceptarServicio(benchmark::State& estado) {
    Cubriciones f(LaCuadra().marco, LaCuadra().vaca, Ciclos()[3]);
    f.CargarCubricion();
    f.show();
    auto* rejilla = f.findChild<QTableWidget*>(QStringLiteral("GridServicios"));
    auto* obs = f.findChild<QLineEdit*>(QStringLiteral("Ct_S(5)"));
    for (auto _ : estado) {
        rejilla->setFocus();
        rejilla->setCurrentCell(0, 1);
        QTest::keyClick(rejilla, Qt::Key_Return);
        QTest::keyClick(obs, Qt::Key_A);
        QTest::keyClick(obs, Qt::Key_Return);
        if (rejilla->item(0, 8)->text().isEmpty() || !obs->text().isEmpty())
            return estado.SkipWithError("the service was not accepted");
    }
}
BENCHMARK(AceptarServicio)->Unit(benchmark::kMillisecond);

} // namespace
