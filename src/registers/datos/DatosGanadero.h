#pragma once

#include "store/Conexion.h"

#include <string>

namespace pastorix {

// How a farmer is shown on other sheets: by his short name, else by name and surnames, and where he lives.
struct DatosGanadero {
    std::string nombre;
    std::string localidad;
};

// Empty for a farmer who is gone. Throws ErrorAlmacen.
DatosGanadero LeerDatosGanadero(Conexion& c, double idGanadero);

} // namespace pastorix
