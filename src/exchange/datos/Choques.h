#pragma once

#include "exchange/datos/Comparacion.h"

#include <unordered_set>

namespace pastorix {

using Codigos = std::unordered_set<double>;

// Looks for keys that a merge would put into the central database a second time, and for rows of farmers who are not the package's. `suyos`
// are the package's farmers. Adds to the clashes and the warnings.
void BuscarChoques(Conexion& central, Conexion& paquete, const Codigos& suyos, Comparacion& c);

} // namespace pastorix
