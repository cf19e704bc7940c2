#pragma once

#include "access/BaseAccess.h"
#include "access/Paginas.h"
#include "access/Texto.h"

#include <cstdint>
#include <string>
#include <vector>

namespace pastorix::access {

// What the rows need to know of a column.
struct SitioColumna {
    std::uint8_t tipo = 0;       // as the file has it; see access::Tipo
    std::uint16_t numero = 0;    // bit in the null mask, never reused: gaps are deleted columns
    bool fija = false;           // this alone tells fixed from variable, never the type
    std::uint16_t lugar = 0;     // variable columns: place in the row's offset table
    std::uint16_t lugarFijo = 0; // fixed columns: offset in the fixed part of the row
    std::uint16_t longitud = 0;  // bytes
    std::uint8_t escala = 0;     // decimals of a decimal number
};

struct Definicion {
    std::uint32_t pagina = 0;
    std::uint32_t filas = 0;  // as declared, a hint
    unsigned maxColumnas = 0; // columns ever created
    PunteroFila mapa;         // of the pages owned
    std::vector<SitioColumna> sitios;
    std::vector<Columna> columnas; // one for each of `sitios`, in the same order
};

// Reads the definition that begins on a page. `usadas` has a mark per page of the file: a page belongs to one definition only,
// so that chains that loop or meet are damage and the work is bounded by the file's size. Throws Daño.
Definicion LeerDefinicion(const Paginas& paginas, const Textos& textos, std::uint32_t pagina,
                          std::vector<bool>& usadas);

} // namespace pastorix::access
