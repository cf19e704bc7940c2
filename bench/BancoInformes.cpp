#include "Rebano.h"

#include "reports/figuras/Figuras.h"
#include "reports/motor/DisposicionesIncluidas.h"
#include "reports/motor/Informe.h"
#include "reports/motor/LectorDeTablas.h"
#include "reports/motor/Pdf.h"
#include "store/BasePropia.h"
#include "store/Esquema.h"
#include "store/Recordset.h"

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <QTemporaryDir>

#include <functional>
#include <map>
#include <string>
#include <vector>

// Every report for a farm of 500 cows and 14 years: its tables filled, the same rows read and written on the bare C API, its PDF. A user should at
// most notice the histories of all cows.
namespace {

using namespace pastorix;

struct Informe {
    const char* nombre; // of the layout
    std::function<bool(Conexion&)> llenar;
    // What it reads: the rows that are walked, and for each of them further statements that are bound to its first columns.
    const char* recorrido;
    std::vector<const char*> porFila;
    std::map<std::string, std::string> parametros;
};

const GanaderosYAño kAño{{12.0}, "2025"};
constexpr const char* kPartos = "Año_Ref, N_Parto, Fecha_Parto, Semental, OrigenTernero, PesoNac, Sexo, "
                                "Cularidad, Muere, DifMamar, Cria, "
                                "Suplem3m, DESTINOTERNERO, GDestete, DatosCompletos, FechaDestete, "
                                "EdadDestete, PesoDestete, FechaPeso, Peso, "
                                "CuartosPerdidos";
const std::string kPartosDelAño = std::string("SELECT ") + kPartos +
                                  " FROM T_Partos WHERE (Id_Vaca = ?1 AND Año_Ref = 2025) OR (Id_Vaca = ?1 "
                                  "AND Año_Ref = 2024 AND DatosCompletos = 0)";
constexpr const char* kCubricion = "Id_Vaca, Año_Ref, N_Parto, Fecha_Parto, FinicioP, IPR_CP, IEPc, "
                                   "DescCausaPpal, DatosCompletos, FechaRealParto, "
                                   "FechaEspParto";
constexpr const char* kVacas =
    "SELECT v.Id_Vaca, v.Nombre, v.NombreC, v.Crotal, v.FechaNac, v.FechaDesecho, v.Desecho, v.Chekeo, "
    "v.ObsControlRebaño FROM T_Ganaderos g JOIN T_Vacas v ON g.Id_Ganadero = v.Id_Ganadero WHERE "
    "g.Id_Ganadero = 12 "
    "ORDER BY v.Nombre COLLATE ES";
const std::string kCubriciones =
    std::string("SELECT ") + kCubricion +
    " FROM T_Cubriciones WHERE Id_Vaca IN (SELECT Id_Vaca FROM T_Vacas WHERE Id_Ganadero = 12)";
const std::string kCubricionesDelAño =
    kCubriciones + " AND (Año_Ref = 2025 OR Año_Ref = 2024 AND DatosCompletos = 0)";
const std::vector<const char*> kDeLaCubricion{
    "SELECT DifParto FROM T_Partos WHERE Id_Vaca = ?1 AND Año_Ref = ?2 AND N_Parto = ?3",
    "SELECT CCmar, CCnov FROM T_CCVacas WHERE Id_Vaca = ?1 AND AñoRef = ?2 AND NumParto = ?3",
    "SELECT Fecha_Servicio, Semental, N_Servicio FROM T_Servicios WHERE Id_Vaca = ?1 AND Año_Ref = ?2 AND "
    "N_Parto = ?3 "
    "ORDER BY N_Servicio DESC"};
constexpr const char* kPartosDeTodas =
    "SELECT p.*, v.Crotal, v.Nombre, v.NombreC FROM T_Partos p JOIN T_Vacas v ON p.Id_Vaca = v.Id_Vaca WHERE "
    "v.Id_Ganadero = 12 ORDER BY p.Fecha_Parto";
const std::map<std::string, std::string> kAñoRef{{"AñoRef", "2025"}};

const std::vector<Informe>& Todos() {
    static const std::vector<Informe> todos{
        {"ControlRebaño",
         [](Conexion& c) { return LlenarControlRebaño(c, {12.0}); },
         kVacas,
         {"SELECT Año_Ref, N_Parto, Fecha_Parto, FechaEspParto, FechaRealParto FROM T_Cubriciones WHERE "
          "Id_Vaca = ?1 "
          "ORDER BY Año_Ref DESC, Fecha_Parto DESC",
          "SELECT N_Servicio, Fecha_Servicio, Semental FROM T_Servicios WHERE Id_Vaca = ?1 AND Año_Ref = "
          "2026 ORDER BY "
          "N_Servicio DESC"},
         {}},
        {"COM_PRO",
         [](Conexion& c) { return LlenarComportamientoProductivo(c, kAño); },
         kVacas,
         {kPartosDelAño.c_str()},
         kAñoRef},
        {"COM_REP", [](Conexion& c) { return LlenarComportamientoReproductivo(c, kAño); },
         kCubricionesDelAño.c_str(), kDeLaCubricion, kAñoRef},
        {"HTS_P",
         [](Conexion& c) {
             return LlenarHistoricoProductivo(c, {"", 12, false});
         },
         kPartosDeTodas,
         {},
         {}},
        {"Hts_R",
         [](Conexion& c) {
             return LlenarHistoricoReproductivo(c, {"", 12, false});
         },
         kCubriciones.c_str(),
         kDeLaCubricion,
         {}},
        {"CEBO",
         [](Conexion& c) { return LlenarCebo(c, kAño); },
         "SELECT Id_Vaca, FechaNac, Saneamiento, Origen, Sexo, FechaCebo, FechaSacrif, FechaMuerte, "
         "Categoria, KgCanal, "
         "PrecioKg FROM T_Cebo WHERE Id_Ganadero = 12 AND AñoRef = 2025",
         {"SELECT Crotal, NombreC, Nombre FROM T_Vacas WHERE Id_Vaca = ?1"},
         kAñoRef},
        {"DEMORA",
         [](Conexion& c) { return LlenarDemora(c, kAño); },
         "SELECT c.Id_Vaca, c.N_Parto, c.*, v.Crotal, v.NombreC FROM T_Vacas v JOIN T_Cubriciones c ON "
         "v.Id_Vaca = "
         "c.Id_Vaca WHERE v.Id_Ganadero = 12 AND c.Año_Ref = 2025 AND IPR_CP > 42",
         {"SELECT c.Id_Vaca, s.Id_Vaca, c.N_Parto, s.N_Servicio, s.Fecha_Servicio FROM T_Cubriciones c JOIN "
          "T_Servicios "
          "s ON c.Año_Ref = s.Año_Ref WHERE c.Id_Vaca = ?1 AND s.Id_Vaca = ?1 AND c.N_Parto = ?2 ORDER BY "
          "N_Servicio"},
         kAñoRef},
        {"enfermedades",
         [](Conexion& c) {
             PeticionEnfermedades p;
             p.ganadero = 12;
             p.año = "2025";
             return LlenarEnfermedades(c, p);
         },
         "SELECT c.Id_Vaca, c.N_Parto, c.*, v.Crotal, v.NombreC FROM T_Vacas v JOIN T_Cubriciones c ON "
         "v.Id_Vaca = "
         "c.Id_Vaca WHERE v.Id_Ganadero = 12 AND c.Año_Ref = 2025",
         {"SELECT IBR, BVD FROM T_R_IBRBVD WHERE Id_Ganadero = 12 AND Id_Vaca = ?1 AND AñoRef = 2025 AND "
          "NumParto = ?2",
          "SELECT Neospirosis FROM T_R_NEOSPIROSIS WHERE Id_Ganadero = 12 AND Id_Vaca = ?1 AND AñoRef = 2025 "
          "AND "
          "NumParto = ?2"},
         {{"AñoRef", "2025"}, {"Condicion", "(2025)"}}},
        {"rVacas",
         [](Conexion& c) {
             return LlenarVacas(c, {12, "2025", true, ""});
         },
         kVacas,
         {"SELECT N_Parto, Fecha_Parto FROM T_Cubriciones WHERE Id_Vaca = ?1 AND Año_Ref <= 2025 ORDER BY "
          "Año_Ref, "
          "N_Parto"},
         {{"Titulo", " (2025)"}}},
        {"ParamTecnicos",
         [](Conexion& c) { return LlenarParametrosTecnicos(c, kAño); },
         nullptr,
         {},
         {{"Inicio", "1/12/24"}, {"Fin", "1/12/25"}}},
        {"ResumenIT",
         [](Conexion& c) { return LlenarResumen(c, 12, AñosConCubriciones(c, 12)); },
         nullptr,
         {},
         {}},
        {"MANEJO", [](Conexion& c) { return LlenarManejo(c, kAño); }, nullptr, {}, kAñoRef},
    };
    return todos;
}

struct Granja {
    QTemporaryDir carpeta;
    std::string fichero = carpeta.filePath(QStringLiteral("granja.mdb")).toStdString();
    Conexion c;
    sqlite3* s = nullptr;
    Granja() {
        banco::HacerRebaño(fichero);
        c.AbrirFichero(fichero, kClave);
        c.Execute("UPDATE T_Cubriciones SET IPR_CP = 43 WHERE IEPc > 400");
        sqlite3_open(fichero.c_str(), &s);
        InicializarConexion(s);
    }
    ~Granja() { sqlite3_close(s); }
};

Granja& LaGranja() {
    static Granja g;
    return g;
}

void Almacen(benchmark::State& estado, const Informe& i) {
    auto& g = LaGranja();
    for (auto _ : estado)
        if (!i.llenar(g.c))
            estado.SkipWithError("nothing to report");
    estado.counters["filas"] = static_cast<double>(Recordset(g.c, "SELECT C1 FROM X_Temp").Contar());
}

// A statement of the bare API, told of failures by stopping.
class Sentencia {
public:
    Sentencia(sqlite3* s, const std::string& sql) {
        if (sqlite3_prepare_v2(s, sql.c_str(), -1, &m_p, nullptr) != SQLITE_OK)
            qFatal("%s: %s", sql.c_str(), sqlite3_errmsg(s));
    }
    ~Sentencia() { sqlite3_finalize(m_p); }
    Sentencia(Sentencia&& otra) noexcept
        : m_p(std::exchange(otra.m_p, nullptr)) {}
    Sentencia(const Sentencia&) = delete;
    sqlite3_stmt* operator*() const { return m_p; }
    // Reads all rows to the last column.
    void Leer(const std::function<void()>& fila = {}) const {
        while (sqlite3_step(m_p) == SQLITE_ROW) {
            for (int k = 0; k < sqlite3_column_count(m_p); ++k)
                benchmark::DoNotOptimize(sqlite3_column_text(m_p, k));
            if (fila)
                fila();
        }
        sqlite3_reset(m_p);
    }

private:
    sqlite3_stmt* m_p = nullptr;
};

// The rows that the report has left, written anew after the same reading; then the two passes over them.
void Directo(benchmark::State& estado, const Informe& i) {
    auto& g = LaGranja();
    i.llenar(g.c);
    std::vector<std::vector<std::string>> filas;
    {
        const Sentencia leer(g.s, "SELECT * FROM X_Temp");
        while (sqlite3_step(*leer) == SQLITE_ROW) {
            auto& f = filas.emplace_back();
            for (int k = 0; k < sqlite3_column_count(*leer); ++k) {
                const auto* t = reinterpret_cast<const char*>(sqlite3_column_text(*leer, k));
                f.emplace_back(t ? t : "");
            }
        }
    }
    std::string huecos = "?";
    for (std::size_t k = 1; k < filas.front().size(); ++k)
        huecos += ",?";
    for (auto _ : estado) {
        sqlite3_exec(g.s, "BEGIN IMMEDIATE; DELETE FROM X_Temp", nullptr, nullptr, nullptr);
        {
            const Sentencia fuera(g.s, i.recorrido);
            const Sentencia alta(g.s, "INSERT INTO X_Temp VALUES (" + huecos + ")");
            std::vector<Sentencia> dentro;
            for (const char* sql : i.porFila)
                dentro.emplace_back(g.s, sql);
            fuera.Leer([&] {
                for (const auto& d : dentro) {
                    for (int k = 1; k <= sqlite3_bind_parameter_count(*d); ++k)
                        sqlite3_bind_value(*d, k, sqlite3_column_value(*fuera, k - 1));
                    d.Leer();
                }
            });
            for (const auto& f : filas) {
                for (std::size_t k = 0; k < f.size(); ++k)
                    if (f[k].empty())
                        sqlite3_bind_null(*alta, static_cast<int>(k) + 1);
                    else
                        sqlite3_bind_text(*alta, static_cast<int>(k) + 1, f[k].c_str(),
                                          static_cast<int>(f[k].size()), SQLITE_TRANSIENT);
                sqlite3_step(*alta);
                sqlite3_reset(*alta);
            }
            for (int pasada = 0; pasada < 2; ++pasada)
                Sentencia(g.s, "SELECT * FROM X_Temp").Leer();
        }
        sqlite3_exec(g.s, "COMMIT", nullptr, nullptr, nullptr);
    }
}

void Pdf(benchmark::State& estado, const Informe& i) {
    auto& g = LaGranja();
    i.llenar(g.c);
    const LectorDeTablas tablas(g.c);
    PeticionInforme peticion;
    peticion.parametros = {i.parametros.begin(), i.parametros.end()};
    std::size_t paginas = 0;
    for (auto _ : estado) {
        const auto hallada = BuscarDisposicion(QString::fromUtf8(i.nombre) + QStringLiteral(".rpt"));
        const auto informe = GenerarInforme(hallada.disposicion, tablas, peticion);
        paginas = informe.paginas.paginas.size();
        GuardarPdf(informe, g.carpeta.filePath(QStringLiteral("i.pdf")));
    }
    estado.counters["páginas"] = static_cast<double>(paginas);
}

const bool kRegistrados = [] {
    for (const auto& i : Todos()) {
        const std::string nombre = i.nombre;
        benchmark::RegisterBenchmark((nombre + "Almacen").c_str(), Almacen, std::cref(i))
            ->Unit(benchmark::kMillisecond);
        if (i.recorrido)
            benchmark::RegisterBenchmark((nombre + "Directo").c_str(), Directo, std::cref(i))
                ->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark((nombre + "Pdf").c_str(), Pdf, std::cref(i))
            ->Unit(benchmark::kMillisecond);
    }
    return true;
}();

} // namespace
