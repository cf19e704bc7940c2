#pragma once

#include "store/Instruccion.h"
#include "store/Traductor.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace pastorix {

// A statement shape made ready once and run many times with other literals. Keeps the catalogue it was translated with alive.
class Preparada {
public:
    Preparada(sqlite3* base, std::shared_ptr<const Catalogo> catalogo, Traduccion traduccion,
              const std::string& sentencia);

    const Traduccion& De() const { return m_traduccion; }
    sqlite3_stmt* Manejador() const { return m_sentencia.Manejador(); }

    // Column of the result by name without regard to case, "T_Vacas.Nombre" with its table; the first of two equal names; -1.
    int Columna(std::string_view nombre) const;

private:
    std::shared_ptr<const Catalogo> m_catalogo;
    Traduccion m_traduccion;
    Instruccion m_sentencia;
    std::vector<std::pair<std::uint32_t, int>> m_porNombre; // open addressing on the folded name; -1 is free
};

// One run of it: binds the literals, and lets go of the rows whatever happens.
class Corrida {
public:
    Corrida(sqlite3_stmt* s, const std::vector<Valor>& valores);
    ~Corrida();
    Corrida(const Corrida&) = delete;
    Corrida& operator=(const Corrida&) = delete;
    int Paso(); // SQLite's result code

private:
    sqlite3_stmt* m_s;
};

} // namespace pastorix
