#include "store/Instruccion.h"

#include "store/ErroresSqlite.h"

#include <sqlite3.h>

namespace pastorix {

void Instruccion::Cierra::operator()(sqlite3_stmt* s) const {
    sqlite3_finalize(s);
}

Instruccion::Instruccion(sqlite3* base, std::string_view sql, std::string_view sentencia, bool duradera)
    : m_sentencia(sentencia) {
    sqlite3_stmt* s = nullptr;
    const int codigo = sqlite3_prepare_v3(base, sql.data(), static_cast<int>(sql.size()),
                                          duradera ? SQLITE_PREPARE_PERSISTENT : 0, &s, nullptr);
    m_s.reset(s);
    if (codigo != SQLITE_OK)
        LanzarError(base, codigo, sentencia.empty() ? sql : sentencia);
}

bool Instruccion::Fila() {
    const int codigo = sqlite3_step(m_s.get());
    if (codigo == SQLITE_ROW)
        return true;
    sqlite3_reset(m_s.get()); // gives the same code again, and keeps the message
    if (codigo != SQLITE_DONE)
        LanzarError(sqlite3_db_handle(m_s.get()), codigo,
                    m_sentencia.empty() ? sqlite3_sql(m_s.get()) : m_sentencia);
    return false;
}

void Instruccion::Correr() {
    while (Fila())
        ;
}

void Instruccion::Reiniciar() {
    sqlite3_reset(m_s.get());
}

Instruccion& Instruccion::Enlazar(int lugar, const Valor& v) {
    pastorix::Enlazar(m_s.get(), lugar, v);
    return *this;
}

std::int64_t Instruccion::Entero(int columna) const {
    return sqlite3_column_int64(m_s.get(), columna);
}

std::string Instruccion::Texto(int columna) const {
    const auto* t = reinterpret_cast<const char*>(sqlite3_column_text(m_s.get(), columna));
    return t ? std::string(t, static_cast<std::size_t>(sqlite3_column_bytes(m_s.get(), columna)))
             : std::string();
}

void EjecutarDirecto(sqlite3* base, const std::string& sql) {
    if (const int codigo = sqlite3_exec(base, sql.c_str(), nullptr, nullptr, nullptr); codigo != SQLITE_OK)
        LanzarError(base, codigo, sql);
}

void Enlazar(sqlite3_stmt* s, int lugar, const Valor& v) {
    struct Visita {
        sqlite3_stmt* s;
        int lugar;
        void operator()(std::monostate) const { sqlite3_bind_null(s, lugar); }
        void operator()(std::int64_t n) const { sqlite3_bind_int64(s, lugar, n); }
        void operator()(double n) const { sqlite3_bind_double(s, lugar, n); }
        void operator()(Fecha f) const { Texto(FechaIso(f)); }
        void operator()(const std::string& t) const { Texto(t); }
        void Texto(const std::string& t) const {
            sqlite3_bind_text64(s, lugar, t.data(), t.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
        }
    };
    std::visit(Visita{s, lugar}, v);
}

} // namespace pastorix
