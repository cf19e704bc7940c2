#pragma once

#include "registers/datos/CiclosDeVaca.h"
#include "store/Valor.h"

#include <optional>
#include <vector>

namespace pastorix {

// A cow's cycles are a chain by parity, and the year follows the record that is found. Rows from elsewhere may have one parity in two years: each of
// them is a cycle of its own.

// The cycle one parity on (paso 1) or back (-1) in T_Cubriciones or T_Partos; of several years with it, the nearest in the direction of the step, or
// else the nearest at all. `paridad` is the one on screen. Nothing where there is none. Throws ErrorAlmacen.
std::optional<CicloDeVaca> CicloVecino(Conexion& c, const char* tabla, const CicloDeVaca& ciclo, int paridad,
                                       int paso);

// Other years in which the table has the cycle's parity. Throws ErrorAlmacen.
std::vector<int> OtrosAñosDeParidad(Conexion& c, const char* tabla, const CicloDeVaca& ciclo);

// A year or parity as its column takes it.
Valor EnteroONulo(const std::optional<int>& n);

} // namespace pastorix
