#pragma once

#include "store/Conexion.h"

namespace pastorix {

// Deletes a cow with her health records, matings, services and calvings, and the fattening records of her calves under that farmer.
// The yearly vaccination rows (T_MAMIVACU) stay: they are of the farm's books. Run it in a group; a failing statement
// (ErrorAlmacen) leaves what was deleted before it.
void BorrarVaca(Conexion& c, double idVaca, double idGanadero);

// Deletes a farmer with his address, yearly data, cows, bulls and their yearly health rows. His vaccination dates (T_FechasVacu) stay. As
// above, a failing statement leaves what was deleted before it.
void BorrarGanadero(Conexion& c, double idGanadero);

} // namespace pastorix
