#pragma once

#include "exchange/datos/Choques.h"

namespace pastorix {

// What somebody should know of before a package is merged: its age, farmers that it lacks, cows and calvings that will be gone. `suyos` are
// the package's farmers.
void AvisarDeLaFusion(Conexion& central, Conexion& paquete, const std::string& usuario, const Codigos& suyos,
                      Comparacion& c);

// What a station loses when its database is replaced by the one it was compared with.
void AvisarDelReemplazo(Conexion& base, Comparacion& c);

} // namespace pastorix
