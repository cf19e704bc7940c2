#pragma once

#include "access/Paginas.h"

#include <cstdint>
#include <unordered_map>
#include <vector>

namespace pastorix::access {

// Memos and OLE values: fetches their bytes from where the row says. Each row of a long value serves one cell of one table;
// a second use is damage (unchecked it would let a small file unfold to any size), so the uses are kept here.
class ValoresLargos {
public:
    // One walk over one table, which is named by the page of its definition.
    struct Vuelta {
        std::uint32_t tabla = 0;
        std::uint64_t numero = 0;
    };

    explicit ValoresLargos(const Paginas& paginas)
        : m_paginas(paginas) {}

    // A new walk: it may read the values of its table again, never those that were read for another one.
    Vuelta Empezar(std::uint32_t tabla) { return {tabla, ++m_vueltas}; }

    // The bytes of a value; `celda` is what the row holds of it. The view lies in the file or in `hueco`, which is used for
    // values in several parts. Throws Daño.
    Vista Leer(const Lector& celda, const Vuelta& vuelta, std::vector<std::uint8_t>& hueco);

private:
    Lector Parte(PunteroFila donde, const Vuelta& vuelta);
    Vista Cadena(PunteroFila primera, std::uint64_t largo, const Vuelta& vuelta,
                 std::vector<std::uint8_t>& hueco);

    const Paginas& m_paginas;
    std::unordered_map<std::uint32_t, Vuelta> m_usos; // last use, by row pointer
    std::uint64_t m_vueltas = 0;
};

} // namespace pastorix::access
