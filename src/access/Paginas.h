#pragma once

#include "access/Cabecera.h"
#include "access/Lector.h"

#include <cstdint>
#include <string>
#include <vector>

namespace pastorix::access {

enum class TipoPagina : std::uint8_t { Datos = 1, Definicion = 2, MapaDeBits = 5 };

// Where a row lies. In the file: row number in the lowest byte, page above it.
struct PunteroFila {
    std::uint32_t valor = 0;
    std::uint32_t Pagina() const { return valor >> 8; }
    std::uint32_t Fila() const { return valor & 0xFFU; }
};

// Marks of a row in the row table of its page.
inline constexpr unsigned filaTrasladada = 0x4000; // the row holds the pointer to its new place
inline constexpr unsigned filaOculta =
    0x8000; // new place of such a row or, with the mark above, a deleted row

struct FilaCruda {
    Lector bytes;
    unsigned marcas = 0;
};

// A page of rows whose row table has been checked: every row lies behind the table and none overlaps another.
class PaginaDeDatos {
public:
    PaginaDeDatos(const Lector& pagina, const Formato& formato);

    unsigned Filas() const { return m_filas; }
    // Throws Daño when there is no such row.
    FilaCruda Fila(unsigned numero) const;
    // Owner: page of the definition of a table, or `dueñoValoresLargos`.
    std::uint32_t Dueño() const { return m_pagina.U32(4); }
    // Throws Daño when the row table is not sound.
    void Comprobar() const;

private:
    std::uint16_t Entrada(unsigned numero) const {
        return m_pagina.U16(m_formato->tablaFilas + std::size_t{2} * numero);
    }

    Lector m_pagina;
    const Formato* m_formato;
    unsigned m_filas;
};

inline constexpr std::uint32_t dueñoValoresLargos = 0x4C41564C; // "LVAL"

// The whole file in memory, cut into pages and decoded. Owns the bytes that every Lector of the room looks at. Not for two
// threads at once: it notes which pages it has checked.
class Paginas {
public:
    // `contenido`: whole pages only, at least three; encoded pages are decoded here with the header's key.
    Paginas(std::vector<std::uint8_t> contenido, const Cabecera& cabecera);

    const Formato& DeFormato() const { return *m_formato; }
    std::uint32_t Cuantas() const { return m_cuantas; }
    std::uint64_t Bytes() const { return m_contenido.size(); }

    // A page to which something in the file points. Throws Daño when it is page 0, past the end or of another type.
    Lector Pagina(std::uint32_t numero, TipoPagina tipo) const;
    // The same for a page of rows, its row table checked (once per page).
    PaginaDeDatos Datos(std::uint32_t numero) const;

private:
    std::vector<std::uint8_t> m_contenido;
    const Formato* m_formato;
    std::uint32_t m_cuantas;
    mutable std::vector<bool> m_comprobadas; // pages of rows whose row table is known to be sound
};

} // namespace pastorix::access
