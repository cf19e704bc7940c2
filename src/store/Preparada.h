#pragma once

#include "store/Traductor.h"
#include "store/Valor.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace pastorix {

// A statement shape made ready once and run many times with other literals. Keeps the catalogue it was translated with alive.
class Preparada {
public:
    Preparada(sqlite3* base, std::shared_ptr<const Catalogo> catalogo, Traduccion traduccion,
              const std::string& sentencia);
    ~Preparada();
    Preparada(const Preparada&) = delete;
    Preparada& operator=(const Preparada&) = delete;

    const Traduccion& De() const { return m_traduccion; }
    sqlite3_stmt* Manejador() const { return m_sentencia; }

    // Column of the result by name without regard to case, "T_Vacas.Nombre" with its table; the first of two equal names; -1.
    int Columna(std::string_view nombre) const;

private:
    std::shared_ptr<const Catalogo> m_catalogo;
    Traduccion m_traduccion;
    sqlite3_stmt* m_sentencia = nullptr;
    std::vector<std::pair<std::uint32_t, int>> m_porNombre; // open addressing on the folded name; -1 is free
};

// Turns SQLite's result code into our error. `sentencia` goes with it.
[[noreturn]] void LanzarError(sqlite3* base, int codigo, std::string_view sentencia);

// Runs a statement of our own in SQLite's own words. Throws ErrorAlmacen.
void EjecutarDirecto(sqlite3* base, const std::string& sql);

void Enlazar(sqlite3_stmt* s, int lugar, const Valor& v);

} // namespace pastorix
