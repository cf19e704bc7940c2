#pragma once

#include "store/Valor.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <new>
#include <string_view>
#include <type_traits>

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

// A row of plain things that grows by realloc: large ones are moved by their pages, without a copy, which is what a vector cannot do.
template <typename T>
class Bufer {
    static_assert(std::is_trivially_copyable_v<T>);

public:
    // Room for n more, uninitialised; valid until the next call.
    T* Añadir(std::size_t n) {
        if (m_n + n > m_caben) {
            m_caben = std::max({m_caben * 2, m_n + n, 256 / sizeof(T)});
            auto* nuevos = static_cast<T*>(std::realloc(m_datos.get(), m_caben * sizeof(T)));
            if (!nuevos)
                throw std::bad_alloc();
            static_cast<void>(m_datos.release()); // it has gone into the new one
            m_datos.reset(nuevos);
        }
        m_n += n;
        return m_datos.get() + (m_n - n);
    }
    std::size_t Cuantos() const { return m_n; }
    T* Datos() { return m_datos.get(); }
    const T* Datos() const { return m_datos.get(); }
    void Vaciar() { m_n = 0; }

private:
    struct Libera {
        void operator()(T* p) const { std::free(p); }
    };
    std::unique_ptr<T[], Libera> m_datos;
    std::size_t m_n = 0;
    std::size_t m_caben = 0;
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
    Celda Leer(std::size_t fila, std::size_t columna) const {
        return m_celdas.Datos()[fila * m_columnas + columna];
    }
    std::string_view Texto(const Celda& c) const { return {m_textos.Datos() + c.lugar, c.largo}; }
    void Vaciar();

private:
    Celda CeldaTexto(std::string_view t);

    std::size_t m_columnas = 0;
    std::size_t m_filas = 0;
    Bufer<Celda> m_celdas;
    Bufer<char> m_textos;
};

} // namespace pastorix
