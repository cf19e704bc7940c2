#pragma once

#include "store/Valor.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

struct sqlite3_stmt;

namespace pastorix {

// One cell of a result, 16 bytes; a text lies in the store of its Filas.
struct Celda {
    enum class Clase : std::uint8_t { Nulo, Entero, Real, Texto };
    Clase clase = Clase::Nulo;
    std::uint32_t largo = 0; // of the text
    union {
        std::int64_t entero = 0;
        double real;
        std::size_t lugar; // of the text
    };
};

// The rows of an open query: cells row by row, texts one behind another. A changed text is put at the end; what it was before
// stays as waste until the query closes.
class Filas {
public:
    void Columnas(std::size_t n) { m_columnas = n; }
    std::size_t Contar() const { return m_filas; }

    void Añadir(sqlite3_stmt* s); // the statement's current row
    std::size_t Añadir();         // a row of Nulls; its number
    void Poner(std::size_t fila, std::size_t columna, const Valor& v);
    Celda Leer(std::size_t fila, std::size_t columna) const { return m_celdas[fila * m_columnas + columna]; }
    std::string_view Texto(const Celda& c) const { return {m_textos.data() + c.lugar, c.largo}; }
    void Vaciar();

private:
    Celda CeldaTexto(std::string_view t);

    std::size_t m_columnas = 0;
    std::size_t m_filas = 0;
    std::vector<Celda> m_celdas;
    std::string m_textos;
};

} // namespace pastorix
