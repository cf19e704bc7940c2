#include "store/BasePropia.h"

#include "store/ErroresSqlite.h"
#include "store/Ficheros.h"
#include "store/Instruccion.h"
#include "store/Textos.h"

#include <sqlite3.h>

#include <cmath>

namespace pastorix {

namespace {

std::string_view Vista(sqlite3_value* v) {
    const auto* t = reinterpret_cast<const char*>(sqlite3_value_text(v));
    return t ? std::string_view(t, static_cast<std::size_t>(sqlite3_value_bytes(v))) : std::string_view();
}

void FuncionLike(sqlite3_context* c, int, sqlite3_value** v) {
    if (sqlite3_value_type(v[0]) == SQLITE_NULL || sqlite3_value_type(v[1]) == SQLITE_NULL)
        return; // Null, as any comparison with Null
    sqlite3_result_int(c, Parecido(Vista(v[0]), Vista(v[1])) ? 1 : 0);
}

int Colacion(void*, int na, const void* a, int nb, const void* b) {
    return CompararEspañol({static_cast<const char*>(a), static_cast<std::size_t>(na)},
                           {static_cast<const char*>(b), static_cast<std::size_t>(nb)});
}

// Sample standard deviation by Welford's recurrence; Null below two values.
struct Desviacion {
    std::int64_t n;
    double media;
    double suma;
};

void PasoStDev(sqlite3_context* c, int, sqlite3_value** v) {
    if (sqlite3_value_type(v[0]) == SQLITE_NULL)
        return;
    auto* d = static_cast<Desviacion*>(sqlite3_aggregate_context(c, sizeof(Desviacion)));
    if (!d)
        return sqlite3_result_error_nomem(c);
    const double x = sqlite3_value_double(v[0]);
    const double delta = x - d->media;
    ++d->n;
    d->media += delta / static_cast<double>(d->n);
    d->suma += delta * (x - d->media);
}

void FinStDev(sqlite3_context* c) {
    const auto* d = static_cast<Desviacion*>(sqlite3_aggregate_context(c, 0));
    if (d && d->n > 1)
        sqlite3_result_double(c, std::sqrt(d->suma / static_cast<double>(d->n - 1)));
}

} // namespace

void CierraBase::operator()(sqlite3* base) const {
    sqlite3_close_v2(base);
}

BasePropia AbrirBasePropia(const std::filesystem::path& fichero, Modo modo) {
    int banderas = SQLITE_OPEN_NOMUTEX;
    switch (modo) {
    case Modo::Lectura:
        banderas |= SQLITE_OPEN_READONLY;
        break;
    case Modo::Nueva:
        banderas |= SQLITE_OPEN_CREATE;
        [[fallthrough]];
    case Modo::Escritura:
        banderas |= SQLITE_OPEN_READWRITE;
        break;
    }
    sqlite3* cruda = nullptr;
    const int codigo = sqlite3_open_v2(TextoDeRuta(fichero).c_str(), &cruda, banderas, nullptr);
    BasePropia base(cruda);
    if (codigo != SQLITE_OK)
        LanzarError(cruda, codigo, {});
    InicializarConexion(cruda);
    return base;
}

void InicializarConexion(sqlite3* base) {
    sqlite3_extended_result_codes(base, 1);
    sqlite3_busy_timeout(base, 1500);
    sqlite3_db_config(base, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    sqlite3_db_config(base, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
    sqlite3_db_config(base, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(base, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_db_config(base, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
    sqlite3_db_config(base, SQLITE_DBCONFIG_ENABLE_VIEW, 0, nullptr);
    constexpr int kFuncion = SQLITE_UTF8 | SQLITE_DETERMINISTIC;
    sqlite3_create_function_v2(base, "like", 2, kFuncion, nullptr, FuncionLike, nullptr, nullptr, nullptr);
    sqlite3_create_function_v2(base, "stdev", 1, kFuncion, nullptr, nullptr, PasoStDev, FinStDev, nullptr);
    sqlite3_create_collation_v2(base, "ES", SQLITE_UTF8, nullptr, Colacion, nullptr);
    // Rollback journal: the one file is complete between two actions, whoever carries it away.
    EjecutarDirecto(
        base,
        "PRAGMA mmap_size=0; PRAGMA cell_size_check=ON; PRAGMA synchronous=FULL; PRAGMA temp_store=MEMORY; "
        "PRAGMA cache_size=-16000; PRAGMA foreign_keys=OFF");
}

} // namespace pastorix
