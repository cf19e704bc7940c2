#include "store/Filas.h"

#include <sqlite3.h>

#include <algorithm>

namespace pastorix {

Celda Filas::CeldaTexto(std::string_view t) {
    Celda c;
    c.clase = Celda::Clase::Texto;
    c.largo = static_cast<std::uint32_t>(t.size());
    c.lugar = m_textos.Cuantos();
    std::copy(t.begin(), t.end(), m_textos.Añadir(t.size()));
    return c;
}

void Filas::Añadir(sqlite3_stmt* s) {
    auto* celda = m_celdas.Añadir(m_columnas);
    for (int i = 0; i < static_cast<int>(m_columnas); ++i, ++celda) {
        *celda = {};
        switch (sqlite3_column_type(s, i)) {
        case SQLITE_NULL:
            break;
        case SQLITE_INTEGER:
            celda->clase = Celda::Clase::Entero;
            celda->entero = sqlite3_column_int64(s, i);
            break;
        case SQLITE_FLOAT:
            celda->clase = Celda::Clase::Real;
            celda->real = sqlite3_column_double(s, i);
            break;
        default: {
            const auto* t = static_cast<const char*>(sqlite3_column_blob(s, i));
            *celda = CeldaTexto({t ? t : "", static_cast<std::size_t>(sqlite3_column_bytes(s, i))});
        }
        }
    }
    ++m_filas;
}

std::size_t Filas::Añadir() {
    auto* celdas = m_celdas.Añadir(m_columnas);
    std::fill(celdas, celdas + m_columnas, Celda());
    return m_filas++;
}

void Filas::Poner(std::size_t fila, std::size_t columna, const Valor& v) {
    struct Visita {
        Filas& filas;
        Celda operator()(std::monostate) const { return {}; }
        Celda operator()(std::int64_t n) const {
            Celda c;
            c.clase = Celda::Clase::Entero;
            c.entero = n;
            return c;
        }
        Celda operator()(double n) const {
            Celda c;
            c.clase = Celda::Clase::Real;
            c.real = n;
            return c;
        }
        Celda operator()(Fecha f) const { return filas.CeldaTexto(FechaIso(f)); }
        Celda operator()(const std::string& t) const { return filas.CeldaTexto(t); }
    };
    const Celda c = std::visit(Visita{*this}, v); // first: it may move the store of texts
    m_celdas.Datos()[fila * m_columnas + columna] = c;
}

void Filas::Vaciar() {
    m_celdas.Vaciar();
    m_textos.Vaciar();
    m_filas = 0;
}

} // namespace pastorix
