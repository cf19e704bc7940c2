#pragma once

#include "store/Valor.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace pastorix {

// A statement in SQLite's own words, finalized by its destructor. What fails throws ErrorAlmacen; `sentencia`, when given, is the
// statement that the error names in place of the SQL.
class Instruccion {
public:
    Instruccion() = default;
    Instruccion(sqlite3* base, std::string_view sql, std::string_view sentencia = {}, bool duradera = false);

    explicit operator bool() const { return m_s != nullptr; }
    sqlite3_stmt* Manejador() const { return m_s.get(); }

    bool Fila();      // goes to the next row; false at the end
    void Correr();    // runs to the end, ready for the next run
    void Reiniciar(); // gives up the run at hand; the bound values stay
    Instruccion& Enlazar(int lugar, const Valor& v);

    std::int64_t Entero(int columna) const;
    std::string Texto(int columna) const; // "" for Null

private:
    struct Cierra {
        void operator()(sqlite3_stmt* s) const;
    };
    std::unique_ptr<sqlite3_stmt, Cierra> m_s;
    std::string m_sentencia;
};

// Runs statements of our own that give no rows.
void EjecutarDirecto(sqlite3* base, const std::string& sql);

void Enlazar(sqlite3_stmt* s, int lugar, const Valor& v);

} // namespace pastorix
