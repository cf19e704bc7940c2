#pragma once

#include "store/Conexion.h"

#include <string>

namespace pastorix {

// The code that a farmer's next cow gets. Codes of one farmer share his number as a prefix ("1200001" is the first of farmer 12) and count
// on from his last one. Throws ErrorDeEjecucion 5 for a farmer's number of more than six digits, for which there is no first code.
std::string CodigoDeVaca(Conexion& c, double idGanadero);

} // namespace pastorix
