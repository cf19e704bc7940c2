#include "store/Esquema.h"

#include "store/Errores.h"
#include "store/Ficheros.h"
#include "store/Preparada.h"
#include "store/Textos.h"

#include <sqlite3.h>

#include <QByteArray>
#include <QCryptographicHash>
#include <QList>
#include <QRandomGenerator>

#include <cmath>
#include <memory>

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

QByteArray Resumen(const QByteArray& sal, std::string_view clave) {
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(sal);
    hash.addData(QByteArray(clave.data(), static_cast<qsizetype>(clave.size())));
    return hash.result().toHex();
}

std::string LeerMeta(sqlite3* base, const char* nombre) {
    sqlite3_stmt* s = nullptr;
    std::string valor;
    constexpr const char* kSql = "SELECT valor FROM _pastorix WHERE nombre = ?";
    int codigo = sqlite3_prepare_v2(base, kSql, -1, &s, nullptr);
    if (codigo == SQLITE_OK) {
        sqlite3_bind_text(s, 1, nombre, -1, SQLITE_STATIC);
        codigo = sqlite3_step(s);
        if (codigo == SQLITE_ROW)
            if (const auto* t = sqlite3_column_text(s, 0))
                valor = reinterpret_cast<const char*>(t);
    }
    sqlite3_finalize(s);
    // Without the table the file is simply not ours; damage and locks are something else.
    if (codigo != SQLITE_ROW && codigo != SQLITE_DONE && codigo != SQLITE_ERROR)
        LanzarError(base, codigo, kSql);
    return valor;
}

// The statements of the delivered SQL, comments left out.
std::vector<std::string> Sentencias(ClaseDeBase clase) {
    std::vector<std::string> lista;
    std::string actual;
    std::string_view sql = SqlDeEsquema(clase);
    while (!sql.empty()) {
        const auto fin = std::min(sql.find('\n'), sql.size() - 1);
        const auto linea = sql.substr(0, fin + 1);
        sql.remove_prefix(fin + 1);
        if (linea.starts_with("--"))
            continue;
        actual += linea;
        if (linea.ends_with(";\n")) {
            const auto principio = actual.find_first_not_of('\n');
            lista.push_back(actual.substr(principio, actual.size() - principio - 2));
            actual.clear();
        }
    }
    return lista;
}

} // namespace

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

void CrearTablas(sqlite3* base, ClaseDeBase clase, std::string_view clave) {
    EjecutarDirecto(base, "PRAGMA application_id=" + std::to_string(kIdentificadorAplicacion));
    EjecutarDirecto(base, "CREATE TABLE _pastorix (nombre TEXT PRIMARY KEY, valor TEXT)");
    for (const auto& s : Sentencias(clase))
        if (s.starts_with("CREATE TABLE"))
            EjecutarDirecto(base, s);
    quint32 azar[4];
    QRandomGenerator::system()->fillRange(azar);
    const auto sal = QByteArray(reinterpret_cast<const char*>(azar), sizeof azar).toHex();
    const auto sello = sal + ":" + Resumen(sal, clave);
    EjecutarDirecto(base, "INSERT INTO _pastorix VALUES ('formato', '1'), ('clase', '" +
                              std::string(clase == ClaseDeBase::Principal ? "principal" : "toros") +
                              "'), ('sello', '" + sello.toStdString() + "')");
}

std::vector<std::string> CrearIndices(sqlite3* base, ClaseDeBase clase) {
    std::vector<std::string> sinClave;
    for (const auto& s : Sentencias(clase)) {
        if (s.starts_with("CREATE INDEX")) {
            EjecutarDirecto(base, s);
        } else if (s.starts_with("CREATE UNIQUE INDEX")) {
            const int codigo = sqlite3_exec(base, s.c_str(), nullptr, nullptr, nullptr);
            if ((codigo & 0xFF) == SQLITE_CONSTRAINT) {
                auto llano = s;
                EjecutarDirecto(base, llano.erase(7, 7)); // "UNIQUE "
                const auto tabla = s.find("clave_") + 6;
                sinClave.push_back(s.substr(tabla, s.find(' ', tabla) - tabla));
            } else if (codigo != SQLITE_OK) {
                LanzarError(base, codigo, s);
            }
        }
    }
    return sinClave;
}

SelloDeBase LeerSello(sqlite3* base, std::string_view clave) {
    SelloDeBase sello;
    sqlite3_stmt* s = nullptr;
    if (sqlite3_prepare_v2(base, "PRAGMA application_id", -1, &s, nullptr) == SQLITE_OK &&
        sqlite3_step(s) == SQLITE_ROW)
        sello.nuestra = sqlite3_column_int(s, 0) == kIdentificadorAplicacion;
    sqlite3_finalize(s);
    const auto guardado = QByteArray::fromStdString(LeerMeta(base, "sello"));
    const auto partes = guardado.split(':');
    sello.nuestra = sello.nuestra && partes.size() == 2;
    sello.claveCorrecta = partes.size() == 2 && Resumen(partes[0], clave) == partes[1];
    sello.clase = LeerMeta(base, "clase") == "toros" ? ClaseDeBase::Toros : ClaseDeBase::Principal;
    return sello;
}

void CrearBase(const std::filesystem::path& fichero, ClaseDeBase clase, std::string_view clave) {
    if (std::filesystem::exists(fichero))
        throw ErrorAlmacen(CodigoError::DiscoOFichero, "El fichero ya existe: " + TextoDeRuta(fichero));
    const FicheroTemporal temporal(NombreTemporal(fichero));
    sqlite3* base = nullptr;
    const int codigo = sqlite3_open_v2(TextoDeRuta(temporal.Nombre()).c_str(), &base,
                                       SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    std::unique_ptr<sqlite3, decltype(&sqlite3_close)> cierre(base, &sqlite3_close);
    if (codigo != SQLITE_OK)
        LanzarError(base, codigo, {});
    InicializarConexion(base);
    EjecutarDirecto(base, "BEGIN");
    CrearTablas(base, clase, clave);
    CrearIndices(base, clase);
    if (clase == ClaseDeBase::Principal)
        EjecutarDirecto(base,
                        "INSERT INTO T_Tetos VALUES (1, 'Anterior izquierdo'), (2, 'Anterior derecho'), "
                        "(3, 'Posterior izquierdo'), (4, 'Posterior derecho')");
    EjecutarDirecto(base, "COMMIT");
    cierre.reset();
    PonerEnSuSitio(temporal.Nombre(), fichero);
}

DiferenciasDeEsquema CompararEsquema(const Catalogo& catalogo, ClaseDeBase clase) {
    DiferenciasDeEsquema d;
    for (const auto& canonica : CatalogoCanonico(clase).Tablas()) {
        const auto* tabla = catalogo.Buscar(canonica.nombre);
        if (!tabla) {
            d.otroOrden = true;
            if (!canonica.nombre.starts_with("X_")) // scratch tables are made anew
                d.tablasAusentes.push_back(canonica.nombre);
            continue;
        }
        for (std::size_t i = 0; i < canonica.columnas.size(); ++i) {
            const auto& c = canonica.columnas[i];
            const int lugar = tabla->Buscar(c.nombre);
            if (lugar < 0)
                d.columnasAusentes.push_back(canonica.nombre + "." + c.nombre);
            d.otroOrden = d.otroOrden || lugar != static_cast<int>(i) ||
                          tabla->columnas[i].nombre != c.nombre ||
                          tabla->columnas[i].declaracion != c.declaracion;
        }
    }
    return d;
}

} // namespace pastorix
