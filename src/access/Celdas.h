#pragma once

#include "access/BaseAccess.h"
#include "access/Definicion.h"
#include "access/ValoresLargos.h"

#include <vector>

namespace pastorix::access {

// Splits the rows of one table, walked over once, into values. The cells are kept from row to row, so that a text finds the memory of the
// text before it.
class Celdas {
public:
    Celdas(const Definicion& definicion, const Formato& formato, const Textos& textos, ValoresLargos& largos);

    // Reads a live row. The cells stand until the next call. Throws Daño.
    const std::vector<Celda>& Leer(const Lector& fila);

private:
    bool Presente(const SitioColumna& sitio) const;
    void LeerLugares(const Lector& fila, std::uint64_t mascara);
    void LugaresJet3(const Lector& fila, std::uint64_t mascara);
    void LugaresJet4(const Lector& fila, std::uint64_t mascara);
    Lector BytesDe(const SitioColumna& sitio, const Lector& fila, bool& hay) const;
    void Decodificar(const SitioColumna& sitio, const Lector& bytes, Celda& celda);

    const Definicion& m_definicion;
    const Formato& m_formato;
    const Textos& m_textos;
    ValoresLargos& m_largos;
    ValoresLargos::Vuelta m_vuelta;
    std::vector<Celda> m_celdas;
    Bytes m_hueco; // for long values in several parts

    // Of the row being read:
    unsigned m_cuenta = 0;   // columns that it has
    Vista m_mascara;         // null mask, bit set = has a value
    std::uint64_t m_fin = 0; // end of fixed and variable values
    std::vector<std::uint16_t>
        m_lugares; // starts of the variable values and the end of the last; empty when not needed
};

} // namespace pastorix::access
