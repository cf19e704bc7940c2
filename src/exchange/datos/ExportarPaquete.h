#pragma once

#include "exchange/datos/Comun.h"

namespace pastorix {

// Takes out of a copy of the central database all that does not belong to one veterinarian: his farmers and the shared ones stay, with what
// hangs from them. `equipo` is the station whose log rows go along. Returns the number of farmers that stay. Throws ErrorAlmacen, and
// ErrorDeIntercambio when nobody would stay.
long ReducirAPaquete(Conexion& copia, const std::string& usuario, const std::string& equipo,
                     const Progreso& progreso);

// Makes a veterinarian's package of `copia`, a file of the central database's rows that is worth nothing afterwards. The package appears
// under its name when it is whole, without the room of what was taken out, so that nothing of the other farmers can be read in it.
// Returns the number of its farmers. Throws as above.
long ExportarPaquete(const std::filesystem::path& copia, const std::filesystem::path& destino,
                     const std::string& usuario, const std::string& equipo, const Progreso& progreso);

} // namespace pastorix
