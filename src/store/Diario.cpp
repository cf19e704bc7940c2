#define SQLITE_ENABLE_PREUPDATE_HOOK
#include "store/Diario.h"

#include "store/Catalogo.h"
#include "store/Conexion.h"
#include "store/Errores.h"
#include "store/Instruccion.h"
#include "store/Textos.h"

#include <sqlite3.h>

#include <algorithm>
#include <cstring>
#include <map>
#include <utility>

namespace pastorix {

namespace {

constexpr std::size_t kFilasDeUnaAccion = 5000; // more is an import, not a save
constexpr std::size_t kAcciones = 500;

bool Interesa(std::string_view tabla) {
    return !IgualSinCaso(tabla.substr(0, 2), "X_") && !IgualSinCaso(tabla, "Historial");
}

bool Iguales(const FilaGuardada& a, sqlite3_stmt* fila) {
    if (sqlite3_column_count(fila) != static_cast<int>(a.size()))
        return false;
    for (int i = 0; i < static_cast<int>(a.size()); ++i) {
        auto* x = a[static_cast<std::size_t>(i)].get();
        auto* y = sqlite3_column_value(fila, i);
        const int clase = sqlite3_value_type(x);
        const auto numero = [](int c) { return c == SQLITE_INTEGER || c == SQLITE_FLOAT; };
        // A whole number on its way into a column of decimals may be told as one or the other.
        if (numero(clase) && numero(sqlite3_value_type(y)) &&
            sqlite3_value_double(x) == sqlite3_value_double(y) &&
            sqlite3_value_int64(x) == sqlite3_value_int64(y))
            continue;
        if (clase != sqlite3_value_type(y) || numero(clase))
            return false;
        if (clase != SQLITE_NULL && (sqlite3_value_bytes(x) != sqlite3_value_bytes(y) ||
                                     std::memcmp(sqlite3_value_blob(x), sqlite3_value_blob(y),
                                                 static_cast<std::size_t>(sqlite3_value_bytes(x))) != 0))
            return false;
    }
    return true;
}

std::string EntreComillas(const std::string& nombre) {
    return '"' + nombre + '"'; // names of tables and columns hold none
}

// Whether the row stands as it is told; with an empty one, whether there is none.
bool Esta(sqlite3* base, const std::string& tabla, std::int64_t fila, const FilaGuardada& como) {
    Instruccion s(base, "SELECT * FROM " + EntreComillas(tabla) + " WHERE rowid = ?");
    sqlite3_bind_int64(s.Manejador(), 1, fila);
    const bool hay = s.Fila();
    return como.empty() ? !hay : hay && Iguales(como, s.Manejador());
}

void Poner(sqlite3* base, const std::string& tabla, std::int64_t fila, const FilaGuardada& como) {
    if (como.empty()) {
        Instruccion s(base, "DELETE FROM " + EntreComillas(tabla) + " WHERE rowid = ?");
        sqlite3_bind_int64(s.Manejador(), 1, fila);
        return s.Correr();
    }
    Instruccion columnas(base, "SELECT * FROM " + EntreComillas(tabla) + " LIMIT 0");
    std::string nombres = "rowid";
    std::string lugares = "?";
    for (int i = 0; i < sqlite3_column_count(columnas.Manejador()); ++i) {
        nombres += ", " + EntreComillas(sqlite3_column_name(columnas.Manejador(), i));
        lugares += ", ?";
    }
    Instruccion s(base,
                  "INSERT INTO " + EntreComillas(tabla) + " (" + nombres + ") VALUES (" + lugares + ")");
    sqlite3_bind_int64(s.Manejador(), 1, fila);
    for (std::size_t i = 0; i < como.size(); ++i)
        sqlite3_bind_value(s.Manejador(), static_cast<int>(i) + 2, como[i].get());
    s.Correr();
}

void Devolver(sqlite3* base, const std::vector<FilaCambiada>& filas) {
    for (const auto& f : filas)
        if (!Esta(base, f.tabla, f.fila, f.despues))
            throw ErrorAlmacen(CodigoError::Restriccion,
                               "No se puede deshacer: los datos han cambiado después (tabla " + f.tabla +
                                   ")");
    for (const auto& f : filas) // first they all go: rows may have changed places under a key
        if (!f.despues.empty())
            Poner(base, f.tabla, f.fila, {});
    for (const auto& f : filas)
        if (!f.antes.empty())
            Poner(base, f.tabla, f.fila, f.antes);
}

} // namespace

void LiberaValor::operator()(sqlite3_value* valor) const {
    sqlite3_value_free(valor);
}

struct Diario::Ganchos {
    static void AntesDeCambiar(void* yo, sqlite3* base, int que, const char* origen, const char* tabla,
                               sqlite3_int64 fila, sqlite3_int64 nueva) {
        auto& diario = *static_cast<Diario*>(yo);
        if (diario.m_demasiadas || std::strcmp(origen, "main") != 0 || !Interesa(tabla))
            return;
        const auto leer = [&](auto funcion) {
            FilaGuardada valores;
            for (int i = 0; i < sqlite3_preupdate_count(base); ++i) {
                sqlite3_value* v = nullptr;
                funcion(base, i, &v);
                valores.emplace_back(sqlite3_value_dup(v));
            }
            return valores;
        };
        FilaCambiada f{tabla, que == SQLITE_INSERT ? nueva : fila, {}, {}};
        if (que != SQLITE_INSERT)
            f.antes = leer(sqlite3_preupdate_old);
        if (que != SQLITE_DELETE)
            f.despues = leer(sqlite3_preupdate_new);
        diario.Tomar(std::move(f));
    }
    static int AlConfirmar(void* yo) {
        static_cast<Diario*>(yo)->Cerrar();
        return 0;
    }
    static void AlDeshacer(void* yo) {
        auto& diario = *static_cast<Diario*>(yo);
        diario.m_pendientes.clear();
        diario.m_marcas.clear();
        diario.m_demasiadas = false;
    }
};

Diario::Diario(Conexion& conexion, std::function<Fecha()> ahora)
    : m_conexion(conexion)
    , m_ahora(std::move(ahora)) {
    m_conexion.PonerDiario(this);
}

Diario::~Diario() {
    if (m_base) {
        sqlite3_preupdate_hook(m_base, nullptr, nullptr);
        sqlite3_commit_hook(m_base, nullptr, nullptr);
        sqlite3_rollback_hook(m_base, nullptr, nullptr);
    }
    m_conexion.PonerDiario(nullptr);
}

void Diario::Seguir(sqlite3* base) {
    m_base = base;
    Ganchos::AlDeshacer(this);
    m_acciones.clear();
    if (!base)
        return;
    sqlite3_preupdate_hook(base, Ganchos::AntesDeCambiar, this);
    sqlite3_commit_hook(base, Ganchos::AlConfirmar, this);
    sqlite3_rollback_hook(base, Ganchos::AlDeshacer, this);
}

void Diario::Tomar(FilaCambiada fila) {
    m_pendientes.push_back(std::move(fila));
    m_demasiadas = m_pendientes.size() > kFilasDeUnaAccion;
}

void Diario::Marcar() {
    m_marcas.push_back(m_pendientes.size());
}
void Diario::SoltarMarca() {
    if (!m_marcas.empty())
        m_marcas.pop_back();
}
void Diario::VolverALaMarca() {
    if (m_marcas.empty())
        return; // the whole unit is gone already
    m_pendientes.resize(std::min(m_marcas.back(), m_pendientes.size()));
    m_marcas.pop_back();
}

void Diario::Olvidar(std::size_t desde) {
    m_acciones.resize(std::min(desde, m_acciones.size()));
}

// The unit is about to be committed: of each row what it was at first and what it is at last, without those that are as they were.
void Diario::Cerrar() {
    Accion accion;
    if (!m_demasiadas) {
        std::map<std::pair<std::string, std::int64_t>, std::size_t> sitios;
        for (auto& f : m_pendientes) {
            const auto [sitio, nuevo] = sitios.try_emplace({f.tabla, f.fila}, accion.filas.size());
            if (nuevo)
                accion.filas.push_back(std::move(f));
            else
                accion.filas[sitio->second].despues = std::move(f.despues);
        }
        std::erase_if(accion.filas,
                      [](const FilaCambiada& f) { return f.antes.empty() && f.despues.empty(); });
    }
    Ganchos::AlDeshacer(this);
    if (accion.filas.empty())
        return;
    accion.momento = m_ahora();
    if (m_acciones.size() == kAcciones)
        m_acciones.erase(m_acciones.begin());
    m_acciones.push_back(std::move(accion));
}

void Diario::Deshacer(std::size_t accion) {
    // Its own rows go into the diary as they are put back, which may move the units about.
    auto suya = std::move(m_acciones.at(accion));
    const auto sitio = static_cast<std::ptrdiff_t>(accion);
    m_acciones.erase(m_acciones.begin() + sitio);
    try {
        TodoONada(m_conexion, [&] { Devolver(m_base, suya.filas); });
    } catch (...) { // it stands as it was, and can be tried again
        m_acciones.insert(m_acciones.begin() + sitio, std::move(suya));
        throw;
    }
}

std::string Diario::Texto(const FilaCambiada& fila, const std::string& columna) const {
    const auto& valores = fila.despues.empty() ? fila.antes : fila.despues;
    const auto* tabla = m_conexion.Esquema().Buscar(fila.tabla);
    const int lugar = tabla ? tabla->Buscar(columna) : -1;
    if (lugar < 0 || static_cast<std::size_t>(lugar) >= valores.size())
        return {};
    auto* v = valores[static_cast<std::size_t>(lugar)].get();
    if (sqlite3_value_type(v) == SQLITE_FLOAT)
        return TextoNumero(sqlite3_value_double(v));
    const auto* texto = reinterpret_cast<const char*>(sqlite3_value_text(v));
    return texto ? texto : "";
}

} // namespace pastorix
